#include "scene/TextureRedirection.h"

#include <AssetManagement/iassetmanager.h>
#include <stdlib.h>
#include <stdmat.h>
#include <windows.h>

#include <algorithm>

#include "core/Debug.h"
#include "core/Disk.h"
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

/// One walk through a material.
class Redirection {
 public:
  explicit Redirection(const std::wstring& mapsFolder) : m_mapsFolder(mapsFolder) {}

  /// Null is passed over, here and below.
  void RedirectMaterial(Mtl* material);
  const std::vector<std::wstring>& Missing() const { return m_missing; }

 private:
  void RedirectMap(Texmap* map);
  void RedirectBitmap(BitmapTex& bitmap);
  void NoteMissing(const std::wstring& file);

  const std::wstring& m_mapsFolder;
  std::vector<std::wstring> m_missing;
};

void Redirection::RedirectMaterial(Mtl* material) {
  if (material == nullptr) return;
  if (material->ClassID() == MULTI_MATERIAL_CLASS) {
    for (int i = 0; i < material->NumSubMtls(); ++i) RedirectMaterial(material->GetSubMtl(i));
    return;
  }
  for (int slot = 0; slot < TEXTURE_SLOTS; ++slot) RedirectMap(material->GetSubTexmap(slot));
  const bool scaled = material->ClassID() == SCALED_MATERIAL_CLASS;
  ForEachParameter(*material, [this, scaled](IParamBlock2& block, ParamID id) {
    if (scaled && id == SCALED_PARAMETER) ScaleLength(block, id);
    const ParamType2 type = block.GetParameterType(id);
    if (type == TYPE_MTL) RedirectMaterial(Referenced<Mtl>(block, id));
    if (type == TYPE_TEXMAP) RedirectMap(Referenced<Texmap>(block, id));
  });
}

void Redirection::RedirectMap(Texmap* map) {
  if (map == nullptr) return;
  if (map->ClassID() == BITMAP_CLASS) {
    RedirectBitmap(static_cast<BitmapTex&>(*map));
    return;
  }
  ForEachParameter(*map, [this](IParamBlock2& block, ParamID id) {
    if (block.GetParameterType(id) == TYPE_TEXMAP) RedirectMap(Referenced<Texmap>(block, id));
  });
}

void Redirection::RedirectBitmap(BitmapTex& bitmap) {
  using MaxSDK::AssetManagement::IAssetManager;
  using MaxSDK::AssetManagement::kBitmapAsset;
  const std::wstring file = m_mapsFolder + FileNameOf(bitmap.GetMap().GetFileName().data());
  Debug::AddDebugMessage(DEBUG_INFO, L"set new texture path:");
  Debug::AddDebugMessage(DEBUG_INFO, file.c_str());
  bitmap.SetMap(IAssetManager::GetInstance()->GetAsset(file.c_str(), kBitmapAsset));
  NoteMissing(file);
}

void Redirection::NoteMissing(const std::wstring& file) {
  const bool isKnown = std::find(m_missing.begin(), m_missing.end(), file) != m_missing.end();
  if (!isKnown && !Disk::FileExists(file)) m_missing.push_back(file);
}

}  // namespace

std::vector<std::wstring> TextureRedirection::Redirect(Mtl& material, const std::wstring& mapsFolder) {
  Redirection redirection(mapsFolder);
  redirection.RedirectMaterial(&material);
  return redirection.Missing();
}

}  // namespace ZORVEL
