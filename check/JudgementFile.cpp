#include "check/JudgementFile.h"

#include <algorithm>
#include <functional>
#include <nlohmann/json.hpp>
#include <string_view>

#include "apps/support/NearestIds.h"
#include "check/FolderIndex.h"
#include "host/files/JsonBounds.h"
#include "host/files/PrintableText.h"
#include "host/files/RegularFile.h"

namespace check {

namespace {

using Json = nlohmann::ordered_json;
using Take = std::function<std::string(const std::string&)>;

/// Of a file; far beyond what a person writes there.
constexpr std::uintmax_t MOST_JUDGEMENT_BYTES = 1 << 20;

std::string at(const std::string& key, const std::string& error) {
  return error.empty() ? error : host::printable(key) + ": " + error;
}

std::string takeText(const std::string& key, const Json& value, const Take& take) {
  return at(key, value.is_string() ? take(value.get_ref<const std::string&>()) : "has to be a text");
}

std::string takeTexts(const std::string& key, const Json& values, const Take& take) {
  if (!values.is_array()) return at(key, "has to be a list of texts");
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string error = takeText(key + '[' + std::to_string(i) + ']', values[i], take);
    if (!error.empty()) return error;
  }
  return {};
}

std::string takeSeverities(const std::string& key, const Json& values, Judgement& judgement) {
  if (!values.is_object()) return at(key, "has to be an object of rules and severities");
  for (const auto& [rule, value] : values.items()) {
    const Take take = [&judgement, &name = rule](const auto& text) { return judgement.setSeverity(name, text); };
    const std::string error = takeText(key + '.' + rule, value, take);
    if (!error.empty()) return error;
  }
  return {};
}

/// In the order in which they are taken: what is ignored is so, whatever severity it is given besides.
const std::vector<std::string> KEYS = {"severity", "ignore", "only", "failOn", "targetRoot"};

std::string unknownKey(const std::string& key) {
  constexpr std::size_t LONGEST = 100;
  const std::vector<std::string> nearest = apps::nearestIds(key.substr(0, LONGEST), KEYS);
  return at(key, "nothing of this name is read here" + (nearest.empty() ? "" : "; nearest: " + nearest.front()));
}

std::string takeEntry(const std::string& key, const Json& value, Judgement& judgement) {
  if (key == "severity") return takeSeverities(key, value, judgement);
  if (key == "ignore") return takeTexts(key, value, [&](const auto& rule) { return judgement.ignore(rule); });
  if (key == "only") return takeTexts(key, value, [&](const auto& rule) { return judgement.askFor(rule); });
  if (key == "failOn") return takeText(key, value, [&](const auto& text) { return judgement.setFailOn(text); });
  return takeText(key, value, [&](const auto& text) { return judgement.setTargetRoot(text), std::string(); });
}

std::string takeAll(const Json& json, Judgement& judgement) {
  if (!json.is_object()) return "has to hold one JSON object";
  for (const auto& [key, value] : json.items()) {
    if (std::find(KEYS.begin(), KEYS.end(), key) == KEYS.end()) return unknownKey(key);
  }
  for (const std::string& key : KEYS) {
    const auto found = json.find(key);
    const std::string error = found == json.end() ? "" : takeEntry(key, *found, judgement);
    if (!error.empty()) return error;
  }
  return {};
}

/// Where in the text the reader stopped, as an editor counts.
std::string positionOf(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, byte == 0 ? 0 : byte - 1);
  const std::size_t lineStart = before.rfind('\n') + 1;
  return "line " + std::to_string(std::count(before.begin(), before.end(), '\n') + 1) + ", column " +
         std::to_string(before.size() - lineStart + 1);
}

std::string takeFile(const std::string& text, Judgement& judgement) {
  try {
    return host::isWithinBounds(text) ? takeAll(Json::parse(text), judgement) : "holds too much";
  } catch (const Json::parse_error& error) {
    return "is no JSON from " + positionOf(text, error.byte) + " on";
  }
}

std::string read(const std::filesystem::path& path, std::string& text) {
  host::RegularFile file(path);
  if (!file.isOpen()) return "is no file that can be opened";
  if (file.size() > MOST_JUDGEMENT_BYTES) return "is larger than a megabyte";
  return file.readUpTo(MOST_JUDGEMENT_BYTES, text) ? "" : "cannot be read";
}

}  // namespace

std::string readJudgement(const std::filesystem::path& repository, Judgement& judgement) {
  const std::filesystem::path file = repository / JUDGEMENT_FILE;
  std::error_code none;
  const std::filesystem::file_type type = std::filesystem::symlink_status(file, none).type();
  if (type == std::filesystem::file_type::not_found) return {};
  std::string text;
  std::string error = leadsOut(file, repository) ? "leads out of the repository" : read(file, text);
  if (error.empty()) error = takeFile(text, judgement);
  return error.empty() ? error : host::printable(file.string()) + ": " + error;
}

}  // namespace check
