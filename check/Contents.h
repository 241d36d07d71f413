#pragma once

#include <box3.h>

#include <QSize>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

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
  void wantPicture(const std::filesystem::path& file) { pictures_[file]; }
  void wantMesh(const std::filesystem::path& file) { meshes_[file]; }
  void wantLibrary(const std::filesystem::path& file) { libraries_[file]; }

  void read(const std::function<void(std::size_t done, std::size_t known)>& progress);

  // Only of what was wanted.
  const PictureContent& picture(const std::filesystem::path& file) const { return pictures_.at(file); }
  const MeshContent& mesh(const std::filesystem::path& file) const { return meshes_.at(file); }
  const LibraryContent& library(const std::filesystem::path& file) const { return libraries_.at(file); }
  const std::map<std::filesystem::path, MeshContent>& meshes() const { return meshes_; }
  const std::map<std::filesystem::path, LibraryContent>& libraries() const { return libraries_; }

 private:
  std::map<std::filesystem::path, PictureContent> pictures_;
  std::map<std::filesystem::path, MeshContent> meshes_;
  std::map<std::filesystem::path, LibraryContent> libraries_;
};

}  // namespace check
