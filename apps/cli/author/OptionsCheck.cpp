#include "apps/cli/author/OptionsCheck.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "core/WindowsNames.h"
#include "host/files/Paths.h"

namespace cli {

namespace {

using Kind = EntryKind;

/// An option with the kinds that it says something about.
struct Option {
  const char* name;
  bool given;
  std::vector<Kind> kinds;
};

std::string nameOf(Kind kind) {
  switch (kind) {
    case Kind::Character:
      return "a character";
    case Kind::Clothing:
      return "a clothing";
    case Kind::Pose:
      return "a pose";
    case Kind::Skin:
      return "a skin";
    case Kind::Style:
      return "a style";
    case Kind::Category:
      return "a category";
    case Kind::Asset:
      return "an asset of a character";
    case Kind::SharedAsset:
      return "a shared asset";
    case Kind::AssetReference:
      return "an asset that stands for a shared one";
  }
  return {};
}

/// Empty when all fit.
std::string unfitOption(const AddOptions& options) {
  const std::vector<Kind> all = {Kind::Clothing, Kind::Pose,  Kind::Skin,          Kind::Style,
                                 Kind::Category, Kind::Asset, Kind::AssetReference};
  const std::vector<Kind> named = {Kind::Character, Kind::Clothing, Kind::Pose,  Kind::Skin,
                                   Kind::Style,     Kind::Category, Kind::Asset, Kind::SharedAsset};
  const std::vector<Kind> withFolder = {Kind::Character, Kind::Clothing, Kind::Pose, Kind::Asset, Kind::SharedAsset};
  const std::vector<Kind> withMaterial = {Kind::Clothing, Kind::Skin, Kind::Style, Kind::Asset, Kind::SharedAsset};
  const std::vector<Kind> withRows = {Kind::Pose, Kind::Asset, Kind::AssetReference};
  const std::vector<Kind> withType = {Kind::Asset, Kind::SharedAsset, Kind::AssetReference};
  const Option table[] = {{"--to", options.to.has_value(), all},
                          {"--clothing", options.clothing.has_value(), {Kind::Style}},
                          {"--name", options.name.has_value(), named},
                          {"--folder", options.folder.has_value(), withFolder},
                          {"--material", options.material.has_value(), withMaterial},
                          {"--preview", options.preview.has_value(), {Kind::Skin, Kind::Style}},
                          {"--category", options.category.has_value(), {Kind::Asset, Kind::AssetReference}},
                          {"--type", options.type.has_value(), withType},
                          {"--global", options.global.has_value(), {Kind::AssetReference}},
                          {"--multiple", options.multiple, {Kind::Category}},
                          {"--required", options.required, {Kind::Category}},
                          {"--no-style", options.noStyle, {Kind::Clothing}},
                          {"--no-rows", options.noRows, withRows}};
  const Kind kind = kindOf(options);
  for (const Option& option : table) {
    const bool fits = std::find(option.kinds.begin(), option.kinds.end(), kind) != option.kinds.end();
    if (option.given && !fits) return option.name + (" says nothing about " + nameOf(kind)) + ".";
  }
  return {};
}

/// What XML can hold, as itself or as a reference.
bool isXmlCharacter(wchar_t c) {
  const auto character = static_cast<std::uint32_t>(c);
  if (character < 0x20) return c == L'\t' || c == L'\n' || c == L'\r';
  return (character < 0xD800 || character > 0xDFFF) && character != 0xFFFE && character != 0xFFFF;
}

std::string whyNoText(const std::string& what, const std::optional<std::string>& text) {
  if (!text) return {};
  const std::wstring wide = host::toWide(*text);
  if (wide.empty()) return "The " + what + " is empty.";
  const bool fits = std::all_of(wide.begin(), wide.end(), &isXmlCharacter);
  return fits ? std::string() : "The " + what + " has a character that XML cannot hold.";
}

std::string whyNoFileName(const std::string& what, const std::optional<std::string>& text) {
  if (!text) return {};
  const ZORVEL::NameRefusal refusal = ZORVEL::WindowsNames::WhyRefused(host::toWide(*text));
  if (refusal.fault == ZORVEL::NameFault::None) return whyNoText(what, text);
  return "The " + what + " \"" + *text + "\" " + host::toUtf8(refusal.GetText()) + ".";
}

}  // namespace

EntryKind kindOf(const AddOptions& options) {
  if (options.kind == "character") return Kind::Character;
  if (options.kind == "clothing") return Kind::Clothing;
  if (options.kind == "pose") return Kind::Pose;
  if (options.kind == "skin") return Kind::Skin;
  if (options.kind == "style") return Kind::Style;
  if (options.kind == "category") return Kind::Category;
  if (options.global) return Kind::AssetReference;
  return options.type == "global" ? Kind::SharedAsset : Kind::Asset;
}

std::string whyUnfit(const AddOptions& options) {
  for (const std::string& reason : {unfitOption(options), whyNoFileName("id", options.id),
                                    whyNoFileName("folder", options.folder), whyNoFileName("preview", options.preview),
                                    whyNoText("name", options.name), whyNoText("material", options.material)}) {
    if (!reason.empty()) return reason;
  }
  const bool contradicts = options.global && options.type.value_or("global") != "global";
  return contradicts ? "--global makes an asset of the type global, and --type says another." : "";
}

}  // namespace cli
