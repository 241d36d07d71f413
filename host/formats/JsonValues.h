#pragma once

#include <matrix3.h>

#include <limits>
#include <nlohmann/json.hpp>

#include "host/formats/Unreadable.h"

namespace host {

/// Four rows of three. JSON has no infinity: such a number becomes null.
nlohmann::ordered_json matrixJson(const Matrix3& tm);

// These throw Unreadable or what the JSON library throws. Numbers are refused where they do not fit, never cut off.

Matrix3 matrixFrom(const nlohmann::ordered_json& json);
/// No number for null.
float floatFrom(const nlohmann::ordered_json& json);

/// A whole number that the type can hold, however it is written.
template <class Integer>
Integer integerFrom(const nlohmann::ordered_json& json) {
  using Limits = std::numeric_limits<Integer>;
  // Doubles hold every bound up to 32 bits, and whatever is beyond stays beyond.
  static_assert(sizeof(Integer) <= 4, "a double cannot tell its bounds");
  const auto number = json.get<double>();
  const auto whole = number >= Limits::lowest() && number <= Limits::max() ? static_cast<Integer>(number) : Integer();
  if (static_cast<double>(whole) != number) throw Unreadable("a number is out of range: " + json.dump());
  return whole;
}

}  // namespace host
