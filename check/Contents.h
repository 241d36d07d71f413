#pragma once

#include <box3.h>

#include <QSize>
#include <algorithm>
#include <functional>
#include <string>
#include <unordered_map>

#include "check/FolderIndex.h"

namespace check {

/// Whether what is in a file could be looked at.
enum class Form {
  Open,
  Closed,  ///< only 3ds Max or its renderer read it
  Damaged,
  Unreadable  ///< it cannot be opened, or is no regular file
};

struct PictureContent {
  Form form = Form::Open;
  std::string problem;
  /// In pixels.
  QSize size;
};

struct MeshContent {
  Form form = Form::Open;
  std::string problem;
  /// Centimetres.
  Box3 bounds;
};

struct LibraryContent {
  Form form = Form::Open;
  std::string problem;
  /// Of an open one.
  std::string text;
};

/// What is in the files of a repository, each read once and many at a time. First say what is wanted, then read.
class Contents {
 public:
  /// Must outlive this.
  explicit Contents(FolderIndex& files) : files_(files) {}

  // What is wanted counts as referred to. Null for what is no file of the repository; else filled when it is read, and
  // there as long as this is.
  const PictureContent* wantPicture(const std::wstring& path) { return want(pictures_, path); }
  const MeshContent* wantMesh(const std::wstring& path) { return want(meshes_, path); }
  const LibraryContent* wantLibrary(const std::wstring& path) { return want(libraries_, path); }

  void read(const std::function<void(std::size_t done, std::size_t known)>& progress);

  /// Null when it was not wanted.
  const LibraryContent* library(const std::wstring& path) const;
  int closedMeshes() const { return countClosed(meshes_); }
  int closedLibraries() const { return countClosed(libraries_); }

 private:
  template <class Content>
  struct Wanted {
    /// Empty for what nobody should open.
    std::string place;
    Content content;
  };
  template <class Content>
  using WantedFiles = std::unordered_map<const FolderIndex::File*, Wanted<Content>>;

  template <class Content>
  const Content* want(WantedFiles<Content>& wanted, const std::wstring& path);
  template <class Content>
  static int countClosed(const WantedFiles<Content>& wanted);

  FolderIndex& files_;
  WantedFiles<PictureContent> pictures_;
  WantedFiles<MeshContent> meshes_;
  WantedFiles<LibraryContent> libraries_;
};

template <class Content>
const Content* Contents::want(WantedFiles<Content>& wanted, const std::wstring& path) {
  const FolderIndex::File* file = files_.find(path);
  if (file == nullptr) return nullptr;
  if (!file->isReferredTo) files_.Look(path);
  const auto [entry, isNew] = wanted.try_emplace(file);
  if (isNew && file->isRegular) entry->second.place = files_.nativePath(path).string();
  return &entry->second.content;
}

template <class Content>
int Contents::countClosed(const WantedFiles<Content>& wanted) {
  return static_cast<int>(std::count_if(wanted.begin(), wanted.end(),
                                        [](const auto& entry) { return entry.second.content.form == Form::Closed; }));
}

}  // namespace check
