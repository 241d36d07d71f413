#include "host/formats/MaterialLibraryFile.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "host/files/JsonBounds.h"
#include "host/files/Paths.h"
#include "host/formats/MaterialReader.h"
#include "host/formats/Unreadable.h"

namespace host {

namespace {

using Json = nlohmann::ordered_json;

constexpr int FORMAT_VERSION = 1;
constexpr std::uintmax_t MAXIMUM_BYTES = 64U << 20U;

std::string contentOf(const std::filesystem::path& file) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) throw Unreadable("cannot be read (" + error.message() + ")");
  if (size > MAXIMUM_BYTES) throw Unreadable("is too large for a material library");
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream content;
  content << stream.rdbuf();
  if (!stream) throw Unreadable("cannot be read");
  return content.str();
}

std::vector<Ref<Mtl>> materialsIn(std::string_view text) {
  if (!isWithinBounds(text)) throw Unreadable("is too large for a material library");
  const Json document = Json::parse(text, nullptr, false);
  if (!document.is_object() || document.value("format", "") != "zorvel-material-library") {
    throw Unreadable("is no material library that this host reads");
  }
  if (document.value("version", Json()) != FORMAT_VERSION) throw Unreadable("has a version that this host does not read");
  std::vector<Ref<Mtl>> result;
  for (const Json& entry : document.at("materials")) {
    if (entry.is_object()) result.push_back(MaterialReader().material(entry));
  }
  return result;
}

/// Runs `read`, turning whatever it throws into the one line that the caller shows.
template <class Read>
MaterialLibraryContent reading(Read read) {
  MaterialLibraryContent content;
  try {
    read(content);
  } catch (const Json::exception& problem) {
    content.error = std::string("is damaged: ") + problem.what();
  } catch (const std::exception& problem) {
    content.error = problem.what();
  }
  return content;
}

}  // namespace

MaterialLibraryContent readMaterialLibrary(const std::wstring& path) {
  return reading([&path](MaterialLibraryContent& content) {
    const std::filesystem::path file = resolvePath(path);
    std::error_code error;
    content.missing = !std::filesystem::exists(file, error);
    if (content.missing) {
      content.error = "does not exist";
    } else {
      content.materials = materialsIn(contentOf(file));
    }
  });
}

MaterialLibraryContent readMaterialLibraryText(std::string_view text) {
  return reading([text](MaterialLibraryContent& content) { content.materials = materialsIn(text); });
}

}  // namespace host
