#pragma once

#include <filesystem>

#include <string>
#include "host/files/TemporaryFolder.h"

namespace bench {

/// A repository on disk, in a temporary folder that goes with it, to look at in the main window. Its first character
/// has 40 clothes, and for the first two of them 435 elements in 18 tabs: 24 poses, 24 skins, 24 styles and 15
/// categories with 24 or 25 assets, each with a picture as dear to decode as a photo. The other characters have 40
/// clothes and nothing else.
class PictureRepository {
 public:
  explicit PictureRepository(int characters);

  /// The one of that size, made when it is first asked for and kept for the life of the process.
  static const PictureRepository& ofSize(int characters);

  /// Parses and validates it into the store, which it empties first. Nothing is selected then.
  void load() const;
  /// Pictures of the tab that is shown first, the poses of the first clothing.
  std::filesystem::path posePicture(int pose) const;

  static constexpr int TABS = 18;
  static constexpr int ELEMENTS = 435;
  static constexpr int POSES = 24;
  static constexpr int CLOTHES = 40;

 private:
  const std::filesystem::path& folder() const { return folder_.path(); }
  void writePictures() const;
  void writeMeshes() const;

  host::TemporaryFolder folder_;
};

}  // namespace bench
