#include "check/explain/MaterialSteps.h"

#include <algorithm>

#include "apps/support/ModelText.h"
#include "host/files/Paths.h"
#include "model/LibrarySearches.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "scene/TextureRedirection.h"

namespace check {

using ZORVEL::DiskEntry;
using ZORVEL::LibrarySearch;
using ZORVEL::MaterialState;

namespace {

const char* const MATERIAL_TOPIC = "material";

}  // namespace

void MaterialSteps::add(const ZORVEL::DataContainer& record, const std::string& owner) {
  const auto& all = survey_.materials;
  const auto used =
      std::find_if(all.begin(), all.end(), [&](const UsedMaterial& one) { return one.record == &record; });
  if (used != all.end()) return add(*used, owner);
  const std::string name = apps::field(&record, ZORVEL::RepositoryFormat::FIELD_MATERIAL);
  if (name.empty()) return steps_.bad(MATERIAL_TOPIC, owner + "none is named");
  steps_.note(MATERIAL_TOPIC, owner + '"' + name + "\" is never asked for");
}

void MaterialSteps::add(const UsedMaterial& used, const std::string& owner) {
  const ZORVEL::MaterialResult result = ZORVEL::LibrarySearches::Run(
      used.name, used.libraries,
      [this](const std::wstring& file, const wchar_t* name) { return libraries_.look(file, name); });
  const bool isFound = result.state == MaterialState::FromLibrary;
  std::string searched;
  for (const LibrarySearch& search : result.searches) {
    if (isFound && &search == &result.searches.back()) break;
    searched += (searched.empty() ? "" : ", ") + describe(search.file);
  }
  const std::string name = owner + '"' + host::toUtf8(used.name) + '"';
  if (isFound) {
    const std::wstring& library = result.searches.back().file;
    steps_.good(MATERIAL_TOPIC, name + " from " + survey_.shown(library) +
                                    (searched.empty() ? "" : " (before it searched: " + searched + ")"));
    return addTextures(used, library);
  }
  const bool isMap = result.state == MaterialState::NameOfMap;
  steps_.bad(MATERIAL_TOPIC, name + (isMap ? " is only the name of a map in " : " is in none of ") + searched);
}

void MaterialSteps::addTextures(const UsedMaterial& used, const std::wstring& library) {
  const ZORVEL::RedirectionOutlook outlook = ZORVEL::TextureRedirection::LookAhead(
      *libraries_.find(library, used.name), ZORVEL::RepositoryPaths::Maps(survey_.root));
  std::string there;
  for (const ZORVEL::RedirectedTexture& texture : outlook.textures) {
    const std::string file = survey_.shown(texture.to);
    if (survey_.files.Look(texture.to) == DiskEntry::File) {
      there += (there.empty() ? "" : ", ") + file;
    } else {
      steps_.bad("textures", "there is no " + file);
    }
  }
  if (!there.empty()) steps_.good("textures", there);
}

std::string MaterialSteps::describe(const std::wstring& library) {
  const std::string file = survey_.shown(library);
  if (survey_.files.Look(library) != DiskEntry::File) return file + " (not there)";
  if (libraries_.isClosed(library)) return file + " (only 3ds Max reads it)";
  return libraries_.problemOf(library).empty() ? file : file + " (unreadable)";
}

}  // namespace check
