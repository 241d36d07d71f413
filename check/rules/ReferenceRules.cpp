#include "check/rules/ReferenceRules.h"

#include <QString>
#include <map>

#include "apps/support/ModelText.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::Fields;
using namespace ZORVEL::RepositoryFormat;

namespace {

std::vector<std::string> assetIds(const CharacterData& character) {
  return apps::idsOf(apps::elementsOf(character, ZORVEL::ASSETS));
}

/// The record whose materials are offered.
const DataContainer& offeredRecord(const DataContainer& asset) {
  const DataContainer* shared = Data2::CheckAssetGlobal(&asset) ? Data2::GetGlobalAssetForAsset(&asset) : nullptr;
  return shared != nullptr ? *shared : asset;
}

/// How a person would look a name up: without regard to letter case, accents and blanks around it.
QString sortedAs(const DataContainer& record) {
  const QString name = QString::fromStdString(apps::field(&record, FIELD_NAME));
  QString key;
  for (const QChar c : name.trimmed().normalized(QString::NormalizationForm_KD)) {
    if (!c.isMark()) key += c.toCaseFolded();
  }
  return key;
}

}  // namespace

void ReferenceRules::run() {
  for (const CharacterData* character : apps::characters()) lookAtCharacter(*character);
  lookAtShared();
}

void ReferenceRules::lookAtCharacter(const CharacterData& character) {
  lookAtStandIns(character);
  lookAtClothingOrder(character);
  for (const DataContainer* clothing : apps::elementsOf(character, ZORVEL::CLOTH)) {
    lookAtExcludes(character, *clothing);
    lookAtSelects(character, *clothing);
    lookAtCategories(character, *clothing);
  }
}

void ReferenceRules::lookAtStandIns(const CharacterData& character) {
  std::map<const DataContainer*, const DataContainer*> first;
  for (const DataContainer* asset : apps::elementsOf(character, ZORVEL::ASSETS)) {
    if (!Data2::CheckAssetGlobal(asset)) continue;
    const wchar_t* id = Fields::OptionalText(asset, FIELD_GLOBAL_ID);
    const DataContainer* shared = Data2::GetGlobalAssetForAsset(asset);
    if (id == nullptr) {
      survey_.findings.add(RuleId::GlobalUnnamed, asset, {});
    } else if (shared == nullptr) {
      survey_.findings.add(RuleId::GlobalUnknown, asset,
                           {id, survey_.hintAt(id, [] { return apps::idsOf(apps::globalAssets()); })});
    } else {
      const auto [other, isNew] = first.emplace(shared, asset);
      if (!isNew) survey_.findings.add(RuleId::GlobalReferencedTwice, asset, {survey_.lineOf(other->second)});
      lookAtOwnFields(*asset, *shared);
    }
  }
}

void ReferenceRules::lookAtOwnFields(const DataContainer& asset, const DataContainer& shared) {
  for (const wchar_t* name : {FIELD_FOLDER, FIELD_MATERIAL}) {
    if (asset.CheckDatafield(name))
      survey_.findings.add(RuleId::ReferenceOwnFields, &asset, {std::wstring(L"\"") + name + L"\""});
  }
  const wchar_t* name = Fields::OptionalText(&asset, FIELD_NAME);
  if (name != nullptr && !Fields::Equals(&shared, FIELD_NAME, name)) {
    survey_.findings.add(RuleId::ReferenceOwnFields, &asset, {"\"name\""});
  }
  if (asset.GetChildCount() > 0) survey_.findings.add(RuleId::ReferenceOwnFields, &asset, {"materials"});
}

void ReferenceRules::lookAtExcludes(const CharacterData& character, const DataContainer& clothing) {
  for (const DataContainer* exclude : apps::clothChildren(clothing, ZORVEL::EXCLUDE)) {
    const wchar_t* id = Fields::OptionalText(exclude, FIELD_ID);
    if (id == nullptr) {
      survey_.findings.add(RuleId::ExcludeWithoutId, exclude, {});
    } else if (character.GetAsset(id) == nullptr && !survey_.isLost(character, EntryKind::Assets)) {
      survey_.findings.add(RuleId::ExcludeUnknown, exclude,
                           {id, survey_.hintAt(id, [&] { return assetIds(character); })});
    }
  }
}

void ReferenceRules::lookAtSelects(const CharacterData& character, const DataContainer& clothing) {
  for (const DataContainer* select : apps::clothChildren(clothing, ZORVEL::SELECT)) {
    lookAtSelect(character, clothing, *select);
  }
}

void ReferenceRules::lookAtSelect(const CharacterData& character, const DataContainer& clothing,
                                  const DataContainer& select) {
  const wchar_t* id = Fields::OptionalText(&select, FIELD_ASSET_ID);
  if (id == nullptr) return survey_.findings.add(RuleId::SelectWithoutAsset, &select, {});
  const DataContainer* asset = character.GetAsset(id);
  if (asset == nullptr && survey_.isLost(character, EntryKind::Assets)) return;
  if (asset == nullptr) {
    return survey_.findings.add(RuleId::SelectUnknownAsset, &select,
                                {id, survey_.hintAt(id, [&] { return assetIds(character); })});
  }
  if (character.IsAssetExcludedByCloth(&clothing, asset)) {
    return survey_.findings.add(RuleId::SelectExcluded, &select, {id});
  }
  lookAtMaterial(select, *asset);
}

void ReferenceRules::lookAtMaterial(const DataContainer& select, const DataContainer& asset) {
  const auto materials = apps::childrenOf(offeredRecord(asset));
  if (materials.empty()) return;
  const wchar_t* id = Fields::OptionalText(&select, FIELD_MATERIAL_ID);
  if (id == nullptr) {
    const std::wstring assetId = Fields::TextOrEmpty(&select, FIELD_ASSET_ID);
    return survey_.findings.add(RuleId::SelectWithoutMaterial, &select, {assetId});
  }
  for (const DataContainer* material : materials) {
    if (Fields::Equals(material, FIELD_ID, id)) return;
  }
  survey_.findings.add(RuleId::SelectUnknownMaterial, &select,
                       {id, survey_.hintAt(id, [&] { return apps::idsOf(materials); })});
}

/// What becomes of several selects when the categories take their choices one after the other.
void ReferenceRules::lookAtCategories(const CharacterData& character, const DataContainer& clothing) {
  std::map<const DataContainer*, std::set<std::wstring>> selected;
  std::map<const DataContainer*, const DataContainer*> shared;
  for (const DataContainer* select : apps::clothChildren(clothing, ZORVEL::SELECT)) {
    const std::wstring id = Fields::TextOrEmpty(select, FIELD_ASSET_ID);
    const DataContainer* asset = character.GetAsset(id.c_str());
    const DataContainer* category = character.GetCategory(asset);
    if (category == nullptr || character.IsAssetExcludedByCloth(&clothing, asset)) continue;
    selected[category].insert(id + L"/" + Fields::TextOrEmpty(select, FIELD_MATERIAL_ID));
    if (&offeredRecord(*asset) != asset) shared.emplace(category, select);
    if (selected[category].size() == 2 && !CharacterData::IsMultiple(category)) {
      survey_.findings.add(RuleId::SelectsInOneCategory, select, {Fields::TextOrEmpty(category, FIELD_NAME)});
    }
  }
  const DataContainer* dropped = nullptr;
  for (const DataContainer* category : apps::elementsOf(character, ZORVEL::CATEGORIES)) {
    const bool chooses = selected.count(category) > 0 || CharacterData::IsRequired(category);
    if (dropped != nullptr && chooses && !CharacterData::IsMultiple(category)) {
      survey_.findings.add(RuleId::SelectedGlobalDropped, dropped, {Fields::TextOrEmpty(category, FIELD_NAME)});
      return;
    }
    const auto found = shared.find(category);
    if (found != shared.end()) dropped = found->second;
  }
}

void ReferenceRules::lookAtClothingOrder(const CharacterData& character) {
  const auto clothes = apps::elementsOf(character, ZORVEL::CLOTH);
  for (std::size_t i = 1; i < clothes.size(); ++i) {
    if (sortedAs(*clothes[i]) >= sortedAs(*clothes[i - 1])) continue;
    survey_.findings.add(
        RuleId::ClothingOrder, clothes[i],
        {Fields::TextOrEmpty(clothes[i], FIELD_NAME), Fields::TextOrEmpty(clothes[i - 1], FIELD_NAME)});
  }
}

void ReferenceRules::lookAtShared() {
  std::set<const DataContainer*> used;
  for (const CharacterData* character : apps::characters()) {
    for (const DataContainer* asset : apps::elementsOf(*character, ZORVEL::ASSETS)) {
      if (Data2::CheckAssetGlobal(asset)) used.insert(Data2::GetGlobalAssetForAsset(asset));
    }
  }
  // What refers to one may be among what was left out or is misspelt.
  const bool isKnown = !survey_.findings.hasAny(
      {RuleId::CharacterWithoutAttributes, RuleId::CharacterFolderUnnamed, RuleId::CharacterPreviewsMissing,
       RuleId::CharacterSkinFolderMissing, RuleId::ElementLetterCase, RuleId::MisplacedElement, RuleId::UnknownElement,
       RuleId::AttributeLetterCase, RuleId::TypeSpelling, RuleId::GlobalUnnamed, RuleId::GlobalUnknown});
  for (const DataContainer* shared : apps::globalAssets()) {
    if (!Data2::CheckAssetGlobal(shared)) survey_.findings.add(RuleId::GlobalWithoutType, shared, {});
    const bool isFirst = Data2::FindGlobalAssetById(Fields::OptionalText(shared, FIELD_ID)) == shared;
    if (isKnown && isFirst && used.count(shared) == 0) survey_.findings.add(RuleId::GlobalUnreferenced, shared, {});
  }
}

}  // namespace check
