#include "apps/cli/ListCommand.h"

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>

#include "apps/support/ExitStatus.h"
#include "apps/support/LoadedRepository.h"
#include "apps/support/ModelText.h"
#include "apps/support/ParseNoteText.h"
#include "host/files/Paths.h"
#include "host/files/PrintableText.h"
#include "model/Data2.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryValidation.h"

namespace cli {

using namespace apps;

namespace {

using Json = nlohmann::ordered_json;
using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using namespace ZORVEL::RepositoryFormat;

/// Of an element without a folder of its own: skins, categories and materials.
Json plain(const DataContainer& record) {
  Json json;
  json["id"] = field(&record, FIELD_ID);
  json["name"] = field(&record, FIELD_NAME);
  return json;
}

/// Of an element whose folder is looked for on disk. The character is null for what all share.
Json checked(const DataContainer& record, const CharacterData* character) {
  Json json = plain(record);
  const ZORVEL::Refusal refusal = ZORVEL::RepositoryValidation::WhyUnmarked(record, character);
  json["usable"] = refusal.why == ZORVEL::WhyNot::Nothing;
  if (refusal.why != ZORVEL::WhyNot::Nothing) json["whyNot"] = host::toUtf8(refusal.GetText());
  return json;
}

Json plainList(const std::vector<DataContainer*>& records) {
  Json list = Json::array();
  for (const DataContainer* record : records) list.push_back(plain(*record));
  return list;
}

Json ids(const std::vector<DataContainer*>& records, const wchar_t* name) {
  Json list = Json::array();
  for (const DataContainer* record : records) list.push_back(field(record, name));
  return list;
}

Json clothing(const CharacterData& character) {
  Json list = Json::array();
  for (const DataContainer* cloth : elementsOf(character, ZORVEL::CLOTH)) {
    Json json = checked(*cloth, &character);
    json["styles"] = plainList(clothChildren(*cloth, ZORVEL::MATERIAL));
    json["excludes"] = ids(clothChildren(*cloth, ZORVEL::EXCLUDE), FIELD_ID);
    json["selects"] = ids(clothChildren(*cloth, ZORVEL::SELECT), FIELD_ASSET_ID);
    list.push_back(json);
  }
  return list;
}

Json poses(const CharacterData& character) {
  Json list = Json::array();
  for (const DataContainer* pose : elementsOf(character, ZORVEL::POSES)) {
    Json json = checked(*pose, &character);
    json["mandatory"] = ids(childrenOf(*pose), FIELD_ID);
    list.push_back(json);
  }
  return list;
}

Json categories(const CharacterData& character) {
  Json list = Json::array();
  for (const DataContainer* category : elementsOf(character, ZORVEL::CATEGORIES)) {
    Json json = plain(*category);
    json["multiple"] = CharacterData::IsMultiple(category);
    json["required"] = CharacterData::IsRequired(category);
    list.push_back(json);
  }
  return list;
}

Json asset(const DataContainer& record, const CharacterData* character) {
  Json json = checked(record, character);
  for (const wchar_t* name : {FIELD_TYPE, FIELD_CATEGORY, FIELD_GLOBAL_ID}) {
    if (record.CheckDatafield(name)) json[host::toUtf8(name)] = field(&record, name);
  }
  json["materials"] = plainList(childrenOf(record));
  return json;
}

Json assets(const std::vector<DataContainer*>& records, const CharacterData* character) {
  Json list = Json::array();
  for (const DataContainer* record : records) list.push_back(asset(*record, character));
  return list;
}

Json describe(const CharacterData& character) {
  Json json = checked(character, &character);
  json["skins"] = plainList(elementsOf(character, ZORVEL::SKINS));
  json["clothing"] = clothing(character);
  json["poses"] = poses(character);
  json["categories"] = categories(character);
  json["assets"] = assets(elementsOf(character, ZORVEL::ASSETS), &character);
  return json;
}

Json describeAll(const std::filesystem::path& repository) {
  Json json;
  std::error_code error;
  json["repository"] = std::filesystem::absolute(repository, error).string();
  json["characters"] = Json::array();
  for (const CharacterData* character : characters()) json["characters"].push_back(describe(*character));
  json["globalAssets"] = assets(globalAssets(), nullptr);
  return json;
}

const std::string& textOf(const Json& text) { return text.get_ref<const std::string&>(); }

std::string joined(const Json& entries, const char* key) {
  std::string text;
  for (const Json& entry : entries) {
    const std::string& one = textOf(entry.is_object() ? entry.at(key) : entry);
    text += (text.empty() ? "" : ", ") + one;
  }
  return text;
}

std::string details(const Json& element) {
  std::string text;
  const auto add = [&text](const std::string& part) { text += "  " + part; };
  if (!element.value("type", "").empty()) add(textOf(element["type"]));
  if (element.contains("category")) add("in " + textOf(element["category"]));
  if (element.contains("globalID")) add("stands for " + textOf(element["globalID"]));
  if (element.value("multiple", false)) add("several");
  if (element.value("required", false)) add("required");
  for (const char* key : {"styles", "materials", "excludes", "selects", "mandatory"}) {
    if (element.contains(key) && !element[key].empty()) add(std::string(key) + ": " + joined(element[key], "id"));
  }
  return text;
}

std::string namesOf(const Json& element) { return textOf(element["id"]) + "  " + textOf(element["name"]); }

std::string whyNot(const Json& element) {
  return element.contains("whyNot") ? "  (not usable: " + textOf(element["whyNot"]) + ")" : "";
}

void print(const std::string& line) { host::printLine(std::cout, line); }

void printElements(const char* title, const Json& elements) {
  if (elements.empty()) return;
  print(std::string("  ") + title);
  for (const Json& element : elements) {
    print((element.value("usable", true) ? "      " : "    ! ") + namesOf(element) + details(element) +
          whyNot(element));
  }
}

void printAll(const Json& repository) {
  print("Repository " + textOf(repository["repository"]));
  for (const Json& character : repository["characters"]) {
    print("Character " + namesOf(character) + whyNot(character));
    for (const char* list : {"skins", "clothing", "poses", "categories", "assets"}) {
      printElements(list, character[list]);
    }
  }
  if (repository["globalAssets"].empty()) return;
  print("Shared by all characters");
  printElements("assets", repository["globalAssets"]);
}

/// False when something that the description has is gone.
bool reportNotes(const std::vector<ZORVEL::ParseNote>& notes, const std::filesystem::path& repository) {
  for (const ZORVEL::ParseNote& note : notes) host::printLine(std::cerr, apps::lineOf(note, repository));
  return std::none_of(notes.begin(), notes.end(), apps::isLoss);
}

}  // namespace

int runList(const std::filesystem::path& repository, bool asJson) {
  const apps::LoadedRepository loaded(repository);
  if (!loaded.error().empty()) {
    host::printLine(std::cerr, "zorvel list: " + loaded.error());
    return EXIT_UNREADABLE;
  }
  const Json json = describeAll(repository);
  if (asJson) {
    std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  } else {
    printAll(json);
  }
  return reportNotes(loaded.notes(), repository) ? EXIT_CLEAN : EXIT_FINDINGS;
}

}  // namespace cli
