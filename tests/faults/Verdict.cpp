#include "tests/faults/Verdict.h"

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <nlohmann/json.hpp>

namespace support {

namespace {

bool endsWith(const std::string& text, const std::string& ending) {
  return text.size() >= ending.size() && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

bool isWholeGlb(const std::string& bytes) {
  std::uint32_t length = 0;
  if (bytes.size() < 12 || bytes.compare(0, 4, "glTF") != 0) return false;
  std::memcpy(&length, bytes.data() + 8, sizeof length);
  return length == bytes.size();
}

/// As far as the form of the file tells.
bool isWhole(const std::string& name, const std::string& bytes) {
  const std::string form = std::filesystem::path(name).extension().string();
  if (form == ".png") return endsWith(bytes, std::string("IEND\xAE\x42\x60\x82", 8));
  if (form == ".glb") return isWholeGlb(bytes);
  if (form == ".json" || form == ".sarif") return nlohmann::json::accept(bytes);
  if (form == ".xml") return endsWith(bytes, "</testsuites>\n");
  return endsWith(bytes, "\n");
}

std::string faultOfResults(const Ending& ending, const Ending& undisturbed) {
  for (const auto& [name, bytes] : ending.results) {
    if (undisturbed.results.count(name) == 0) return "left " + name + " among its results";
    if (!isWhole(name, bytes)) return "left " + name + " in part";
  }
  return ending.leftOver.empty() ? std::string() : "left over " + ending.leftOver.front();
}

bool isSame(const Ending& ending, const Ending& undisturbed) {
  return ending.out == undisturbed.out && ending.results == undisturbed.results;
}

}  // namespace

std::string faultOf(const Ending& ending, const Ending& undisturbed, Strictness strictness) {
  if (!ending.isInTime) return "did not end";
  if (ending.signal != 0) return "was ended by signal " + std::to_string(ending.signal);
  if (ending.status > 4) return "ended with status " + std::to_string(ending.status);
  const bool mayDiffer = strictness == Strictness::Whole;
  if (ending.status == 0 && !mayDiffer && !isSame(ending, undisturbed)) return "ended with status 0 and another result";
  if (ending.status != 0 && ending.err.empty() && ending.out.empty() && ending.results.empty()) return "said nothing";
  if (!ending.err.empty() && ending.err.back() != '\n') return "ended in the middle of a line";
  return faultOfResults(ending, undisturbed);
}

std::string faultOfEnded(const Ending& ending, const Ending& undisturbed, int signal, Strictness strictness) {
  if (ending.signal != signal && ending.status != 128 + signal) return faultOf(ending, undisturbed, strictness);
  return faultOfResults(ending, undisturbed);
}

}  // namespace support
