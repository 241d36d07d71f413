#include <cstdint>
#include <string>

#include "fuzz/Meshes.h"
#include "fuzz/Parts.h"
#include "fuzz/Targets.h"

namespace fuzz {

namespace {

constexpr std::uint32_t JSON_CHUNK = 0x4E4F534A;
constexpr std::uint32_t BINARY_CHUNK = 0x004E4942;

std::string number(std::size_t value) {
  const auto number = static_cast<std::uint32_t>(value);
  return {reinterpret_cast<const char*>(&number), sizeof number};
}

std::string chunk(std::uint32_t type, std::string_view content, char filler) {
  std::string padded(content);
  padded.resize((content.size() + 3) / 4 * 4, filler);
  return number(padded.size()) + number(type) + padded;
}

/// So that a changed JSON does not break the lengths around it.
std::string glbOf(std::string_view json, std::string_view binary) {
  std::string chunks = chunk(JSON_CHUNK, json, ' ');
  if (!binary.empty()) chunks += chunk(BINARY_CHUNK, binary, '\0');
  return "glTF" + number(2) + number(12 + chunks.size()) + chunks;
}

}  // namespace

void gltf(std::string_view bytes) {
  if (bytes.substr(0, 4) == "glTF") return readAndUseMesh(bytes);
  const auto [json, binary] = partsOf(bytes);
  readAndUseMesh(glbOf(json, binary));
}

}  // namespace fuzz
