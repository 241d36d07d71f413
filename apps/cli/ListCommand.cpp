#include "apps/cli/ListCommand.h"

#include <algorithm>
#include <iostream>

#include "apps/cli/JsonWriter.h"
#include "apps/support/ExitStatus.h"
#include "apps/support/LoadedRepository.h"
#include "apps/support/ModelText.h"
#include "apps/support/OutsideFiles.h"
#include "apps/support/ParseNoteText.h"
#include "host/files/Paths.h"
#include "host/files/PrintableText.h"
#include "model/Data2.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryValidation.h"

namespace cli {

using namespace apps;

namespace {

using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using namespace ZORVEL::RepositoryFormat;

using Records = std::vector<DataContainer*>;

/// The elements of a character or of an asset that are named in a line of their owner.
struct Named {
  const char* title;
  Records records;
  const wchar_t* field;
};

/// One list of a character, in the order in which lists are told.
struct ElementList {
  const char* title;
  ZORVEL::CONTAINER container;
};
const ElementList LISTS[] = {{"skins", ZORVEL::SKINS},
                             {"clothing", ZORVEL::CLOTH},
                             {"poses", ZORVEL::POSES},
                             {"categories", ZORVEL::CATEGORIES},
                             {"assets", ZORVEL::ASSETS}};

/// Of the others no folder is looked for.
bool isChecked(ZORVEL::CONTAINER container) { return container != ZORVEL::SKINS && container != ZORVEL::CATEGORIES; }

/// Empty for what is usable. The character is null for what all share.
std::string whyNot(const DataContainer& record, const CharacterData* character) {
  const ZORVEL::Refusal refusal = ZORVEL::RepositoryValidation::WhyUnmarked(record, character);
  return refusal.why == ZORVEL::WhyNot::Nothing ? "" : host::toUtf8(refusal.GetText());
}

std::vector<Named> namedIn(const DataContainer& record, ZORVEL::CONTAINER container) {
  switch (container) {
    case ZORVEL::CLOTH:
      return {{"styles", clothChildren(record, ZORVEL::MATERIAL), FIELD_ID},
              {"excludes", clothChildren(record, ZORVEL::EXCLUDE), FIELD_ID},
              {"selects", clothChildren(record, ZORVEL::SELECT), FIELD_ASSET_ID}};
    case ZORVEL::POSES:
      return {{"mandatory", childrenOf(record), FIELD_ID}};
    case ZORVEL::ASSETS:
      return {{"materials", childrenOf(record), FIELD_ID}};
    default:
      return {};
  }
}

/// The repository as JSON. Nothing of it is kept: there may be a million elements.
class JsonListing {
 public:
  void write(const std::filesystem::path& repository) {
    std::error_code error;
    json_.beginObject();
    json_.member("repository", std::filesystem::absolute(repository, error).string());
    json_.key("characters");
    json_.beginArray();
    for (const CharacterData* character : characters()) writeCharacter(*character);
    json_.endArray();
    writeElements("globalAssets", globalAssets(), ZORVEL::ASSETS, nullptr);
    json_.endObject();
    std::cout << '\n';
  }

 private:
  void writeCharacter(const CharacterData& character) {
    json_.beginObject();
    writeNames(character);
    writeUsable(character, &character);
    for (const ElementList& list : LISTS) {
      writeElements(list.title, elementsOf(character, list.container), list.container, &character);
    }
    json_.endObject();
  }

  void writeElements(const char* title, const Records& records, ZORVEL::CONTAINER container,
                     const CharacterData* character) {
    json_.key(title);
    json_.beginArray();
    for (const DataContainer* record : records) writeElement(*record, container, character);
    json_.endArray();
  }

  void writeElement(const DataContainer& record, ZORVEL::CONTAINER container, const CharacterData* character) {
    json_.beginObject();
    writeNames(record);
    if (isChecked(container)) writeUsable(record, character);
    if (container == ZORVEL::CATEGORIES) {
      json_.member("multiple", CharacterData::IsMultiple(&record));
      json_.member("required", CharacterData::IsRequired(&record));
    }
    if (container == ZORVEL::ASSETS) writeAssetFields(record);
    for (const Named& named : namedIn(record, container)) writeNamed(named);
    json_.endObject();
  }

  void writeNames(const DataContainer& record) {
    json_.member("id", field(&record, FIELD_ID));
    json_.member("name", field(&record, FIELD_NAME));
  }

  void writeUsable(const DataContainer& record, const CharacterData* character) {
    const std::string why = whyNot(record, character);
    json_.member("usable", why.empty());
    if (!why.empty()) json_.member("whyNot", why);
  }

  void writeAssetFields(const DataContainer& record) {
    for (const wchar_t* name : {FIELD_TYPE, FIELD_CATEGORY, FIELD_GLOBAL_ID}) {
      if (record.CheckDatafield(name)) json_.member(host::toUtf8(name).c_str(), field(&record, name));
    }
  }

  /// Styles and materials have a name besides the id.
  void writeNamed(const Named& named) {
    const bool hasNames = named.title == std::string("styles") || named.title == std::string("materials");
    json_.key(named.title);
    json_.beginArray();
    for (const DataContainer* record : named.records) {
      if (!hasNames) {
        json_.value(field(record, named.field));
        continue;
      }
      json_.beginObject();
      writeNames(*record);
      json_.endObject();
    }
    json_.endArray();
  }

  JsonWriter json_{std::cout};
};

/// What the repository says may not steer the terminal.
std::string shown(const std::string& text) { return host::printable(text); }
std::string shownField(const DataContainer& record, const wchar_t* name) { return shown(field(&record, name)); }

void printNamed(const Named& named) {
  const char* separator = "";
  for (const DataContainer* record : named.records) {
    if (*separator == '\0') std::cout << "  " << named.title << ": ";
    std::cout << separator << shownField(*record, named.field);
    separator = ", ";
  }
}

void printDetails(const DataContainer& record, ZORVEL::CONTAINER container) {
  if (container == ZORVEL::ASSETS) {
    if (!field(&record, FIELD_TYPE).empty()) std::cout << "  " << shownField(record, FIELD_TYPE);
    if (record.CheckDatafield(FIELD_CATEGORY)) std::cout << "  in " << shownField(record, FIELD_CATEGORY);
    if (record.CheckDatafield(FIELD_GLOBAL_ID)) std::cout << "  stands for " << shownField(record, FIELD_GLOBAL_ID);
  }
  if (container == ZORVEL::CATEGORIES && CharacterData::IsMultiple(&record)) std::cout << "  several";
  if (container == ZORVEL::CATEGORIES && CharacterData::IsRequired(&record)) std::cout << "  required";
  for (const Named& named : namedIn(record, container)) printNamed(named);
}

void printWhyNot(const std::string& why) {
  if (!why.empty()) std::cout << "  (not usable: " << shown(why) << ")";
  std::cout << '\n';
}

void printElements(const ElementList& list, const Records& records, const CharacterData* character) {
  if (records.empty()) return;
  std::cout << "  " << list.title << '\n';
  for (const DataContainer* record : records) {
    const std::string why = isChecked(list.container) ? whyNot(*record, character) : "";
    std::cout << "    " << (why.empty() ? ' ' : '!') << ' ' << shownField(*record, FIELD_ID) << "  "
              << shownField(*record, FIELD_NAME);
    printDetails(*record, list.container);
    printWhyNot(why);
  }
}

void print(const std::filesystem::path& repository) {
  std::error_code error;
  std::cout << "Repository " << shown(std::filesystem::absolute(repository, error).string()) << '\n';
  for (const CharacterData* character : characters()) {
    std::cout << "Character " << shownField(*character, FIELD_ID) << "  " << shownField(*character, FIELD_NAME);
    printWhyNot(whyNot(*character, character));
    for (const ElementList& list : LISTS) printElements(list, elementsOf(*character, list.container), character);
  }
  const Records shared = globalAssets();
  if (shared.empty()) return;
  std::cout << "Shared by all characters\n";
  printElements({"assets", ZORVEL::ASSETS}, shared, nullptr);
}

/// False when something that the description has is gone.
bool reportNotes(const std::deque<ZORVEL::ParseNote>& notes, const std::filesystem::path& repository) {
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
  if (asJson) {
    JsonListing().write(repository);
  } else {
    print(repository);
  }
  for (const std::string& note : notesOnOutsideFiles(repository)) host::printLine(std::cerr, note);
  return reportNotes(loaded.notes(), repository) ? EXIT_CLEAN : EXIT_FINDINGS;
}

}  // namespace cli
