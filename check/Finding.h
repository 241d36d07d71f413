#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "check/Rule.h"
#include "check/WearTable.h"

namespace check {

/// One thing that an author should know. All texts are UTF-8 of one line without control characters, whatever the
/// repository holds; a report escapes them for its own format.
struct Finding {
  RuleId rule = RuleId::DescriptionMissing;
  /// As the options have it.
  Severity severity = Severity::Error;
  /// Below the repository, with slashes: "zorvel.xml" for most. Empty for the folder itself.
  std::string file;
  /// Counted from 1; 0 when the finding has no such place.
  int line = 0;
  int column = 0;
  /// The element with the ids on the way to it, "character[anna]/cloth/clothing[dress]"; empty when there is none.
  std::string element;
  /// What it is about, apart from the element: a file, an attribute, an id.
  std::string subject;
  /// The rule's sentence, filled in.
  std::string message;
};

/// What came of checking one repository. Findings are sorted by file, line, column and code.
struct CheckResult {
  /// As the user named it.
  std::string root;
  std::vector<Finding> findings;
  /// Of each character, when they were asked for.
  std::vector<WearTable> wear;
  /// The description, all that it names and what that names in turn, as far as they are there; when they were asked
  /// for.
  std::vector<std::filesystem::path> files;
  /// False when there is no description that could be read: the one finding says why.
  bool isReadable = true;
  int characterCount = 0;
  int elementCount = 0;
  int fileCount = 0;
};

}  // namespace check
