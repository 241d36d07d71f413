#include "scene/TextureRedirection.h"

#include <AssetManagement/iassetmanager.h>
#include <stdlib.h>
#include <stdmat.h>
#include <windows.h>

#include <algorithm>
#include <set>
#include <utility>

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
const int MOST_STEPS = 100000;

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

struct LengthParameter {
  IParamBlock2* block;
  ParamID id;
};

/// What of a material is redirected, in the order in which it is found and as often as it is found.
class MaterialParts {
 public:
  explicit MaterialParts(Mtl& material) { AddMaterial(&material); }

  const std::vector<BitmapTex*>& GetBitmaps() const { return m_bitmaps; }
  const std::vector<LengthParameter>& GetLengths() const { return m_lengths; }

 private:
  /// Null is passed over, here and below, and whatever comes after more steps than any material takes: parts that name
  /// each other over and over would never end.
  void AddMaterial(Mtl* material);
  void AddMap(Texmap* map);

  int m_steps = 0;
  std::vector<BitmapTex*> m_bitmaps;
  std::vector<LengthParameter> m_lengths;
};

void MaterialParts::AddMaterial(Mtl* material) {
  if (material == nullptr || ++m_steps > MOST_STEPS) return;
  if (material->ClassID() == MULTI_MATERIAL_CLASS) {
    for (int i = 0; i < material->NumSubMtls(); ++i) AddMaterial(material->GetSubMtl(i));
    return;
  }
  for (int slot = 0; slot < TEXTURE_SLOTS; ++slot) AddMap(material->GetSubTexmap(slot));
  const bool scaled = material->ClassID() == SCALED_MATERIAL_CLASS;
  ForEachParameter(*material, [this, scaled](IParamBlock2& block, ParamID id) {
    if (scaled && id == SCALED_PARAMETER) m_lengths.push_back({&block, id});
    const ParamType2 type = block.GetParameterType(id);
    if (type == TYPE_MTL) AddMaterial(Referenced<Mtl>(block, id));
    if (type == TYPE_TEXMAP) AddMap(Referenced<Texmap>(block, id));
  });
}

void MaterialParts::AddMap(Texmap* map) {
  if (map == nullptr || ++m_steps > MOST_STEPS) return;
  if (map->ClassID() == BITMAP_CLASS) {
    m_bitmaps.push_back(static_cast<BitmapTex*>(map));
    return;
  }
  ForEachParameter(*map, [this](IParamBlock2& block, ParamID id) {
    if (block.GetParameterType(id) == TYPE_TEXMAP) AddMap(Referenced<Texmap>(block, id));
  });
}

void ScaleLength(const LengthParameter& parameter) {
  float length = 0.0F;
  Interval valid = FOREVER;
  if (parameter.block->GetValue(parameter.id, 0, length, valid) == FALSE) return;
  parameter.block->SetValue(parameter.id, 0, length * UnitFactor());
}

std::wstring FileNameOf(const wchar_t* path) {
  wchar_t name[_MAX_FNAME];
  wchar_t extension[_MAX_EXT];
  _wsplitpath(path, nullptr, nullptr, name, extension);
  return std::wstring(name) + extension;
}

std::wstring TargetOf(const BitmapTex& bitmap, const std::wstring& mapsFolder) {
  return mapsFolder + FileNameOf(bitmap.GetMap().GetFileName().data());
}

void RedirectBitmap(BitmapTex& bitmap, const std::wstring& mapsFolder) {
  using MaxSDK::AssetManagement::IAssetManager;
  using MaxSDK::AssetManagement::kBitmapAsset;
  const std::wstring file = TargetOf(bitmap, mapsFolder);
  Debug::AddDebugMessage(DEBUG_INFO, L"set new texture path:");
  Debug::AddDebugMessage(DEBUG_INFO, file.c_str());
  bitmap.SetMap(IAssetManager::GetInstance()->GetAsset(file.c_str(), kBitmapAsset));
}

std::vector<std::wstring> TargetsOf(const MaterialParts& parts, const std::wstring& mapsFolder) {
  std::vector<std::wstring> files;
  for (const BitmapTex* bitmap : parts.GetBitmaps()) {
    std::wstring file = TargetOf(*bitmap, mapsFolder);
    if (std::find(files.begin(), files.end(), file) == files.end()) files.push_back(std::move(file));
  }
  return files;
}

}  // namespace

RedirectionOutlook TextureRedirection::LookAhead(Mtl& material, const std::wstring& mapsFolder) {
  const MaterialParts parts(material);
  RedirectionOutlook outlook;
  std::set<std::wstring> known;
  for (const BitmapTex* bitmap : parts.GetBitmaps()) {
    const std::wstring from = bitmap->GetMap().GetFileName().data();
    if (known.insert(from).second) outlook.textures.push_back({from, TargetOf(*bitmap, mapsFolder)});
  }
  std::set<const IParamBlock2*> lengths;
  for (const LengthParameter& length : parts.GetLengths()) {
    if (length.block->GetParameterType(length.id) != TYPE_FLOAT) outlook.hasOddLength = true;
    if (!lengths.insert(length.block).second) outlook.isScaledAgain = true;
  }
  return outlook;
}

std::vector<std::wstring> TextureRedirection::Redirect(Mtl& material, const std::wstring& mapsFolder) {
  const MaterialParts parts(material);
  std::vector<std::wstring> files = TargetsOf(parts, mapsFolder);
  for (const LengthParameter& parameter : parts.GetLengths()) ScaleLength(parameter);
  for (BitmapTex* bitmap : parts.GetBitmaps()) RedirectBitmap(*bitmap, mapsFolder);
  files.erase(std::remove_if(files.begin(), files.end(), Disk::FileExists), files.end());
  return files;
}

}  // namespace ZORVEL
