#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>

#include "check/Contents.h"
#include "check/FolderIndex.h"
#include "host/formats/MaterialLibraryFile.h"
#include "host/materials/MaterialLibrary.h"
#include "model/MaterialResult.h"

namespace check {

/// The material libraries of a repository by the names that they hold, each opened once, when it is first asked.
class MaterialLibraryIndex {
 public:
  /// Both must outlive this.
  MaterialLibraryIndex(FolderIndex& files, const Contents& contents) : files_(files), contents_(contents) {}

  /// As loading it and looking a name up comes out. A library that cannot be read here counts as not loaded.
  ZORVEL::LibraryState look(const std::wstring& file, const wchar_t* name);
  /// Null when the library does not hold it.
  Mtl* find(const std::wstring& file, const std::wstring& name);
  /// In all libraries that were asked so far.
  void forEachMaterial(const std::function<void(Mtl&)>& visit) const;
  /// Whether it is there and not read here: outside the repository, or in a form that only 3ds Max reads.
  bool isClosed(const std::wstring& file);
  /// Empty for a library that was read or is not there.
  const std::string& problemOf(const std::wstring& file);

 private:
  struct Library {
    host::MaterialLibrary materials;
    bool isLoaded = false;
    bool isClosed = false;
    std::string problem;
  };

  Library& open(const std::wstring& file);
  std::unique_ptr<Library> load(const std::wstring& file);

  FolderIndex& files_;
  const Contents& contents_;
  std::unordered_map<std::wstring, std::unique_ptr<Library>> libraries_;
};

}  // namespace check
