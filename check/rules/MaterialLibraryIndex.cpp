#include "check/rules/MaterialLibraryIndex.h"

namespace check {

using ZORVEL::LibraryState;

namespace {

MtlBase* findByName(MtlBaseList& list, const wchar_t* name) {
  MSTR wanted(name);
  const int index = list.FindMtlByName(wanted);
  return index < 0 ? nullptr : list[index];
}

}  // namespace

LibraryState MaterialLibraryIndex::look(const std::wstring& file, const wchar_t* name) {
  Library& library = open(file);
  if (!library.isLoaded) return LibraryState::NotLoaded;
  MtlBase* found = findByName(library.materials, name);
  if (found == nullptr) return LibraryState::WithoutName;
  return found->SuperClassID() == MATERIAL_CLASS_ID ? LibraryState::HoldsMaterial : LibraryState::NameOfMap;
}

Mtl* MaterialLibraryIndex::find(const std::wstring& file, const std::wstring& name) {
  if (look(file, name.c_str()) != LibraryState::HoldsMaterial) return nullptr;
  return static_cast<Mtl*>(findByName(open(file).materials, name.c_str()));
}

void MaterialLibraryIndex::forEachMaterial(const std::function<void(Mtl&)>& visit) const {
  for (const auto& [file, library] : libraries_) {
    for (int i = 0; i < library->materials.Count(); ++i) {
      MtlBase* material = library->materials[i];
      if (material->SuperClassID() == MATERIAL_CLASS_ID) visit(*static_cast<Mtl*>(material));
    }
  }
}

bool MaterialLibraryIndex::isClosed(const std::wstring& file) { return open(file).isClosed; }

const std::string& MaterialLibraryIndex::problemOf(const std::wstring& file) { return open(file).problem; }

MaterialLibraryIndex::Library& MaterialLibraryIndex::open(const std::wstring& file) {
  std::unique_ptr<Library>& library = libraries_[file];
  if (library == nullptr) library = load(file);
  return *library;
}

std::unique_ptr<MaterialLibraryIndex::Library> MaterialLibraryIndex::load(const std::wstring& file) {
  auto library = std::make_unique<Library>();
  const LibraryContent* content = contents_.library(file);
  if (content == nullptr) {
    library->isClosed = files_.Look(file) == ZORVEL::DiskEntry::File && !files_.isInside(file);
    return library;
  }
  library->isClosed = content->form == Form::Closed;
  library->problem = content->problem;
  if (content->form != Form::Open) return library;
  host::MaterialLibraryContent read = host::readMaterialLibraryText(content->text);
  // Some of the reasons go on from the name of the file.
  library->problem = (read.error.compare(0, 3, "is ") == 0 ? "it " : "") + read.error;
  library->isLoaded = read.error.empty();
  for (const host::Ref<Mtl>& material : read.materials) library->materials.Add(material.get());
  return library;
}

}  // namespace check
