#include "scene/MaterialResolver.h"

#include <maxapi.h>

#include <algorithm>

#include "core/Debug.h"
#include "core/Disk.h"
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

LibraryState Search(const std::wstring& file, const wchar_t* name) {
  Interface* host = GetCOREInterface();
  if (host->LoadMaterialLib(file.c_str()) == 0) {
    return Disk::FileExists(file) ? LibraryState::Unreadable : LibraryState::Missing;
  }
  MtlBase* found = FindByName(host->GetMaterialLibrary(), name);
  if (found == nullptr) return LibraryState::WithoutName;
  return AsMaterial(found) != nullptr ? LibraryState::HoldsMaterial : LibraryState::NameOfMap;
}

/// Ends with the first library that holds the material.
std::vector<LibrarySearch> SearchAll(const std::vector<std::wstring>& files, const wchar_t* name) {
  std::vector<LibrarySearch> searches;
  for (const std::wstring& file : files) {
    Log(file.c_str());
    searches.push_back({file, Search(file, name)});
    if (searches.back().state == LibraryState::HoldsMaterial) break;
  }
  return searches;
}

bool Saw(const MaterialResult& result, LibraryState state) {
  return std::any_of(result.searches.begin(), result.searches.end(),
                     [state](const LibrarySearch& one) { return one.state == state; });
}

/// From the host's current library; null when it does not hold the material.
Mtl* UpdateLibraryMaterial(const MaterialSearch& search, std::vector<std::wstring>& missingTextures) {
  Log(L"Update Material:");
  Log(search.name);
  Mtl* material = AsMaterial(FindByName(GetCOREInterface()->GetMaterialLibrary(), search.name));
  if (material != nullptr) missingTextures = TextureRedirection::Redirect(*material, search.mapsFolder);
  return material;
}

void ResolveFromLibraries(const MaterialSearch& search, INode& node, MaterialResult& result) {
  Log(L"Search in material lib: ");
  result.searches = SearchAll(search.libraries, search.name);
  if (!Saw(result, LibraryState::HoldsMaterial)) {
    Log(L"Could not find material");
    if (Saw(result, LibraryState::NameOfMap)) result.state = MaterialState::NameOfMap;
    return;
  }
  Mtl* material = UpdateLibraryMaterial(search, result.missingTextures);
  if (material == nullptr) {
    Log(L"Could not find material in lib");
    return;
  }
  Log(L"Found material in lib");
  node.SetMtl(material);
  result.state = MaterialState::FromLibrary;
}

}  // namespace

MaterialResult MaterialResolver::Resolve(const MaterialSearch& search, INode& node) {
  MaterialResult result;
  result.state = search.name != nullptr ? MaterialState::InNoLibrary : MaterialState::NoField;
  if (search.name == nullptr) return result;
  result.name = search.name;
  Log(L"Search for material: ");
  Log(search.name);
  MtlBase* present = FindByName(*GetCOREInterface()->GetSceneMtls(), search.name);
  if (Mtl* material = AsMaterial(present)) {
    Log(L"Found material!");
    node.SetMtl(material);
    result.state = MaterialState::FromScene;
    return result;
  }
  if (present != nullptr) result.state = MaterialState::NameOfMap;
  ResolveFromLibraries(search, node, result);
  return result;
}

}  // namespace ZORVEL
