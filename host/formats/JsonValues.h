#pragma once

#include <matrix3.h>

#include <nlohmann/json.hpp>

namespace host {

/// Four rows of three. JSON has no infinity: such a number becomes null.
nlohmann::ordered_json matrixJson(const Matrix3& tm);

// These throw what the JSON library throws.

Matrix3 matrixFrom(const nlohmann::ordered_json& json);
/// No number for null.
float floatFrom(const nlohmann::ordered_json& json);

}  // namespace host
