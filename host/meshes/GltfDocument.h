#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <vector>

#include "host/meshes/Mesh.h"

namespace host {

/// A glTF binary file, opened: its JSON, and its vertex data with every access checked against the file's own bounds.
/// Whatever does not hold is thrown as UnreadableMesh. Reads the bytes it was given in place.
class GltfDocument {
 public:
  using Json = nlohmann::json;

  explicit GltfDocument(std::string_view glb);

  const Json& root() const { return root_; }
  /// Item `index` of the top-level array `name`.
  const Json& item(const char* name, std::size_t index) const;

  /// How many elements an accessor claims to have, or more than there can be where it claims too much.
  std::size_t count(std::size_t accessor) const;
  std::vector<Point3> points(std::size_t accessor) const;
  /// v still downward, as in the file.
  std::vector<TexCoord> texCoords(std::size_t accessor) const;
  std::vector<std::uint32_t> indices(std::size_t accessor) const;

  /// Nothing when the key is absent; thrown when it is no whole number.
  static std::optional<std::size_t> optionalIndex(const Json& object, const char* key);
  /// The array under `key`; an empty one when it is absent.
  static const Json& list(const Json& object, const char* key);

 private:
  struct Elements {
    const unsigned char* first;
    std::size_t stride;
    std::size_t count;
    unsigned componentType;
    bool normalized;
  };

  void readExtensions();
  std::string_view view(std::size_t index) const;
  Elements elements(std::size_t accessor, const char* type, std::size_t components) const;

  Json root_;
  std::string_view binary_;
  /// Whether positions and normals may be whole numbers.
  bool isQuantized_ = false;
};

}  // namespace host
