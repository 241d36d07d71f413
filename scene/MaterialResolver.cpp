#include "scene/MaterialResolver.h"

#include <maxapi.h>

#include <vector>

#include "core/Debug.h"
#include "scene/BuildContext.h"
#include "scene/TextureRedirection.h"

namespace ZORVEL {

namespace {

void Log(const wchar_t* text) { Debug::AddDebugMessage(DEBUG_INFO, text); }

/// Null when the list has no material of that name; a texture map of the name does not count.
Mtl* FindMaterial(MtlBaseList& list, const wchar_t* name) {
  MSTR wanted(name);
  const int index = list.FindMtlByName(wanted);
  if (index < 0 || list[index]->SuperClassID() != MATERIAL_CLASS_ID) return nullptr;
  return static_cast<Mtl*>(list[index]);
}

bool LibraryHolds(const std::wstring& file, const wchar_t* name) {
  Interface* host = GetCOREInterface();
  if (host->LoadMaterialLib(file.c_str()) == 0) return false;
  return FindMaterial(host->GetMaterialLibrary(), name) != nullptr;
}

bool FallbackHolds(const std::vector<std::wstring>& files, const wchar_t* name) {
  for (const std::wstring& file : files) {
    Log(file.c_str());
    if (LibraryHolds(file, name)) return true;
  }
  return false;
}

Mtl* UpdateLibraryMaterial(const wchar_t* name, MtlBaseLib& library, const wchar_t* mapsFolder) {
  Log(L"Update Material:");
  Log(name);
  Mtl* material = FindMaterial(library, name);
  if (material != nullptr) TextureRedirection::RedirectMaterial(material, mapsFolder);
  return material;
}

void ResolveWith(const std::vector<std::wstring>& fallbacks, const wchar_t* name, const std::wstring& firstLibrary,
                 INode* node, const BuildContext& context) {
  if (node == nullptr || name == nullptr) return;
  Log(L"Search for material: ");
  Log(name);
  Interface* host = GetCOREInterface();
  if (Mtl* present = FindMaterial(*host->GetSceneMtls(), name)) {
    Log(L"Found material!");
    node->SetMtl(present);
    return;
  }
  Log(L"Search in material lib: ");
  Log(firstLibrary.c_str());
  if (!LibraryHolds(firstLibrary, name) && !FallbackHolds(fallbacks, name)) {
    Log(L"Could not find material");
    return;
  }
  Mtl* material = UpdateLibraryMaterial(name, host->GetMaterialLibrary(), context.globalMaps);
  if (material == nullptr) {
    Log(L"Could not find material in lib");
    return;
  }
  Log(L"Found material in lib");
  node->SetMtl(material);
}

}  // namespace

void MaterialResolver::Resolve(const wchar_t* materialName, const std::wstring& firstLibrary, INode* node,
                               const BuildContext& context) {
  const std::wstring folder = context.characterFolder;
  ResolveWith({folder + L"\\materials.mat", folder + L"\\props.mat"}, materialName, firstLibrary, node, context);
}

void MaterialResolver::ResolveGlobal(const wchar_t* materialName, const std::wstring& firstLibrary, INode* node,
                                     const BuildContext& context) {
  const std::wstring root = context.repositoryPath;
  ResolveWith({root + L"\\global_assets\\materials.mat"}, materialName, firstLibrary, node, context);
}

}  // namespace ZORVEL
