#pragma once

#include <QImage>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/rays/ViewItem.h"
#include "host/view/Texture.h"
#include "samples/Frame.h"
#include "samples/Material.h"

namespace samples {

/// Takes the pictures of the repository: one light, one background, figures all in the same scale.
class Previews {
 public:
  using Textures = std::map<std::string, std::shared_ptr<const host::Texture>>;
  Previews(Textures textures, int samplesPerPixel) : m_textures(std::move(textures)), m_samples(samplesPerPixel) {}

  /// One mesh as a picture shows it.
  host::ViewItem item(std::shared_ptr<const host::Mesh> mesh, const Material& material, const Frame& place = {}) const;

  struct View {
    Vec3 target;
    double height = 200;  ///< centimetres that the picture shows
    double turn = 24;     ///< degrees, towards the character's right
    double above = 6;     ///< degrees
    bool ground = true;
  };
  QImage take(std::vector<host::ViewItem> items, const View& view, int width, int height) const;
  /// A view of all items together, filling most of the picture.
  static View around(const std::vector<host::ViewItem>& items, double widthByHeight);

  /// Dims a picture and strikes it through. Readable on a smaller picture, too, which shows only its upper left part.
  static QImage notAvailable(int width, int height);

 private:
  Textures m_textures;
  int m_samples;
};

}  // namespace samples
