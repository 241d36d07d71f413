#pragma once

#include "tests/check/CompleteRepository.h"

namespace support {

/// A stranger's repository, whose files name what is none of its business: files of the machine, shares, pages of the
/// net, by paths, links, and entities. Beside it lies what it is after.
class TemptingRepository {
 public:
  TemptingRepository();

  const std::filesystem::path& root() const { return repository_.folder().path(); }
  const std::filesystem::path& secrets() const { return secrets_.path(); }
  /// From the text of a scene file one that names such files in the place of its own.
  void writeScene(const std::string& plain) const;
  std::filesystem::path scene() const { return secrets_.path() / "given" / "scene.json"; }
  /// Whose description has entities of its own.
  std::filesystem::path withEntities() const { return entities_.path(); }

 private:
  void writeMeshes() const;
  void writeLibraries() const;
  void makeLinks() const;
  void writeEntities() const;

  CompleteRepository repository_;
  TemporaryFolder secrets_;
  TemporaryFolder entities_;
};

}  // namespace support
