#pragma once

#include <filesystem>
#include <string>

#include "host/files/TemporaryFolder.h"
#include "host/meshes/Mesh.h"

namespace bench {

/// A repository on disk, in a temporary folder that goes with it: each character has 40 clothes with 3 styles, an
/// exclude and a select, 20 poses with a mandatory element, 10 skins, 15 categories, 100 assets with 2 materials, and
/// 2000 matrix rows.
class GeneratedRepository {
 public:
  explicit GeneratedRepository(int characters);

  /// The one of that size, made when it is first asked for and kept for the life of the process.
  static const GeneratedRepository& ofSize(int characters);

  std::string description() const { return (folder() / "zorvel.xml").string(); }
  /// As the settings hold it.
  std::wstring root() const;
  /// XML elements below the document element.
  int elements() const { return elements_; }
  const std::filesystem::path& folder() const { return folder_.path(); }

  /// Parses and validates it into the store, which it empties first.
  void load() const;

 private:
  std::string character(int number);
  void writeFolders(int number) const;

  host::TemporaryFolder folder_;
  int elements_ = 0;
};

/// A bumpy sheet of 2 * side * side triangles, one unit each way, between Z 0 and 6.
host::Mesh sheet(int side);

}  // namespace bench
