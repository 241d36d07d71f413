#include "apps/cli/author/NeededFiles.h"

#include <imtl.h>

#include <algorithm>

#include "apps/cli/author/RecordOf.h"
#include "core/Disk.h"
#include "host/files/Paths.h"
#include "host/formats/MaterialLibraryFile.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace cli {

using namespace ZORVEL::RepositoryFormat;

namespace {

namespace paths = ZORVEL::RepositoryPaths;

const char* const PAGE_PICTURE = "picture, 100 x 300 pixels";
const char* const STRIP_PICTURE = "picture, 110 x 330 pixels";
const char* const SQUARE_PICTURE = "picture, 150 x 150 pixels";

bool holds(const std::wstring& library, const std::wstring& material) {
  const host::MaterialLibraryContent content = host::readMaterialLibrary(library);
  return std::any_of(content.materials.begin(), content.materials.end(),
                     [&](const auto& one) { return material == one->GetName().data(); });
}

class Finder {
 public:
  Finder(const std::wstring& root, const Element& description, const NewEntry& entry)
      : root_(root), description_(description), entry_(entry), record_(entry.element) {}

  std::vector<NeededFile> run() {
    const std::vector<const Element*> characters = childrenOf(description_, ELEMENT_CHARACTER);
    const auto owner = std::find_if(characters.begin(), characters.end(),
                                    [this](const Element* one) { return one->text(FIELD_ID) == entry_.character; });
    if (owner != characters.end()) {
      character_ = *owner;
      folder_ = paths::Character(root_, character_->text(FIELD_FOLDER).c_str());
    }
    find();
    return std::move(files_);
  }

 private:
  void find() {
    switch (entry_.kind) {
      case EntryKind::Character:
        return findCharacter();
      case EntryKind::Clothing:
        return findClothing();
      case EntryKind::Pose:
        return findPose();
      case EntryKind::Skin:
        return findSkin();
      case EntryKind::Style: {
        const Element* clothing = find(ELEMENT_CLOTH, ELEMENT_CLOTHING, entry_.clothing);
        return findStyle(paths::Element(folder_, RecordOf(*clothing).get()), entry_.element);
      }
      case EntryKind::Asset:
      case EntryKind::SharedAsset:
        return findAsset();
      case EntryKind::Category:
      case EntryKind::AssetReference:
        return;
    }
  }

  void findCharacter() {
    const std::wstring folder = paths::Character(root_, entry_.element.text(FIELD_FOLDER).c_str());
    for (const std::wstring& needed : {paths::Previews(folder), paths::Skin(folder)}) {
      if (!ZORVEL::Disk::FolderExists(needed)) files_.push_back({needed, "folder, without which it is left out"});
    }
  }

  void findClothing() {
    const std::wstring folder = paths::Element(folder_, record_.get());
    need(paths::ClothPreview(folder_, record_.get()), STRIP_PICTURE);
    for (const Element* pose : all(ELEMENT_POSES, ELEMENT_POSE)) needWorn(entry_.element, *pose);
    for (const Element* style : childrenOf(entry_.element, ELEMENT_MATERIAL)) findStyle(folder, *style);
  }

  void findPose() {
    need(paths::BodyMesh(paths::Element(folder_, record_.get())), "mesh of the body");
    for (const Element* clothing : all(ELEMENT_CLOTH, ELEMENT_CLOTHING)) needWorn(*clothing, entry_.element);
    for (const Element* asset : all(ELEMENT_ASSETS, ELEMENT_ASSET)) {
      if (asset->text(FIELD_TYPE) == VALUE_SPECIFIC) needInPose(*asset, entry_.element);
    }
  }

  void findSkin() {
    need(paths::SkinPicture(folder_, record_.get()), SQUARE_PICTURE);
    needMaterial(paths::SkinLibrary(folder_), own(), entry_.element.text(FIELD_MATERIAL));
  }

  void findStyle(const std::wstring& folder, const Element& style) {
    need(paths::StylePicture(folder, RecordOf(style).get()), PAGE_PICTURE);
    needMaterial(paths::Library(folder), own(), style.text(FIELD_MATERIAL));
  }

  void findAsset() {
    const std::wstring folder = paths::Asset(root_, folder_, record_.get());
    const bool shared = entry_.kind == EntryKind::SharedAsset;
    if (entry_.element.text(FIELD_TYPE) == VALUE_SPECIFIC) {
      for (const Element* pose : all(ELEMENT_POSES, ELEMENT_POSE)) needInPose(entry_.element, *pose);
    } else {
      need(paths::AssetMesh(folder), "mesh");
    }
    need(paths::AssetPicture(folder), SQUARE_PICTURE);
    const std::vector<std::wstring> others = shared ? std::vector{paths::GlobalLibrary(root_)} : own();
    needMaterial(paths::Library(folder), others, entry_.element.text(FIELD_MATERIAL));
  }

  /// What the clothing needs to be worn in the pose.
  void needWorn(const Element& clothing, const Element& pose) {
    const std::wstring id = clothing.text(FIELD_ID);
    need(paths::PosePicture(folder_, id, RecordOf(pose).get()), PAGE_PICTURE);
    need(paths::ClothMesh(paths::Element(folder_, RecordOf(clothing).get()), id, pose.text(FIELD_ID)),
         "mesh of the clothing in the pose");
  }

  void needInPose(const Element& asset, const Element& pose) {
    need(paths::AssetMeshInPose(paths::Element(folder_, RecordOf(asset).get()), pose.text(FIELD_ID)),
         "mesh of the asset in the pose");
  }

  void need(const std::wstring& path, const std::string& what) {
    if (!ZORVEL::Disk::FileExists(path)) files_.push_back({path, what});
  }

  /// In the first library, unless one of those searched after it holds the material.
  void needMaterial(const std::wstring& library, const std::vector<std::wstring>& others,
                    const std::wstring& material) {
    const auto isIn = [&](const std::wstring& one) { return holds(one, material); };
    if (isIn(library) || std::any_of(others.begin(), others.end(), isIn)) return;
    files_.push_back({library, "library that holds the material \"" + host::toUtf8(material) + "\""});
  }

  std::vector<std::wstring> own() const { return {paths::CharacterLibrary(folder_), paths::PropsLibrary(folder_)}; }

  std::vector<const Element*> all(const wchar_t* list, const wchar_t* name) const {
    return entriesOf(*character_, list, name);
  }

  const Element* find(const wchar_t* list, const wchar_t* name, const std::wstring& id) const {
    const std::vector<const Element*> elements = all(list, name);
    return *std::find_if(elements.begin(), elements.end(),
                         [&](const Element* element) { return element->text(FIELD_ID) == id; });
  }

  std::wstring root_;
  const Element& description_;
  const NewEntry& entry_;
  RecordOf record_;
  const Element* character_ = nullptr;
  std::wstring folder_;
  std::vector<NeededFile> files_;
};

}  // namespace

std::vector<NeededFile> neededFiles(const std::wstring& root, const Element& description, const NewEntry& entry) {
  return Finder(root, description, entry).run();
}

}  // namespace cli
