#include "host/formats/JsonValues.h"

#include <cfloat>
#include <cmath>

namespace host {

nlohmann::ordered_json matrixJson(const Matrix3& tm) {
  nlohmann::ordered_json rows = nlohmann::ordered_json::array();
  for (int i = 0; i < 4; ++i) {
    const Point3 row = tm.GetRow(i);
    rows.push_back({row.x, row.y, row.z});
  }
  return rows;
}

float floatFrom(const nlohmann::ordered_json& json) {
  if (json.is_null()) return std::numeric_limits<float>::quiet_NaN();
  const auto number = json.get<double>();
  if (!(std::abs(number) <= FLT_MAX)) throw Unreadable("a number is out of range: " + json.dump());
  return static_cast<float>(number);
}

Matrix3 matrixFrom(const nlohmann::ordered_json& json) {
  Matrix3 tm(TRUE);
  for (int i = 0; i < 4; ++i) {
    const nlohmann::ordered_json& row = json.at(static_cast<std::size_t>(i));
    tm.SetRow(i, {floatFrom(row.at(0)), floatFrom(row.at(1)), floatFrom(row.at(2))});
  }
  return tm;
}

}  // namespace host
