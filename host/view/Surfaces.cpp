#include "host/view/Surfaces.h"

#include <stdmat.h>
#include <units.h>

#include <algorithm>
#include <set>
#include <string>

#include "host/files/Paths.h"
#include "host/materials/MaterialClasses.h"
#include "host/materials/MaterialWalk.h"
#include "host/services/Listener.h"
#include "host/view/ColorCurves.h"
#include "host/view/TextureCache.h"

namespace host {

namespace {

/// A length of this many centimetres under the skin looks as soft as it gets.
constexpr float SOFTEST_CENTIMETRES = 1.0F;

/// Leaves `value` alone when the material has no such parameter in its first block.
template <class T>
void readParameter(Mtl& material, ParamID id, T& value) {
  IParamBlock2* block = material.GetParamBlock(0);
  Interval valid = FOREVER;
  if (block != nullptr) block->GetValue(id, 0, value, valid);
}

std::shared_ptr<const Texture> readTexture(BitmapTex& bitmap) {
  const std::wstring file = bitmap.GetMapName();
  const Texture::Result reading = sharedTextures().get(resolvePath(file));
  if (!reading.error.empty()) {
    Listener::instance().report("Texture " + toUtf8(file) + ": " + reading.error);
  }
  return reading.texture;
}

/// Of a standard material the diffuse slot; of others the map that is the diffuse one by its number.
Texmap* diffuseMap(Mtl& material) {
  Texmap* map = material.GetSubTexmap(DIFFUSE_SLOT);
  if (map == nullptr) readParameter(material, SCALED_DIFFUSE_MAP, map);
  return map;
}

Surface surfaceOf(Mtl& material) {
  Surface surface;
  Color color(1.0F, 1.0F, 1.0F);
  readParameter(material, DIFFUSE_COLOR, color);
  surface.color = toLinear(color);
  readParameter(material, ROUGHNESS, surface.roughness);
  readParameter(material, OPACITY, surface.opacity);
  if (material.ClassID() == SCALED_MATERIAL) {
    float length = 0.0F;
    readParameter(material, SCALED_LENGTH, length);
    const auto unit = static_cast<float>(GetMasterScale(UNITS_CENTIMETERS));
    surface.softness = std::clamp(length * unit / SOFTEST_CENTIMETRES, 0.0F, 1.0F);
  }
  // A map may hold the same file many times over.
  std::set<std::wstring> tried;
  forEachBitmapIn(diffuseMap(material), [&](BitmapTex& bitmap) {
    if (surface.texture == nullptr && tried.insert(bitmap.GetMapName()).second) surface.texture = readTexture(bitmap);
  });
  return surface;
}

}  // namespace

std::vector<Surface> surfacesOf(Mtl* material) {
  if (material == nullptr) return {};
  if (material->ClassID() != MULTI_MATERIAL) return {surfaceOf(*material)};
  std::vector<Surface> surfaces;
  for (int slot = 0; slot < material->NumSubMtls(); ++slot) {
    const std::vector<Surface> sub = surfacesOf(material->GetSubMtl(slot));
    surfaces.push_back(sub.empty() ? Surface() : sub.front());
  }
  return surfaces;
}

}  // namespace host
