#include <nlohmann/json.hpp>

#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "host/formats/MaterialLibraryFile.h"
#include "host/formats/MaterialWriter.h"
#include "host/services/Listener.h"
#include "host/view/Surfaces.h"

namespace fuzz {

namespace {

std::string written(const std::vector<host::Ref<Mtl>>& materials) {
  nlohmann::ordered_json json = {{"format", "zorvel-material-library"}, {"version", 1}};
  json["materials"] = nlohmann::ordered_json::array();
  for (const host::Ref<Mtl>& one : materials) json["materials"].push_back(host::MaterialWriter().material(one.get()));
  return json.dump();
}

}  // namespace

void materials(std::string_view bytes) {
  const host::MaterialLibraryContent read = host::readMaterialLibraryText(bytes);
  require(read.error.empty() || read.materials.empty(), "either materials or a reason");
  for (const host::Ref<Mtl>& one : read.materials) host::surfacesOf(one.get());
  host::Listener::instance().clear();
  if (!read.error.empty()) return;
  const std::string text = written(read.materials);
  const host::MaterialLibraryContent again = host::readMaterialLibraryText(text);
  require(again.error.empty(), "a library that was written is read");
  require(written(again.materials) == text, "a library that was written is the same when it is read");
}

}  // namespace fuzz
