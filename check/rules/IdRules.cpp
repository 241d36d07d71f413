#include "check/rules/IdRules.h"

#include <map>

#include "apps/support/ModelText.h"
#include "core/WindowsNames.h"
#include "host/files/NameCase.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using ZORVEL::Fields;
using namespace ZORVEL::RepositoryFormat;

namespace {

RuleId duplicateRule(EntryKind kind) {
  switch (kind) {
    case EntryKind::Asset:
      return RuleId::AssetIdDuplicate;
    case EntryKind::Category:
      return RuleId::CategoryIdDuplicate;
    case EntryKind::SharedAsset:
      return RuleId::GlobalIdDuplicate;
    default:
      return RuleId::IdDuplicate;
  }
}

/// With this id the pictures in poses are named like those of whole clothes.
const wchar_t* const PREVIEW_ID = L"preview";

std::string inPose(const std::wstring& clothing, const std::wstring& pose) {
  return "clothing \"" + host::toUtf8(clothing) + "\" in pose \"" + host::toUtf8(pose) + '"';
}

/// Whether files are named after the id: of the others none is in danger of being another's.
bool namesFiles(EntryKind kind) { return kind == EntryKind::Clothing || kind == EntryKind::Pose; }

}  // namespace

void IdRules::run() {
  const std::vector<CharacterData*> characters = apps::characters();
  lookAt(Records(characters.begin(), characters.end()), EntryKind::Character);
  lookAt(apps::globalAssets(), EntryKind::SharedAsset);
  for (const CharacterData* character : characters) lookAtCharacter(*character);
}

void IdRules::lookAtCharacter(const CharacterData& character) {
  lookAt(apps::elementsOf(character, ZORVEL::SKINS), EntryKind::Skin);
  lookAt(apps::elementsOf(character, ZORVEL::CLOTH), EntryKind::Clothing);
  lookAt(apps::elementsOf(character, ZORVEL::POSES), EntryKind::Pose);
  lookAt(apps::elementsOf(character, ZORVEL::CATEGORIES), EntryKind::Category);
  lookAt(apps::elementsOf(character, ZORVEL::ASSETS), EntryKind::Asset);
  for (const DataContainer* cloth : apps::elementsOf(character, ZORVEL::CLOTH)) {
    lookAt(apps::clothChildren(*cloth, ZORVEL::MATERIAL), EntryKind::Style);
  }
  lookAtFileNames(character);
}

void IdRules::lookAt(const Records& records, EntryKind kind) {
  std::map<std::wstring, const DataContainer*> known;
  std::map<std::wstring, const DataContainer*> folded;
  for (const DataContainer* record : records) {
    const wchar_t* id = Fields::OptionalText(record, FIELD_ID);
    if (id == nullptr || *id == L'\0') {
      lookAtMissing(*record, kind);
      continue;
    }
    const auto [first, isNew] = known.emplace(id, record);
    const auto [alike, isAlone] = folded.emplace(host::inCapitals(id), record);
    if (!isNew) {
      survey_.findings.add(duplicateRule(kind), record,
                           duplicateRule(kind) == RuleId::IdDuplicate
                               ? std::vector<Value>{wordFor(kind), survey_.lineOf(first->second)}
                               : std::vector<Value>{survey_.lineOf(first->second)});
    } else if (!isAlone && namesFiles(kind)) {
      const wchar_t* other = Fields::OptionalText(alike->second, FIELD_ID);
      survey_.findings.add(RuleId::IdsDifferInCase, record, {other, survey_.lineOf(alike->second)});
    }
    const ZORVEL::NameRefusal refusal = ZORVEL::WindowsNames::WhyRefused(id);
    if (namesFiles(kind) && refusal.fault != ZORVEL::NameFault::None) {
      survey_.findings.add(RuleId::NameRefusedByWindows, record, {FIELD_ID, id, refusal.GetText()});
    }
  }
}

void IdRules::lookAtMissing(const DataContainer& record, EntryKind kind) {
  const bool isThere = Fields::OptionalText(&record, FIELD_ID) != nullptr;
  switch (kind) {
    case EntryKind::Category:
      if (!isThere) survey_.findings.add(RuleId::CategoryWithoutId, &record, {});
      return;
    case EntryKind::Character:
    case EntryKind::Clothing:
      return survey_.findings.add(isThere ? RuleId::IdEmpty : RuleId::IdMissing, &record, {wordFor(kind)});
    case EntryKind::Skin:
    case EntryKind::Pose:
    case EntryKind::Style:
      return survey_.findings.add(isThere ? RuleId::IdEmpty : RuleId::ChoiceIdMissing, &record, {wordFor(kind)});
    case EntryKind::SharedAsset:
      if (!isThere) survey_.findings.add(RuleId::AssetUnbuildable, &record, {FIELD_ID});
      return;
    default:
      return;  // an asset without an id is told where it would be built
  }
}

/// The picture of a clothing in the strip has a name like those of clothes in poses.
void IdRules::lookAtPreviewNames(const CharacterData& character, const std::wstring& folder) {
  for (const DataContainer* pose : apps::elementsOf(character, ZORVEL::POSES)) {
    const std::wstring id = Fields::TextOrEmpty(pose, FIELD_ID);
    const DataContainer* cloth = character.GetCloth(PREVIEW_ID);
    const DataContainer* other = character.GetCloth(id.c_str());
    if (cloth == nullptr || other == nullptr) continue;
    survey_.findings.add(RuleId::FileNamesMeet, cloth,
                         {inPose(PREVIEW_ID, id), "clothing \"" + apps::field(other, FIELD_ID) + "\" by itself",
                          survey_.shown(ZORVEL::RepositoryPaths::ClothPreview(folder, other))});
  }
}

/// Clothing and pose together name files: different pairs may name the same.
void IdRules::lookAtFileNames(const CharacterData& character) {
  struct Pair {
    std::wstring clothing;
    std::wstring pose;
  };
  const auto poses = apps::elementsOf(character, ZORVEL::POSES);
  std::map<std::wstring, Pair> files;
  for (const DataContainer* cloth : apps::elementsOf(character, ZORVEL::CLOTH)) {
    const std::wstring clothing = Fields::TextOrEmpty(cloth, FIELD_ID);
    // Only an id with the sign between the two can be taken for another pair's.
    if (clothing.find(COMBINED) == std::wstring::npos) continue;
    for (const DataContainer* pose : poses) {
      const Pair pair = {clothing, Fields::TextOrEmpty(pose, FIELD_ID)};
      files.emplace(pair.clothing + COMBINED + pair.pose, pair);
    }
  }
  const std::wstring folder = Fields::TextOrEmpty(&character, FIELD_FOLDER);
  lookAtPreviewNames(character, folder);
  if (files.empty()) return;
  for (const DataContainer* cloth : apps::elementsOf(character, ZORVEL::CLOTH)) {
    const std::wstring clothing = Fields::TextOrEmpty(cloth, FIELD_ID);
    for (const DataContainer* pose : poses) {
      const std::wstring poseId = Fields::TextOrEmpty(pose, FIELD_ID);
      const auto other = files.find(clothing + COMBINED + poseId);
      if (other == files.end() || other->second.clothing == clothing) continue;
      survey_.findings.add(RuleId::FileNamesMeet, cloth,
                           {inPose(clothing, poseId), inPose(other->second.clothing, other->second.pose),
                            survey_.shown(ZORVEL::RepositoryPaths::PosePicture(folder, clothing, pose))});
    }
  }
}

}  // namespace check
