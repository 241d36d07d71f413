#pragma once

#include <QColor>
#include <string>
#include <vector>

namespace samples {

/// A material as the libraries hold it and as pictures show it.
struct Material {
  enum class Kind { Standard, Scaled, Multi };

  std::string name;
  Kind kind = Kind::Standard;
  QColor color = Qt::white;
  double roughness = 0.7;
  double opacity = 1;
  double softness = 0;          ///< centimetres; of the scaled class only
  std::string texture;          ///< file name in the repository's maps; empty for none
  std::vector<Material> parts;  ///< by face material id; of the multi class only
};

Material plain(const std::string& name, const QColor& color, double roughness, const std::string& texture = {});
Material multi(const std::string& name, std::vector<Material> parts);

}  // namespace samples
