#include "check/rules/ContentRules.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "host/formats/MaterialWriter.h"
#include "model/LibrarySearches.h"
#include "model/PictureSize.h"
#include "model/RepositoryPaths.h"
#include "scene/TextureRedirection.h"

namespace check {

using ZORVEL::DiskEntry;
using ZORVEL::ElementKind;
using ZORVEL::LibrarySearch;
using ZORVEL::LibraryState;
using ZORVEL::MaterialState;

namespace {

std::string sizeText(int width, int height) { return std::to_string(width) + " x " + std::to_string(height); }

/// What is plausible for the largest extent, in centimetres.
struct Range {
  float least;
  float most;
  const char* subject;
};

Range plausible(ElementKind kind) {
  if (kind == ElementKind::Body) return {40.0F, 400.0F, "a body"};
  if (kind == ElementKind::Clothing) return {5.0F, 500.0F, "a clothing"};
  return {0.3F, 3000.0F, "an asset"};
}

std::string sizeText(const Point3& size) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text.precision(3);
  text << size.x << " x " << size.y << " x " << size.z;
  return text.str();
}

std::string contentOf(Mtl& material) { return host::MaterialWriter().material(&material).dump(); }

}  // namespace

void ContentRules::run(const std::function<void(std::size_t, std::size_t)>& progress) {
  want();
  contents_.read(progress);
  for (std::size_t i = 0; i < pictures_.size(); ++i) {
    if (pictures_[i] != nullptr) lookAtPicture(survey_.pictures[i], *pictures_[i]);
  }
  for (std::size_t i = 0; i < meshes_.size(); ++i) {
    if (meshes_[i] != nullptr) lookAtMesh(survey_.meshes[i], *meshes_[i]);
  }
  lookAtLibraries();
  for (const UsedMaterial& material : survey_.materials) lookAtMaterial(material);
  referToTextures();
  countClosed();
}

void ContentRules::want() {
  for (const ShownPicture& picture : survey_.pictures) pictures_.push_back(contents_.wantPicture(picture.path));
  for (const UsedMesh& mesh : survey_.meshes) meshes_.push_back(contents_.wantMesh(mesh.path));
  for (const UsedMaterial& material : survey_.materials) {
    for (const std::wstring& library : material.libraries) {
      if (wantedLibraries_.insert(library).second) contents_.wantLibrary(library);
    }
  }
}

void ContentRules::lookAtPicture(const ShownPicture& picture, const PictureContent& content) {
  const ZORVEL::PictureSize box = ZORVEL::PictureSize::OfBox(picture.page);
  if (content.form == Form::Open && content.size == QSize(box.width, box.height)) return;
  const std::string file = survey_.shown(picture.path);
  if (content.form == Form::Unreadable) {
    return survey_.findings.add(RuleId::FileUnreadable, picture.record, {file, content.problem});
  }
  if (content.form == Form::Damaged) {
    return survey_.findings.add(RuleId::PictureUnreadable, picture.record, {file, content.problem});
  }
  survey_.findings.add(RuleId::PictureSize, picture.record,
                       {file, sizeText(content.size.width(), content.size.height()), sizeText(box.width, box.height)});
}

void ContentRules::lookAtMesh(const UsedMesh& mesh, const MeshContent& content) {
  if (content.form == Form::Closed) return;
  const Point3 size = content.bounds.pmax - content.bounds.pmin;
  const float largest = std::max({size.x, size.y, size.z});
  const Range range = plausible(mesh.kind);
  if (content.form == Form::Open && largest >= range.least && largest <= range.most) return;
  const std::string file = survey_.shown(mesh.path);
  if (content.form == Form::Unreadable) {
    return survey_.findings.add(RuleId::FileUnreadable, mesh.record, {file, content.problem});
  }
  if (content.form == Form::Damaged) {
    return survey_.findings.add(RuleId::MeshUnreadable, mesh.record, {file, content.problem});
  }
  const std::string why = std::string(largest < range.least ? "very small for " : "very large for ") + range.subject;
  survey_.findings.add(RuleId::MeshSizeImplausible, mesh.record, {file, sizeText(size), why});
}

void ContentRules::lookAtLibraries() {
  for (const std::wstring& library : wantedLibraries_) {
    const std::string& problem = libraries_.problemOf(library);
    if (problem.empty()) continue;
    survey_.findings.addToFile(RuleId::LibraryUnreadable, survey_.shown(library), {survey_.shown(library), problem});
  }
}

/// Of all materials in the libraries, whether something is built with them or not.
void ContentRules::referToTextures() {
  const std::wstring maps = ZORVEL::RepositoryPaths::Maps(survey_.root);
  libraries_.forEachMaterial([&](Mtl& material) {
    for (const ZORVEL::RedirectedTexture& texture : ZORVEL::TextureRedirection::LookAhead(material, maps).textures) {
      survey_.files.Look(texture.to);
    }
  });
}

void ContentRules::countClosed() {
  if (contents_.closedMeshes() > 0) {
    survey_.findings.addToFile(RuleId::MeshNotChecked, "", {contents_.closedMeshes()});
  }
  if (contents_.closedLibraries() > 0) {
    survey_.findings.addToFile(RuleId::LibraryNotChecked, "", {contents_.closedLibraries()});
  }
}

void ContentRules::lookAtMaterial(const UsedMaterial& used) {
  const ZORVEL::MaterialResult result = ZORVEL::LibrarySearches::Run(
      used.name, used.libraries,
      [this](const std::wstring& file, const wchar_t* name) { return libraries_.look(file, name); });
  if (result.state == MaterialState::FromLibrary) return lookIntoMaterial(used, result.searches.back().file);
  // It may be in the one that cannot be read.
  const auto isUnknown = [this](const LibrarySearch& search) {
    return libraries_.isClosed(search.file) || !libraries_.problemOf(search.file).empty();
  };
  if (std::any_of(result.searches.begin(), result.searches.end(), isUnknown)) return;
  const RuleId rule = result.state == MaterialState::NameOfMap ? RuleId::MaterialIsMap : RuleId::MaterialNotFound;
  survey_.findings.add(rule, used.record, {used.name, describe(result.searches)});
}

std::string ContentRules::describe(const std::vector<LibrarySearch>& searches) const {
  std::string text;
  for (const LibrarySearch& search : searches) {
    if (!text.empty()) text += ", ";
    text += survey_.shown(search.file);
    if (search.state == LibraryState::NotLoaded) {
      text += survey_.files.Look(search.file) == DiskEntry::File ? " is unreadable" : " is not there";
    }
  }
  return text;
}

void ContentRules::lookIntoMaterial(const UsedMaterial& used, const std::wstring& library) {
  Mtl& material = *libraries_.find(library, used.name);
  compareWithOthers(used, library);
  lookAtTextures(used, material);
}

void ContentRules::compareWithOthers(const UsedMaterial& used, const std::wstring& library) {
  const auto [entry, isNew] = firsts_.try_emplace(used.name);
  First& first = entry->second;
  if (isNew) first.library = library;
  if (first.library == library || !comparedMaterials_.emplace(used.name, library).second) return;
  if (first.content.empty()) first.content = contentOf(*libraries_.find(first.library, used.name));
  if (contentOf(*libraries_.find(library, used.name)) == first.content) return;
  survey_.findings.add(RuleId::MaterialContentsDiffer, used.record,
                       {used.name, survey_.shown(library), survey_.shown(first.library)});
}

void ContentRules::lookAtTextures(const UsedMaterial& used, Mtl& material) {
  const ZORVEL::RedirectionOutlook outlook =
      ZORVEL::TextureRedirection::LookAhead(material, ZORVEL::RepositoryPaths::Maps(survey_.root));
  for (const ZORVEL::RedirectedTexture& texture : outlook.textures) {
    const std::string file = survey_.shown(texture.to);
    if (survey_.files.Look(texture.to) != DiskEntry::File) {
      survey_.findings.add(RuleId::TextureMissing, used.record, {used.name, file});
    }
    const FolderIndex::File* found = survey_.files.find(texture.to);
    if (found != nullptr && !found->isRegular) {
      survey_.findings.add(RuleId::FileUnreadable, used.record, {file, "it is no file"});
    }
    const auto [source, isNew] = textureSources_.emplace(texture.to, texture.from);
    // Once for each file.
    if (!isNew && source->second != texture.from && metTextures_.insert(texture.to).second) {
      survey_.findings.add(RuleId::TextureNamesMeet, used.record, {source->second, texture.from, file});
    }
  }
  if (outlook.hasOddLength) survey_.findings.add(RuleId::ScaledParameterOdd, used.record, {used.name, "is no length"});
  if (outlook.isScaledAgain) {
    survey_.findings.add(RuleId::ScaledParameterOdd, used.record,
                         {used.name, "is scaled once for each time that the part is used in it"});
  }
}

}  // namespace check
