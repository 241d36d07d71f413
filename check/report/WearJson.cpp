#include <nlohmann/json.hpp>

#include "check/report/WearReport.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

using WearJsonValue = nlohmann::ordered_json;

void setUnlessEmpty(WearJsonValue& json, const char* key, const std::string& text) {
  if (!text.empty()) json[key] = text;
}

WearJsonValue jsonOf(const WearCell& cell, const std::string& pose) {
  WearJsonValue json;
  json["pose"] = pose;
  json["state"] = nameOf(cell.state);
  setUnlessEmpty(json, "code", cell.code);
  setUnlessEmpty(json, "reason", cell.reason);
  setUnlessEmpty(json, "file", cell.file);
  return json;
}

WearJsonValue jsonOf(const WearTable& table) {
  WearJsonValue json;
  json["id"] = table.character;
  json["element"] = table.element;
  setUnlessEmpty(json, "leftOut", table.whyNone);
  json["poses"] = table.poses;
  json["clothes"] = WearJsonValue::array();
  for (const WearRow& row : table.rows) {
    WearJsonValue cells = WearJsonValue::array();
    for (std::size_t i = 0; i < row.cells.size(); ++i) cells.push_back(jsonOf(row.cells[i], table.poses[i]));
    json["clothes"].push_back({{"id", row.clothing}, {"element", row.element}, {"cells", cells}});
  }
  return json;
}

}  // namespace

std::string wearJson(const std::vector<JudgedRepository>& repositories) {
  WearJsonValue json;
  json["format"] = "zorvel-check-matrix";
  json["version"] = 1;
  json["repositories"] = WearJsonValue::array();
  for (const JudgedRepository& repository : repositories) {
    WearJsonValue one;
    one["root"] = host::printable(repository.result.root);
    one["readable"] = repository.result.isReadable;
    one["failed"] = repository.hasFailed;
    one["characters"] = WearJsonValue::array();
    for (const WearTable& table : repository.result.wear) one["characters"].push_back(jsonOf(table));
    json["repositories"].push_back(one);
  }
  return json.dump(2) + '\n';
}

}  // namespace check
