#include "apps/cli/author/NewEntry.h"

#include <algorithm>

#include "apps/cli/author/Collisions.h"
#include "apps/cli/author/NamesFromIds.h"
#include "apps/cli/author/OptionsCheck.h"
#include "apps/cli/author/RecordOf.h"
#include "apps/support/NearestIds.h"
#include "host/files/Paths.h"
#include "model/RepositoryFormat.h"

namespace cli {

using namespace apps;

using namespace ZORVEL::RepositoryFormat;

namespace {

/// Where entries of a kind stand. `title` is what a new list calls itself; null for lists without a name.
struct Place {
  EntryKind kind;
  const char* word;
  const wchar_t* list;
  const wchar_t* element;
  const wchar_t* title;
};

const Place PLACES[] = {
    {EntryKind::Character, "character", nullptr, ELEMENT_CHARACTER, nullptr},
    {EntryKind::Skin, "skin", ELEMENT_SKINS, ELEMENT_SKIN, L"Skin"},
    {EntryKind::Clothing, "clothing", ELEMENT_CLOTH, ELEMENT_CLOTHING, L"Clothing"},
    {EntryKind::Style, "style", nullptr, ELEMENT_MATERIAL, nullptr},
    {EntryKind::Pose, "pose", ELEMENT_POSES, ELEMENT_POSE, L"Pose"},
    {EntryKind::Category, "category", ELEMENT_CATEGORIES, ELEMENT_CATEGORY, nullptr},
    {EntryKind::Asset, "asset", ELEMENT_ASSETS, ELEMENT_ASSET, nullptr},
    {EntryKind::AssetReference, "asset", ELEMENT_ASSETS, ELEMENT_ASSET, nullptr},
    {EntryKind::SharedAsset, "shared asset", ELEMENT_GLOBAL_ASSETS, ELEMENT_ASSET, nullptr},
};

const Place& placeOf(EntryKind kind) {
  return *std::find_if(std::begin(PLACES), std::end(PLACES), [kind](const Place& one) { return one.kind == kind; });
}

std::string quotedName(const std::wstring& text) { return '"' + host::toUtf8(text) + '"'; }

std::string listed(const std::vector<std::wstring>& ids) {
  std::string text;
  for (const std::wstring& id : ids) text += (text.empty() ? "" : ", ") + host::toUtf8(id);
  return text;
}

std::vector<std::wstring> idsOf(const std::vector<const Element*>& elements) {
  std::vector<std::wstring> ids;
  for (const Element* element : elements) ids.push_back(element->text(FIELD_ID));
  return ids;
}

std::vector<std::string> asUtf8(const std::vector<std::wstring>& texts) {
  std::vector<std::string> result;
  for (const std::wstring& text : texts) result.push_back(host::toUtf8(text));
  return result;
}

bool needsRows(const Element& asset) { return asset.text(FIELD_TYPE) != VALUE_SPECIFIC; }

Element matrixRow(const std::wstring& pose, const std::wstring& asset) {
  Element row{ELEMENT_MATRIX, {{FIELD_POSE_ID, pose}, {FIELD_MATRIX_ASSET_ID, asset}}, {}};
  for (const wchar_t* number : {FIELD_XPOS, FIELD_YPOS, FIELD_ZPOS, FIELD_XROT, FIELD_YROT, FIELD_ZROT}) {
    row.attributes.emplace_back(number, L"0");
  }
  return row;
}

class Planner {
 public:
  Planner(const Element& description, const AddOptions& options)
      : description_(description), options_(options), id_(host::toWide(options.id)) {
    entry_.kind = kindOf(options);
  }

  NewEntry run() {
    const std::string unfit = whyUnfit(options_);
    if (unfit.empty() ? findCharacter() : refuse(EXIT_USAGE, unfit)) plan();
    return std::move(entry_);
  }

 private:
  bool refuse(ExitStatus status, const std::string& text) {
    entry_.status = status;
    entry_.refusal = text;
    return false;
  }

  /// True also for what belongs to no character.
  bool findCharacter() {
    if (entry_.kind == EntryKind::Character || entry_.kind == EntryKind::SharedAsset) return true;
    const std::vector<const Element*> characters = childrenOf(description_, ELEMENT_CHARACTER);
    if (characters.empty()) {
      return refuse(EXIT_FINDINGS, "There is no character yet; `zorvel add DIR character ID` makes one.");
    }
    character_ = choose("character", "--to", options_.to, characters);
    if (character_ != nullptr) entry_.character = character_->text(FIELD_ID);
    return character_ != nullptr;
  }

  /// Of elements that there are: the one that is asked for, or the only one. Null, with the refusal.
  const Element* choose(const std::string& kind, const std::string& option, const std::optional<std::string>& wanted,
                        const std::vector<const Element*>& elements) {
    if (!wanted && elements.size() == 1) return elements.front();
    if (!wanted) {
      refuse(EXIT_USAGE, option + " has to say which " + kind + " it belongs to: " + listed(idsOf(elements)) + ".");
      return nullptr;
    }
    const std::wstring id = host::toWide(*wanted);
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [&](const Element* element) { return element->text(FIELD_ID) == id; });
    if (found != elements.end()) return *found;
    refuse(EXIT_FINDINGS, apps::unknownId(kind, *wanted, asUtf8(idsOf(elements))));
    return nullptr;
  }

  void plan() {
    switch (entry_.kind) {
      case EntryKind::Character:
        return planCharacter();
      case EntryKind::Clothing:
        return planClothing();
      case EntryKind::Pose:
        return planPose();
      case EntryKind::Skin:
        return planSkin();
      case EntryKind::Style:
        return planStyle();
      case EntryKind::Category:
        return planCategory();
      case EntryKind::Asset:
        return planAsset();
      case EntryKind::SharedAsset:
        return planSharedAsset();
      case EntryKind::AssetReference:
        return planReference();
    }
  }

  void planCharacter() {
    const std::vector<const Element*> characters = childrenOf(description_, ELEMENT_CHARACTER);
    if (!isFree(characters) || !isFolderFree(characters, {L"maps", L"global_assets"})) return;
    Element character{ELEMENT_CHARACTER, {{FIELD_ID, id_}, {FIELD_NAME, name()}, {FIELD_FOLDER, folder()}}, {}};
    for (const Place& place : PLACES) {
      if (place.list == nullptr || place.kind == EntryKind::SharedAsset || place.kind == EntryKind::AssetReference)
        continue;
      character.children.push_back(emptyList(place));
    }
    character.children.push_back({ELEMENT_ASSET_MATRIX, {}, {}});
    add({}, std::move(character));
  }

  void planClothing() {
    if (!isFree(entries(EntryKind::Clothing)) || !isElementFolderFree()) return;
    Element clothing{ELEMENT_CLOTHING, {{FIELD_ID, id_}, {FIELD_NAME, name()}, {FIELD_FOLDER, folder()}}, {}};
    if (!options_.noStyle) {
      const std::wstring material =
          options_.material ? host::toWide(*options_.material) : characterName() + L" " + name() + L" Plain";
      clothing.children.push_back(style(id_ + L"_plain", L"Plain", L"plain.png", material));
    }
    if (arePicturesFree(clothing)) addToList(std::move(clothing));
  }

  void planPose() {
    if (!isFree(entries(EntryKind::Pose)) || !isElementFolderFree()) return;
    Element pose{ELEMENT_POSE, {{FIELD_ID, id_}, {FIELD_NAME, name()}, {FIELD_FOLDER, folder()}}, {}};
    if (!arePicturesFree(pose)) return;
    addToList(std::move(pose));
    std::vector<Element> rows;
    for (const Element* asset : entries(EntryKind::Asset)) {
      if (needsRows(*asset) && isInEveryPose(*asset)) rows.push_back(matrixRow(id_, asset->text(FIELD_ID)));
    }
    addRows(std::move(rows));
  }

  void planSkin() {
    if (!isFree(entries(EntryKind::Skin))) return;
    addToList({ELEMENT_SKIN,
               {{FIELD_ID, id_}, {FIELD_NAME, name()}, {FIELD_PREVIEW, preview()}, {FIELD_MATERIAL, material()}},
               {}});
  }

  void planStyle() {
    const std::vector<const Element*> clothing = entries(EntryKind::Clothing);
    if (clothing.empty()) {
      refuse(EXIT_FINDINGS,
             quotedName(entry_.character) + " has no clothing yet; `zorvel add DIR clothing ID` makes one.");
      return;
    }
    clothing_ = choose("clothing", "--clothing", options_.clothing, clothing);
    if (clothing_ == nullptr || !isFree(childrenOf(*clothing_, ELEMENT_MATERIAL))) return;
    entry_.clothing = clothing_->text(FIELD_ID);
    add(pathTo(*clothing_), style(id_, name(), preview(), material()));
  }

  void planCategory() {
    if (!isFree(entries(EntryKind::Category))) return;
    addToList({ELEMENT_CATEGORY,
               {{FIELD_ID, id_},
                {FIELD_NAME, name()},
                {FIELD_SELECTION, options_.multiple ? VALUE_MULTIPLE : L"single"},
                {FIELD_REQUIRED, options_.required ? VALUE_TRUE : L"false"}},
               {}});
  }

  void planAsset() {
    const Element* category = findCategory();
    if (category == nullptr || !isFree(entries(EntryKind::Asset)) || !isElementFolderFree()) return;
    addToList({ELEMENT_ASSET,
               {{FIELD_ID, id_},
                {FIELD_NAME, name()},
                {FIELD_FOLDER, folder()},
                {FIELD_TYPE, host::toWide(options_.type.value_or("common"))},
                {FIELD_CATEGORY, category->text(FIELD_ID)},
                {FIELD_MATERIAL, material()}},
               {}});
    addRowsOfAsset();
  }

  void planSharedAsset() {
    const std::vector<const Element*> assets = entriesOf(description_, ELEMENT_GLOBAL_ASSETS, ELEMENT_ASSET);
    if (!isFree(assets) || !isFolderFree(assets, {L"maps"})) return;
    addToList({ELEMENT_ASSET,
               {{FIELD_ID, id_},
                {FIELD_NAME, name()},
                {FIELD_FOLDER, folder()},
                {FIELD_TYPE, VALUE_GLOBAL},
                {FIELD_MATERIAL, material()}},
               {}});
  }

  void planReference() {
    const Element* shared = choose("shared asset", "--global", options_.global,
                                   entriesOf(description_, ELEMENT_GLOBAL_ASSETS, ELEMENT_ASSET));
    const Element* category = shared == nullptr ? nullptr : findCategory();
    if (category == nullptr || !isFree(entries(EntryKind::Asset))) return;
    const std::wstring global = shared->text(FIELD_ID);
    for (const Element* asset : entries(EntryKind::Asset)) {
      if (asset->text(FIELD_GLOBAL_ID) != global) continue;
      refuse(EXIT_FINDINGS, quotedName(asset->text(FIELD_ID)) + " stands for " + quotedName(global) + " already.");
      return;
    }
    addToList({ELEMENT_ASSET,
               {{FIELD_ID, id_},
                {FIELD_TYPE, VALUE_GLOBAL},
                {FIELD_GLOBAL_ID, global},
                {FIELD_CATEGORY, category->text(FIELD_ID)}},
               {}});
    addRowsOfAsset();
  }

  /// Without one, an asset is never offered.
  const Element* findCategory() {
    const std::vector<const Element*> categories = entries(EntryKind::Category);
    if (!categories.empty()) return choose("category", "--category", options_.category, categories);
    refuse(EXIT_FINDINGS, quotedName(entry_.character) +
                              " has no category, without which an asset is never offered; `zorvel add DIR category "
                              "ID` makes one.");
    return nullptr;
  }

  /// False, with the refusal, when there is a reason.
  bool holds(const std::string& whyNot, ExitStatus status = EXIT_FINDINGS) {
    return whyNot.empty() || refuse(status, whyNot);
  }

  bool isFree(const std::vector<const Element*>& others) {
    return holds(whyIdTaken(id_, placeOf(entry_.kind).word, others));
  }

  /// A folder that is given may be shared on purpose; one that is made from the id may not be so by chance.
  bool isFolderFree(const std::vector<const Element*>& others, const std::vector<std::wstring>& reserved) {
    return holds(whyFolderReserved(folder(), reserved), EXIT_USAGE) &&
           (options_.folder || holds(whyFolderTaken(folder(), others)));
  }

  bool isElementFolderFree() {
    std::vector<const Element*> others = entries(EntryKind::Clothing);
    for (const EntryKind kind : {EntryKind::Pose, EntryKind::Asset}) {
      const std::vector<const Element*> more = entries(kind);
      others.insert(others.end(), more.begin(), more.end());
    }
    return isFolderFree(others, {L"previews", L"skin", L"maps"});
  }

  bool arePicturesFree(const Element& added) {
    return holds(whyPictureTaken(added, entries(EntryKind::Clothing), entries(EntryKind::Pose)));
  }

  std::vector<const Element*> entries(EntryKind kind) const {
    return entriesOf(*character_, placeOf(kind).list, placeOf(kind).element);
  }

  std::wstring characterName() const {
    const std::wstring name = character_->text(FIELD_NAME);
    return name.empty() ? entry_.character : name;
  }

  /// The id without that of what it belongs to.
  std::wstring key() const {
    const std::wstring key = withoutOwner(id_, entry_.character);
    return clothing_ == nullptr ? key : withoutOwner(key, withoutOwner(entry_.clothing, entry_.character));
  }
  std::wstring name() const { return options_.name ? host::toWide(*options_.name) : nameFor(key()); }
  std::wstring folder() const { return options_.folder ? host::toWide(*options_.folder) : key(); }
  std::wstring preview() const { return options_.preview ? host::toWide(*options_.preview) : key() + PICTURE_ENDING; }

  /// A scene knows each name of a material once, so it begins with those of what it belongs to.
  std::wstring material() const {
    if (options_.material) return host::toWide(*options_.material);
    std::wstring owner = character_ == nullptr ? L"Shared" : characterName();
    if (clothing_ != nullptr) owner += L" " + clothing_->text(FIELD_NAME);
    return owner + L" " + name();
  }

  static Element style(const std::wstring& id, const std::wstring& name, const std::wstring& preview,
                       const std::wstring& material) {
    return {ELEMENT_MATERIAL,
            {{FIELD_ID, id}, {FIELD_NAME, name}, {FIELD_PREVIEW, preview}, {FIELD_MATERIAL, material}},
            {}};
  }

  static Element emptyList(const Place& place) {
    Element list{place.list, {}, {}};
    if (place.title != nullptr) list.attributes.emplace_back(FIELD_NAME, place.title);
    return list;
  }

  void add(const ElementPath& parent, Element element) {
    entry_.element = element;
    entry_.additions.push_back({parent, std::move(element)});
  }

  /// Into the last list of that name, or into a new one.
  void addToList(Element element) {
    const Place& place = placeOf(entry_.kind);
    entry_.element = element;
    addAll(character_ == nullptr ? description_ : *character_, emptyList(place), {std::move(element)});
  }

  /// An asset that some pose has no row for is meant for the others only.
  bool isInEveryPose(const Element& asset) const {
    const std::vector<const Element*> rows = entriesOf(*character_, ELEMENT_ASSET_MATRIX, ELEMENT_MATRIX);
    const auto hasRow = [&](const Element* pose) {
      return std::any_of(rows.begin(), rows.end(), [&](const Element* row) {
        return row->text(FIELD_POSE_ID) == pose->text(FIELD_ID) &&
               row->text(FIELD_MATRIX_ASSET_ID) == asset.text(FIELD_ID);
      });
    };
    const std::vector<const Element*> poses = entries(EntryKind::Pose);
    return std::all_of(poses.begin(), poses.end(), hasRow);
  }

  void addRowsOfAsset() {
    if (!needsRows(entry_.element)) return;
    std::vector<Element> rows;
    for (const Element* pose : entries(EntryKind::Pose)) rows.push_back(matrixRow(pose->text(FIELD_ID), id_));
    addRows(std::move(rows));
  }

  void addRows(std::vector<Element> rows) {
    if (rows.empty() || options_.noRows) return;
    entry_.rows = rows.size();
    addAll(*character_, {ELEMENT_ASSET_MATRIX, {}, {}}, std::move(rows));
  }

  void addAll(const Element& owner, Element list, std::vector<Element> elements) {
    const std::vector<const Element*> there = childrenOf(owner, list.name);
    if (there.empty()) {
      list.children = std::move(elements);
      entry_.additions.push_back({pathTo(owner), std::move(list)});
      return;
    }
    for (Element& element : elements) entry_.additions.push_back({pathTo(*there.back()), std::move(element)});
  }

  ElementPath pathTo(const Element& element) const {
    ElementPath path;
    findPath(description_, element, path);
    return path;
  }

  static bool findPath(const Element& from, const Element& element, ElementPath& path) {
    if (&from == &element) return true;
    for (std::size_t i = 0; i < from.children.size(); ++i) {
      path.push_back(i);
      if (findPath(from.children[i], element, path)) return true;
      path.pop_back();
    }
    return false;
  }

  const Element& description_;
  const AddOptions& options_;
  std::wstring id_;
  const Element* character_ = nullptr;
  const Element* clothing_ = nullptr;
  NewEntry entry_;
};

}  // namespace

NewEntry planEntry(const Element& description, const AddOptions& options) {
  return Planner(description, options).run();
}

}  // namespace cli
