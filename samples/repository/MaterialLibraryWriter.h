#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "samples/people/Material.h"

namespace samples {

/// Collects materials and writes them as one library file. Bitmaps name the folder of the workstation they were painted
/// on, as libraries in the wild do.
class MaterialLibraryWriter {
 public:
  explicit MaterialLibraryWriter(std::string textureFolder) : m_textureFolder(std::move(textureFolder)) {}

  void add(const Material& material) { m_materials.push_back(material); }
  bool isEmpty() const { return m_materials.empty(); }
  std::string text() const;
  /// Answers an empty text, or what went wrong.
  [[nodiscard]] std::string write(const std::filesystem::path& file) const;

 private:
  std::string m_textureFolder;
  std::vector<Material> m_materials;
};

}  // namespace samples
