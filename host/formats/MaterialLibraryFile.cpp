#include "host/formats/MaterialLibraryFile.h"

#include <filesystem>
#include <nlohmann/json.hpp>

#include "host/files/JsonBounds.h"
#include "host/files/Paths.h"
#include "host/files/RegularFile.h"
#include "host/formats/MaterialReader.h"
#include "host/formats/Unreadable.h"

namespace host {

namespace {

using Json = nlohmann::ordered_json;

constexpr int FORMAT_VERSION = 1;

std::string contentOf(RegularFile& file, std::size_t most) {
  if (!file.isOpen()) throw Unreadable("cannot be read");
  if (file.size() > LARGEST_LIBRARY) throw Unreadable("is too large for a material library");
  if (file.size() > most) throw Unreadable("is not read: too much was read for this build already");
  std::string content;
  content.reserve(static_cast<std::size_t>(file.size()) + 1);
  if (!file.readUpTo(LARGEST_LIBRARY, content)) throw Unreadable("cannot be read");
  return content;
}

std::vector<Ref<Mtl>> materialsIn(std::string_view text) {
  if (!isWithinBounds(text)) throw Unreadable("is too large for a material library");
  const Json document = Json::parse(text, nullptr, false);
  if (!document.is_object() || document.value("format", "") != "zorvel-material-library") {
    throw Unreadable("is no material library that this host reads");
  }
  if (document.value("version", Json()) != FORMAT_VERSION)
    throw Unreadable("has a version that this host does not read");
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

MaterialLibraryContent readMaterialLibrary(const std::wstring& path, std::size_t most) {
  return reading([&path, most](MaterialLibraryContent& content) {
    const std::filesystem::path file = resolvePath(path);
    std::error_code error;
    content.missing = !std::filesystem::exists(file, error);
    if (content.missing) {
      content.error = "does not exist";
    } else {
      RegularFile regular(file);
      const std::string text = contentOf(regular, most);
      content.size = text.size();
      content.materials = materialsIn(text);
    }
  });
}

MaterialLibraryContent readMaterialLibraryText(std::string_view text) {
  return reading([text](MaterialLibraryContent& content) { content.materials = materialsIn(text); });
}

}  // namespace host
