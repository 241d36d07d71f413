#include "scene/MaterialResolver.h"

#include <maxapi.h>

#include "core/Debug.h"
#include "model/LibrarySearches.h"
#include "scene/TextureRedirection.h"

namespace ZORVEL {

namespace {

void Log(const wchar_t* text) { Debug::AddDebugMessage(DEBUG_INFO, text); }

/// Null when the list has nothing of that name.
MtlBase* FindByName(MtlBaseList& list, const wchar_t* name) {
  MSTR wanted(name);
  const int index = list.FindMtlByName(wanted);
  return index < 0 ? nullptr : list[index];
}

/// Null for a texture map, which may have the name of a material.
Mtl* AsMaterial(MtlBase* found) {
  if (found == nullptr || found->SuperClassID() != MATERIAL_CLASS_ID) return nullptr;
  return static_cast<Mtl*>(found);
}

/// Makes the library the host's current one.
LibraryState LookIntoLibrary(const std::wstring& file, const wchar_t* name) {
  Log(file.c_str());
  Interface* host = GetCOREInterface();
  if (host->LoadMaterialLib(file.c_str()) == 0) return LibraryState::NotLoaded;
  MtlBase* found = FindByName(host->GetMaterialLibrary(), name);
  if (found == nullptr) return LibraryState::WithoutName;
  return AsMaterial(found) != nullptr ? LibraryState::HoldsMaterial : LibraryState::NameOfMap;
}

/// From the host's current library; null when it does not hold the material.
Mtl* UpdateLibraryMaterial(const MaterialSearch& search, std::vector<std::wstring>& missingTextures) {
  Log(L"Update Material:");
  Log(search.name);
  Mtl* material = AsMaterial(FindByName(GetCOREInterface()->GetMaterialLibrary(), search.name));
  if (material != nullptr) missingTextures = TextureRedirection::Redirect(*material, search.mapsFolder);
  return material;
}

void TakeFromLibrary(const MaterialSearch& search, INode& node, MaterialResult& result) {
  if (Mtl* material = UpdateLibraryMaterial(search, result.missingTextures)) {
    Log(L"Found material in lib");
    node.SetMtl(material);
  } else {
    Log(L"Could not find material in lib");
    result.state = MaterialState::InNoLibrary;
  }
}

MaterialResult ResolveFromLibraries(const MaterialSearch& search, INode& node) {
  Log(L"Search in material lib: ");
  MaterialResult result = LibrarySearches::Run(search.name, search.libraries, LookIntoLibrary);
  if (result.state == MaterialState::FromLibrary) {
    TakeFromLibrary(search, node, result);
  } else {
    Log(L"Could not find material");
  }
  return result;
}

MaterialResult TakeFromScene(const MaterialSearch& search, INode& node, Mtl& material) {
  Log(L"Found material!");
  node.SetMtl(&material);
  MaterialResult result;
  result.state = MaterialState::FromScene;
  result.name = search.name;
  return result;
}

}  // namespace

MaterialResult MaterialResolver::Resolve(const MaterialSearch& search, INode& node) {
  if (search.name == nullptr) return LibrarySearches::Run(nullptr, search.libraries, LookIntoLibrary);
  Log(L"Search for material: ");
  Log(search.name);
  MtlBase* present = FindByName(*GetCOREInterface()->GetSceneMtls(), search.name);
  if (Mtl* material = AsMaterial(present)) return TakeFromScene(search, node, *material);
  MaterialResult result = ResolveFromLibraries(search, node);
  if (present != nullptr && result.state == MaterialState::InNoLibrary) result.state = MaterialState::NameOfMap;
  return result;
}

}  // namespace ZORVEL
