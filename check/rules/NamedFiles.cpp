#include "check/rules/NamedFiles.h"

#include <algorithm>

#include "core/WindowsNames.h"
#include "model/DataContainer.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace check {

using ZORVEL::DataContainer;
using ZORVEL::XmlElement;
using namespace ZORVEL::RepositoryFormat;
namespace Paths = ZORVEL::RepositoryPaths;

namespace {

/// What a path takes besides its characters, in characters.
constexpr std::size_t PATH_WORK = 50;
/// A second or two; and what an ordinary repository needs for each of very many elements.
constexpr double LEAST_WORK = 3e8;
constexpr double WORK_OF_ELEMENT = 800;

/// With the attributes that files are named after, in whatever letter case they are written.
class Record : public DataContainer {
 public:
  explicit Record(const XmlElement& element) {
    for (int i = 0; i < element.attributeCount; ++i) {
      for (const wchar_t* field : {FIELD_ID, FIELD_FOLDER, FIELD_PREVIEW}) {
        const ZORVEL::XmlAttribute& attribute = element.attributes[i];
        if (ZORVEL::WindowsNames::AreAlike(attribute.name.GetText(), field))
          SetData(field, attribute.GetText().c_str());
      }
    }
  }
  bool has(const wchar_t* field) const { return CheckDatafield(field); }
};

template <class Visit>
void forEachChild(const XmlElement& element, Visit visit) {
  for (const XmlElement* child = element.firstChild; child != nullptr; child = child->nextSibling) visit(*child);
}

std::vector<std::wstring> idsOf(const std::vector<const XmlElement*>& elements) {
  std::vector<std::wstring> ids;
  for (const XmlElement* element : elements) {
    bool isThere = false;
    const Record record(*element);
    const wchar_t* id = record.has(FIELD_ID) ? record.GetData(FIELD_ID, isThere) : L"";
    ids.emplace_back(id);
  }
  return ids;
}

}  // namespace

NamedFiles::NamedFiles(Survey& survey)
    : survey_(survey),
      workLeft_(std::max(LEAST_WORK, WORK_OF_ELEMENT * survey.findings.description().elementCount())) {}

bool NamedFiles::refer() {
  const XmlElement* root = survey_.findings.description().root();
  if (root == nullptr) return true;
  for (const XmlElement* list : allNamed(*root, ELEMENT_GLOBAL_ASSETS)) referShared(*list);
  for (const XmlElement* character : allNamed(*root, ELEMENT_CHARACTER)) referCharacter(*character);
  return workLeft_ > 0;
}

void NamedFiles::refer(const std::wstring& file) {
  workLeft_ -= static_cast<double>(PATH_WORK + file.size());
  if (workLeft_ > 0) survey_.files.Look(file);
}

NamedFiles::Elements NamedFiles::allNamed(const XmlElement& element, const wchar_t* name) {
  Elements found;
  collect(element, name, found);
  return found;
}

void NamedFiles::collect(const XmlElement& element, const wchar_t* name, Elements& found) {
  forEachChild(element, [&](const XmlElement& child) {
    if (--workLeft_ <= 0) return;
    if (ZORVEL::WindowsNames::AreAlike(child.name, name)) found.push_back(&child);
    collect(child, name, found);
  });
}

void NamedFiles::referShared(const XmlElement& list) {
  refer(Paths::GlobalLibrary(survey_.root));
  for (const XmlElement* asset : allNamed(list, ELEMENT_ASSET)) {
    const Record record(*asset);
    if (record.has(FIELD_FOLDER)) referAssetFiles(*asset, Paths::GlobalAsset(survey_.root, &record));
  }
}

void NamedFiles::referCharacter(const XmlElement& character) {
  const Record record(character);
  bool isThere = false;
  if (!record.has(FIELD_FOLDER)) return;
  const std::wstring folder = Paths::Character(survey_.root, record.GetData(FIELD_FOLDER, isThere));
  const Elements poses = allNamed(character, ELEMENT_POSE);
  const std::vector<std::wstring> poseIds = idsOf(poses);
  for (const std::wstring& file : {Paths::SkinLibrary(folder), Paths::CharacterLibrary(folder),
                                   Paths::PropsLibrary(folder), Paths::AssetPicture(Paths::Previews(folder))}) {
    refer(file);
  }
  referPreviews(character, folder);
  for (const XmlElement* skin : allNamed(character, ELEMENT_SKIN)) {
    const Record preview(*skin);
    refer(Paths::SkinPicture(folder, &preview));
  }
  for (const XmlElement* pose : poses) {
    const Record one(*pose);
    refer(Paths::BodyMesh(Paths::Element(folder, &one)));
  }
  for (const XmlElement* clothing : allNamed(character, ELEMENT_CLOTHING)) {
    const Record one(*clothing);
    const std::wstring id = idsOf({clothing}).front();
    if (workLeft_ <= 0) return;
    for (const XmlElement* pose : poses) {
      const Record posed(*pose);
      refer(Paths::PosePicture(folder, id, &posed));
    }
    const std::wstring files = Paths::Element(folder, &one);
    for (const std::wstring& pose : poseIds) refer(Paths::ClothMesh(files, id, pose));
    refer(Paths::Library(files));
    referPictures(*clothing, files);
  }
  for (const XmlElement* asset : allNamed(character, ELEMENT_ASSET)) {
    const Record one(*asset);
    if (!one.has(FIELD_FOLDER)) continue;
    const std::wstring files = Paths::Element(folder, &one);
    referAssetFiles(*asset, files);
    if (workLeft_ <= 0) return;
    for (const std::wstring& pose : poseIds) refer(Paths::AssetMeshInPose(files, pose));
  }
}

/// Such a picture may be there for any element, though the window shows only those of clothes.
void NamedFiles::referPreviews(const XmlElement& element, const std::wstring& folder) {
  const Record record(element);
  refer(Paths::ClothPreview(folder, &record));
  forEachChild(element, [&](const XmlElement& child) { referPreviews(child, folder); });
}

void NamedFiles::referAssetFiles(const XmlElement& asset, const std::wstring& folder) {
  for (const std::wstring& file : {Paths::AssetMesh(folder), Paths::AssetPicture(folder), Paths::Library(folder)}) {
    refer(file);
  }
  referPictures(asset, folder);
}

void NamedFiles::referPictures(const XmlElement& element, const std::wstring& folder) {
  forEachChild(element, [&](const XmlElement& child) {
    const Record style(child);
    if (style.has(FIELD_PREVIEW)) refer(Paths::StylePicture(folder, &style));
  });
}

}  // namespace check
