#include "scene/TextureRedirection.h"

#include <AssetManagement/iassetmanager.h>
#include <stdlib.h>
#include <stdmat.h>
#include <windows.h>

#include <string>

#include "core/Debug.h"
#include "scene/UnitFactor.h"

namespace ZORVEL {

namespace {

const Class_ID MULTI_MATERIAL_CLASS(MULTI_CLASS_ID, 0);
const Class_ID BITMAP_CLASS(BMTEX_CLASS_ID, 0);
const Class_ID SCALED_MATERIAL_CLASS(0x3F2C5FAA, 0x750008BC);
const ParamID SCALED_PARAMETER = 22;
/// Asked for whatever a material reports; slots that it does not have are empty.
const int TEXTURE_SLOTS = 18;

/// Calls visit(block, parameter id) for every parameter, in block and index order.
template <class Visit>
void ForEachParameter(Animatable& owner, Visit visit) {
  for (int i = 0; i < owner.NumParamBlocks(); ++i) {
    IParamBlock2* block = owner.GetParamBlock(i);
    if (block == nullptr) continue;
    for (int j = 0; j < block->NumParams(); ++j) visit(*block, block->IndextoID(j));
  }
}

template <class T>
T* Referenced(IParamBlock2& block, ParamID id) {
  T* value = nullptr;
  Interval valid = FOREVER;
  block.GetValue(id, 0, value, valid);
  return value;
}

void ScaleLength(IParamBlock2& block, ParamID id) {
  float length = 0.0F;
  Interval valid = FOREVER;
  if (block.GetValue(id, 0, length, valid) != FALSE) block.SetValue(id, 0, length * UnitFactor());
}

std::wstring FileNameOf(const wchar_t* path) {
  wchar_t name[_MAX_FNAME];
  wchar_t extension[_MAX_EXT];
  _wsplitpath(path, nullptr, nullptr, name, extension);
  return std::wstring(name) + extension;
}

void RedirectBitmap(BitmapTex& bitmap, const wchar_t* mapsFolder) {
  using MaxSDK::AssetManagement::IAssetManager;
  using MaxSDK::AssetManagement::kBitmapAsset;
  const std::wstring file = mapsFolder + FileNameOf(bitmap.GetMap().GetFileName().data());
  Debug::AddDebugMessage(DEBUG_INFO, L"set new texture path:");
  Debug::AddDebugMessage(DEBUG_INFO, file.c_str());
  bitmap.SetMap(IAssetManager::GetInstance()->GetAsset(file.c_str(), kBitmapAsset));
}

}  // namespace

void TextureRedirection::RedirectMaterial(Mtl* material, const wchar_t* mapsFolder) {
  if (material == nullptr) return;
  if (material->ClassID() == MULTI_MATERIAL_CLASS) {
    for (int i = 0; i < material->NumSubMtls(); ++i) RedirectMaterial(material->GetSubMtl(i), mapsFolder);
    return;
  }
  for (int slot = 0; slot < TEXTURE_SLOTS; ++slot) RedirectMap(material->GetSubTexmap(slot), mapsFolder);
  const bool scaled = material->ClassID() == SCALED_MATERIAL_CLASS;
  ForEachParameter(*material, [scaled, mapsFolder](IParamBlock2& block, ParamID id) {
    if (scaled && id == SCALED_PARAMETER) ScaleLength(block, id);
    const ParamType2 type = block.GetParameterType(id);
    if (type == TYPE_MTL) RedirectMaterial(Referenced<Mtl>(block, id), mapsFolder);
    if (type == TYPE_TEXMAP) RedirectMap(Referenced<Texmap>(block, id), mapsFolder);
  });
}

void TextureRedirection::RedirectMap(Texmap* map, const wchar_t* mapsFolder) {
  if (map == nullptr) return;
  if (map->ClassID() == BITMAP_CLASS) {
    RedirectBitmap(static_cast<BitmapTex&>(*map), mapsFolder);
    return;
  }
  ForEachParameter(*map, [mapsFolder](IParamBlock2& block, ParamID id) {
    if (block.GetParameterType(id) == TYPE_TEXMAP) RedirectMap(Referenced<Texmap>(block, id), mapsFolder);
  });
}

}  // namespace ZORVEL
