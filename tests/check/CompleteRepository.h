#pragma once

#include <string>
#include <vector>

#include "check/Checker.h"
#include "tests/support/TemporaryFolder.h"

namespace support {

/// A repository in which nothing is missing and nothing is left over: Anna with two skins, clothes and poses, and
/// assets of every type. See the source for what is where. Made once and copied.
class CompleteRepository {
 public:
  CompleteRepository();

  /// Replaces the first such text of the description, which has to be there.
  void edit(const std::string& from, const std::string& to) const;
  void write(const std::string& file, const std::string& text) const { folder_.write(file, text); }
  /// One colour.
  void writePicture(const std::string& file, int width, int height) const;
  void remove(const std::string& file) const;
  void rename(const std::string& from, const std::string& to) const;
  /// In the description and in the names of files.
  void renameAll(const std::string& from, const std::string& to) const;
  /// What nobody should open.
  void replaceByPipe(const std::string& file) const;

  check::CheckResult check(const std::string& targetRoot = "") const;
  const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
};

/// For each finding its code, the element or else the file, and what it is about.
std::vector<std::string> shortForm(const check::CheckResult& result);

}  // namespace support
