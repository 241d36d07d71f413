#pragma once

#include <tiny_gltf.h>

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/rays/Surface.h"

class Mtl;

namespace host {

class Texture;

/// The materials and textures of a glTF document in the making, each entered once.
class GltfMaterials {
 public:
  /// The document must outlive this.
  explicit GltfMaterials(tinygltf::Model& model) : model_(model) {}

  /// The index of what a face of that material id shows; null is plain clay.
  int indexOf(Mtl* material, std::size_t materialId);

 private:
  const std::vector<Surface>& surfaces(Mtl* material);
  int append(Mtl* material, const Surface& surface, std::size_t slot, std::size_t slotCount);
  /// -1 for a picture that cannot be stored.
  int textureOf(const Texture& drawn);
  int appendTexture(const Texture& drawn);

  tinygltf::Model& model_;
  std::map<Mtl*, std::vector<Surface>> surfaces_;
  std::map<std::pair<Mtl*, std::size_t>, int> materials_;
  std::map<std::filesystem::path, int> textures_;
};

}  // namespace host
