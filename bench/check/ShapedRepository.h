#pragma once

#include <filesystem>
#include <string>

namespace bench {

/// How many of everything each character has. Unless a name says otherwise the files are all there, so that the checker
/// finds nothing.
struct RepositoryShape {
  int characters = 1;
  int clothes = 8;
  int styles = 3;
  int poses = 10;
  int skins = 3;
  int categories = 4;
  /// Each has its own place in each pose.
  int assets = 20;
  int materials = 2;
  /// For all characters; the first has a stand-in for each.
  int sharedAssets = 0;
  /// For all characters, in one folder.
  int unreferencedFiles = 0;
};

/// "typical", or one of those that are large in one direction: "poses", "assets", "rows", "shared", "files". The size
/// counts characters for the first, else poses, assets, rows, shared assets and files. Throws for another name.
RepositoryShape shapeOf(const std::string& name, int size);

/// Writes it into a folder that is there and empty. Files of one kind are links to a few, which costs little time and
/// room. Answers how many elements the description has.
int writeRepository(const RepositoryShape& shape, const std::filesystem::path& root);

}  // namespace bench
