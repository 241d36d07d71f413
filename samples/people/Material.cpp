#include "samples/people/Material.h"

namespace samples {

Material plain(const std::string& name, const QColor& color, double roughness, const std::string& texture) {
  Material material;
  material.name = name;
  material.color = color;
  material.roughness = roughness;
  material.texture = texture;
  return material;
}

Material multi(const std::string& name, std::vector<Material> parts) {
  Material material;
  material.name = name;
  material.kind = Material::Kind::Multi;
  material.parts = std::move(parts);
  return material;
}

}  // namespace samples
