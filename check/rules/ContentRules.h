#pragma once

#include <map>
#include <set>
#include <unordered_map>
#include <vector>

#include "check/Contents.h"
#include "check/rules/MaterialLibraryIndex.h"
#include "check/rules/Survey.h"

namespace check {

/// What is in the pictures, meshes and material libraries that the rules before have met.
class ContentRules {
 public:
  explicit ContentRules(Survey& survey)
      : survey_(survey), contents_(survey.files), libraries_(survey.files, contents_) {}

  void run(const std::function<void(std::size_t done, std::size_t known)>& progress);
  /// Those of the materials that the survey knows.
  MaterialLibraryIndex& libraries() { return libraries_; }

 private:
  void want();
  void lookAtPicture(const ShownPicture& picture, const PictureContent& content);
  void lookAtMesh(const UsedMesh& mesh, const MeshContent& content);
  void lookAtLibraries();
  void referToTextures();
  void countClosed();
  void lookAtMaterial(const UsedMaterial& material);
  void lookIntoMaterial(const UsedMaterial& used, const std::wstring& library);
  void compareWithOthers(const UsedMaterial& used, const std::wstring& library);
  void lookAtTextures(const UsedMaterial& used, Mtl& material);
  std::string describe(const std::vector<ZORVEL::LibrarySearch>& searches) const;

  /// Where a name is first met.
  struct First {
    std::wstring library;
    /// Of the material, as text; empty until another library has the name, too.
    std::string content;
  };

  Survey& survey_;
  Contents contents_;
  MaterialLibraryIndex libraries_;
  /// As in the survey; null for what is no file of the repository.
  std::vector<const PictureContent*> pictures_;
  std::vector<const MeshContent*> meshes_;
  std::set<std::wstring> wantedLibraries_;
  std::unordered_map<std::wstring, First> firsts_;
  /// Where each file of the folder of textures comes from.
  std::map<std::wstring, std::wstring> textureSources_;
  std::set<std::wstring> metTextures_;
  /// Name and library, each compared once with the first.
  std::set<std::pair<std::wstring, std::wstring>> comparedMaterials_;
};

}  // namespace check
