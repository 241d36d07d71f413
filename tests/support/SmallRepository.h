#pragma once

#include <filesystem>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace support {

/// A repository on disk with one character, "c1", and one of everything: see the source for what is where. Meshes are
/// boxes.
class SmallRepository {
 public:
  SmallRepository();
  /// Replaces the first such text of the description, which has to be there.
  void edit(const std::string& from, const std::string& to) const;
  /// As it comes, a pose asks for an asset that is not there and no texture is; after this everything is.
  void mend() const;
  /// A picture for every element, so that the main window shows them all: without, it shows none.
  void writePictures() const;

  const TemporaryFolder& folder() const { return folder_; }
  /// As the settings hold it: with a trailing backslash.
  std::wstring root() const { return folder_.wide() + L"\\"; }

 private:
  TemporaryFolder folder_;
};

/// An OBJ text: a box of the given size, standing on Z = 0 around the origin.
std::string boxObj(float width, float depth, float height);

/// The text of a material library that holds the given materials (JSON objects).
std::string materialLibrary(const std::string& materials);
/// A standard material with one texture file in its diffuse slot.
std::string texturedMaterial(const std::string& name, const std::string& file);

}  // namespace support
