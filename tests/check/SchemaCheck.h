#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace support {

/// What of a JSON text is not as the schema says, as one line each with its place; empty when all is. Knows the
/// keywords that the project's schemas are written with, and complains of others.
std::string schemaErrors(const nlohmann::json& schema, const nlohmann::json& value);

}  // namespace support
