#include "host/formats/GltfMaterials.h"

#include <imtl.h>

#include <QImage>
#include <QString>
#include <algorithm>
#include <utility>

#include "host/files/PictureFile.h"
#include "host/files/RegularFile.h"
#include "host/meshes/GltfGeometry.h"
#include "host/services/Listener.h"
#include "host/view/Surfaces.h"
#include "host/view/Texture.h"

namespace host {

namespace {

struct Picture {
  std::string bytes;
  const char* mimeType;
};

bool beginsWith(const std::string& bytes, const std::string& beginning) {
  return bytes.compare(0, beginning.size(), beginning) == 0;
}

/// Empty, and the listener is told, when the file cannot be read once more.
std::string readAgain(const std::filesystem::path& path) {
  RegularFile file(path);
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(file.size()));
  if (file.readUpTo(static_cast<std::size_t>(file.size()), bytes) && !bytes.empty()) return bytes;
  Listener::instance().report("Texture " + path.u8string() + ": it cannot be read a second time, for the glTF file");
  return {};
}

/// The file's own bytes where glTF allows its format, else as PNG what is drawn of it.
Picture pictureOf(const Texture& texture) {
  std::string bytes = readAgain(texture.file());
  if (beginsWith(bytes, "\x89PNG")) return {std::move(bytes), "image/png"};
  if (beginsWith(bytes, "\xFF\xD8\xFF")) return {std::move(bytes), "image/jpeg"};
  return {pngBytes(texture.picture()).toStdString(), "image/png"};
}

std::string nameOf(Mtl* material, std::size_t slot, std::size_t slotCount) {
  if (material == nullptr) return "Clay";
  const MSTR name = material->GetName();
  const std::string text = QString::fromWCharArray(name.data()).toStdString();
  return slotCount > 1 ? text + " " + std::to_string(slot + 1) : text;
}

}  // namespace

int GltfMaterials::indexOf(Mtl* material, std::size_t materialId) {
  const std::vector<Surface>& all = surfaces(material);
  const std::size_t slot = materialId % all.size();
  const auto known = materials_.find({material, slot});
  if (known != materials_.end()) return known->second;
  return materials_[{material, slot}] = append(material, all[slot], slot, all.size());
}

const std::vector<Surface>& GltfMaterials::surfaces(Mtl* material) {
  const auto known = surfaces_.find(material);
  if (known != surfaces_.end()) return known->second;
  std::vector<Surface> all = surfacesOf(material);
  if (all.empty()) all.emplace_back();
  return surfaces_[material] = std::move(all);
}

int GltfMaterials::append(Mtl* material, const Surface& surface, std::size_t slot, std::size_t slotCount) {
  const auto share = [](float value) { return static_cast<double>(std::clamp(value, 0.0F, 1.0F)); };
  tinygltf::Material result;
  result.name = nameOf(material, slot, slotCount);
  result.doubleSided = true;
  result.alphaMode = surface.opacity < 1.0F ? "BLEND" : "OPAQUE";
  tinygltf::PbrMetallicRoughness& look = result.pbrMetallicRoughness;
  look.baseColorFactor = {share(surface.color.r), share(surface.color.g), share(surface.color.b),
                          share(surface.opacity)};
  look.metallicFactor = 0.0;
  look.roughnessFactor = share(surface.roughness);
  if (surface.texture) look.baseColorTexture.index = textureOf(*surface.texture);
  model_.materials.push_back(result);
  return static_cast<int>(model_.materials.size()) - 1;
}

int GltfMaterials::textureOf(const Texture& drawn) {
  const auto known = textures_.find(drawn.file());
  if (known != textures_.end()) return known->second;
  return textures_[drawn.file()] = appendTexture(drawn);
}

int GltfMaterials::appendTexture(const Texture& drawn) {
  const Picture picture = pictureOf(drawn);
  if (picture.bytes.empty()) return -1;
  tinygltf::Image image;
  image.name = drawn.file().stem().u8string();
  image.mimeType = picture.mimeType;
  image.bufferView = appendBytes(model_, picture.bytes.data(), picture.bytes.size());
  model_.images.push_back(image);
  tinygltf::Texture texture;
  texture.source = static_cast<int>(model_.images.size()) - 1;
  model_.textures.push_back(texture);
  return static_cast<int>(model_.textures.size()) - 1;
}

}  // namespace host
