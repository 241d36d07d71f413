#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "samples/people/Material.h"

namespace samples {

/// Where the textures of the sample were painted, on a machine that nobody has.
constexpr char PAINTERS_FOLDER[] = "D:\\textures";

/// Collects materials and writes them as one library file. Bitmaps name the folder of the workstation they were painted
/// on, as libraries in the wild do.
class MaterialLibraryWriter {
 public:
  explicit MaterialLibraryWriter(std::string textureFolder) : textureFolder_(std::move(textureFolder)) {}

  void add(const Material& material) { materials_.push_back(material); }
  bool isEmpty() const { return materials_.empty(); }
  std::string text() const;
  /// Answers an empty text, or what went wrong.
  [[nodiscard]] std::string write(const std::filesystem::path& file) const;

 private:
  std::string textureFolder_;
  std::vector<Material> materials_;
};

}  // namespace samples
