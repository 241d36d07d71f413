#include "check/explain/WearerSteps.h"

#include <algorithm>

#include "apps/support/ModelText.h"
#include "check/explain/AssetOffers.h"
#include "check/explain/MaterialSteps.h"
#include "host/files/Paths.h"
#include "model/Fields.h"
#include "model/MeshFiles.h"
#include "model/PiecePlans.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using ZORVEL::Fields;
using ZORVEL::MeshState;
using namespace ZORVEL::RepositoryFormat;

namespace {

/// Where it stands in its list.
std::size_t indexIn(const std::vector<DataContainer*>& records, const DataContainer& record) {
  return static_cast<std::size_t>(std::find(records.begin(), records.end(), &record) - records.begin());
}

bool buildsIn(const std::pair<std::string, const WearCell*>& cell) { return cell.second->state == WearState::Builds; }

std::string verdictOn(std::size_t count, const std::string& where) {
  return count > 0 ? "offered and built " + where : "never built";
}

}  // namespace

WearerSteps::WearerSteps(const Survey& survey, MaterialLibraryIndex& libraries, const std::vector<Finding>& findings,
                         const CharacterData& character, Steps& steps)
    : survey_(survey),
      libraries_(libraries),
      findings_(findings),
      character_(character),
      steps_(steps),
      table_(WearTables(survey, findings).tableOf(character)) {}

Outcome WearerSteps::addCharacter() {
  const auto skins = apps::elementsOf(character_, ZORVEL::SKINS);
  const AssetOffers offers(survey_, character_);
  const auto shown = std::count_if(skins.begin(), skins.end(),
                                   [&offers](const DataContainer* skin) { return offers.whyNotSkin(*skin).empty(); });
  steps_.count("skins", static_cast<std::size_t>(shown), skins.size(), "", "are shown");
  std::size_t building = 0;
  std::size_t all = 0;
  for (const WearRow& row : table_.rows) {
    const auto count = std::count_if(row.cells.begin(), row.cells.end(),
                                     [](const WearCell& cell) { return cell.state == WearState::Builds; });
    steps_.count("clothing", static_cast<std::size_t>(count), row.cells.size(), row.clothing + " builds in ", "poses");
    building += static_cast<std::size_t>(count);
    all += row.cells.size();
  }
  return {building > 0,
          building > 0 ? "offered, and " + ofAll(building, all, "clothes in poses build") : "never built"};
}

Outcome WearerSteps::addClothing(const DataContainer& clothing) {
  addStrip(clothing);
  const Cells cells = rowOf(clothing);
  const std::size_t building = addCells(cells, "poses", "poses");
  for (const DataContainer* style : apps::clothChildren(clothing, ZORVEL::MATERIAL)) {
    MaterialSteps(survey_, libraries_, steps_).add(*style, "style " + apps::field(style, FIELD_ID) + ": ");
  }
  return {building > 0, verdictOn(building, "in " + ofAll(building, cells.size(), "poses"))};
}

Outcome WearerSteps::addStyle(const DataContainer& clothing, const DataContainer& style) {
  const std::wstring folder = Fields::TextOrEmpty(&character_, FIELD_FOLDER);
  addPicture(style, ZORVEL::RepositoryPaths::StylePicture(ZORVEL::RepositoryPaths::Element(folder, &clothing), &style));
  MaterialSteps(survey_, libraries_, steps_).add(style, "");
  const Cells cells = rowOf(clothing);
  const std::size_t building = addCells(cells, "clothing", "poses");
  return {building > 0 && canBeChosen(style), canBeChosen(style)
                                                  ? verdictOn(building, "in " + ofAll(building, cells.size(), "poses"))
                                                  : "shown, and cannot be chosen"};
}

Outcome WearerSteps::addSkin(const DataContainer& skin) {
  const std::wstring folder = Fields::TextOrEmpty(&character_, FIELD_FOLDER);
  addPicture(skin, ZORVEL::RepositoryPaths::SkinPicture(folder, &skin));
  MaterialSteps(survey_, libraries_, steps_).add(skin, "");
  const std::string whyNot = AssetOffers(survey_, character_).whyNotSkin(skin);
  steps_.unless(whyNot, "page", "it is shown");
  if (!whyNot.empty()) return {false, "not offered"};
  if (!canBeChosen(skin)) return {false, "shown, and cannot be chosen"};
  return {true, "offered and built"};
}

Outcome WearerSteps::addPose(const DataContainer& pose) {
  addBody(pose);
  addMandatory(pose);
  const Cells cells = columnOf(pose);
  const std::size_t building = addCells(cells, "clothes", "clothes");
  return {building > 0, verdictOn(building, "with " + ofAll(building, cells.size(), "clothes"))};
}

WearerSteps::Cells WearerSteps::rowOf(const DataContainer& clothing) const {
  const WearRow& row = table_.rows[indexIn(apps::elementsOf(character_, ZORVEL::CLOTH), clothing)];
  Cells cells;
  for (std::size_t i = 0; i < row.cells.size(); ++i) cells.emplace_back(table_.poses[i], &row.cells[i]);
  return cells;
}

WearerSteps::Cells WearerSteps::columnOf(const DataContainer& pose) const {
  const std::size_t index = indexIn(apps::elementsOf(character_, ZORVEL::POSES), pose);
  Cells cells;
  for (const WearRow& row : table_.rows) cells.emplace_back(row.clothing, &row.cells[index]);
  return cells;
}

std::size_t WearerSteps::addCells(const Cells& cells, const char* topic, const char* noun) {
  const auto building = static_cast<std::size_t>(std::count_if(cells.begin(), cells.end(), buildsIn));
  steps_.count(topic, building, cells.size(), "builds in ", noun);
  std::map<std::string, std::vector<std::string>> places;
  std::vector<std::string> reasons;
  for (const auto& [name, cell] : cells) {
    if (cell->state == WearState::Builds) continue;
    const std::string reason = std::string(": ") + nameOf(cell->state) + ", " + cell->reason;
    if (places[reason].empty()) reasons.push_back(reason);
    places[reason].push_back(name);
  }
  for (const std::string& reason : reasons) {
    const std::vector<std::string>& in = places[reason];
    steps_.bad(topic, (in.size() == 1 ? in.front() : std::to_string(in.size()) + ' ' + noun) + reason);
  }
  return building;
}

void WearerSteps::addStrip(const DataContainer& clothing) {
  ZORVEL::FileStamps stamps;
  const ZORVEL::PageOffer strip = ZORVEL::PageOffers(character_, stamps).GetClothing();
  for (const ZORVEL::OfferedElement& element : strip.shown) {
    if (element.record != &clothing) continue;
    steps_.good("strip", survey_.shown(element.picturePath) + (element.IsAvailable() ? "" : ", as not available"));
  }
  for (const ZORVEL::OfferedElement& element : strip.hidden) {
    if (element.record == &clothing) steps_.bad("strip", survey_.reasonOf(element.refusal));
  }
}

void WearerSteps::addBody(const DataContainer& pose) {
  const ZORVEL::PiecePlan plan = ZORVEL::PiecePlans(character_, survey_.root).Body(pose, nullptr);
  if (!plan.canBeBuilt) return steps_.bad("body", "it has no \"" + host::toUtf8(plan.omission.subject) + '"');
  const std::string file = survey_.shown(plan.meshFile);
  const MeshState state = ZORVEL::MeshFiles::Look(plan.meshFile);
  steps_.unless(state == MeshState::Missing      ? "there is no mesh " + file
                : state == MeshState::Unreadable ? file + " cannot be read"
                                                 : "",
                "body", file);
}

void WearerSteps::addMandatory(const DataContainer& pose) {
  for (const DataContainer* entry : apps::childrenOf(pose)) {
    const auto& here = findings_.at(survey_.elementOf(entry));
    steps_.unless(here.empty() ? "" : here.front()->message, "asks for", apps::field(entry, FIELD_ID));
  }
}

void WearerSteps::addPicture(const DataContainer& record, const std::wstring& path) {
  if (Fields::TextOrEmpty(&record, FIELD_PREVIEW).empty()) return steps_.bad("picture", "none is named");
  const std::string file = survey_.shown(path);
  const bool isThere = survey_.files.Look(path) == ZORVEL::DiskEntry::File;
  steps_.unless(isThere ? "" : "there is no picture " + file, "picture", file);
}

bool WearerSteps::canBeChosen(const DataContainer& record) const {
  return findings_.findAny(survey_.elementOf(&record),
                           {RuleId::ChoiceIdMissing, RuleId::IdEmpty, RuleId::IdDuplicate}) == nullptr;
}

}  // namespace check
