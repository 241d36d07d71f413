#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace cli {

/// What `zorvel add` is asked for. Texts are UTF-8; what is left out is made from the id.
struct AddOptions {
  std::filesystem::path repository;
  /// One of the words that the help names.
  std::string kind;
  std::string id;
  /// Id of the character; may be left out where there is one.
  std::optional<std::string> to;
  /// Id of the clothing that a style belongs to; the same.
  std::optional<std::string> clothing;
  std::optional<std::string> name;
  std::optional<std::string> folder;
  std::optional<std::string> material;
  std::optional<std::string> preview;
  /// Id of the category that an asset is listed in; may be left out where there is one.
  std::optional<std::string> category;
  std::optional<std::string> type;
  /// Id of the shared asset that one of a character stands for.
  std::optional<std::string> global;
  bool multiple = false;
  bool required = false;
  /// A clothing without a style.
  bool noStyle = false;
  /// No rows of the asset matrix.
  bool noRows = false;
};

}  // namespace cli
