#include "model/PageOffers.h"

#include <algorithm>
#include <utility>

#include "core/Debug.h"
#include "core/FileStamps.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/RepositoryValidation.h"
#include "model/Selection2.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

std::wstring FolderOf(const CharacterData& character) { return Fields::TextOrEmpty(&character, FIELD_FOLDER); }

std::wstring NameOf(const DataContainer* record) { return Fields::TextOrEmpty(record, FIELD_NAME); }

PageOffer MakePage(PageKind kind, const wchar_t* title) {
  PageOffer page;
  page.kind = kind;
  page.title = title ? title : L"";
  return page;
}

OfferedElement Describe(const DataContainer* record, std::wstring picturePath) {
  OfferedElement element;
  element.record = record;
  element.unique = Data2::GetUnique(record);
  element.text = NameOf(record);
  element.picturePath = std::move(picturePath);
  return element;
}

void Hide(PageOffer& page, OfferedElement element, Refusal refusal) {
  element.refusal = std::move(refusal);
  page.hidden.push_back(std::move(element));
}

/// Available ones first, each group in the order of insertion.
void ShowByAvailability(PageOffer& page, OfferedElement element) {
  const auto isAvailable = [](const OfferedElement& one) { return one.IsAvailable(); };
  const auto end = page.shown.end();
  const auto place = element.IsAvailable() ? std::partition_point(page.shown.begin(), end, isAvailable) : end;
  page.shown.insert(place, std::move(element));
}

std::wstring Quoted(const std::wstring& text) { return L"\"" + text + L"\""; }

Refusal WhyNotListed(const ListedAsset& listed, const CharacterData& character) {
  const std::wstring id = Fields::TextOrEmpty(listed.asset, FIELD_ID);
  // The stronger reason where both hold: no other pose would help.
  const bool excluded = character.IsAssetExcludedByCloth(character.GetCloth(Selection2::GetCloth()), listed.asset);
  if (excluded) return Refusal(WhyNot::Excluded, id);
  const wchar_t* pose = Selection2::GetPose();
  return Refusal(WhyNot::NoMatrixRow, L"pose " + Quoted(pose ? pose : L"") + L" and asset " + Quoted(id));
}

/// Of a list that takes one choice.
void ChooseFirstAvailable(PageOffer& page) {
  if (!page.shown.empty() && page.shown.front().IsAvailable()) page.choice.push_back(page.shown.front().unique);
}

/// Whether the clothing can be worn in the pose decides for all elements of a page alike.
void TakeAvailability(OfferedElement& element, const ClothInPose& worn) {
  element.refusal = worn.GetRefusal();
  element.url = worn.GetUrl();
}

/// For an element that is shown by its picture only.
void ShowIfPictured(PageOffer& page, OfferedElement element, const ClothInPose& worn, FileStamps& files) {
  if (!worn.IsComplete()) return Hide(page, std::move(element), worn.GetRefusal());
  if (!files.Exists(element.picturePath)) {
    Refusal refusal(WhyNot::PictureMissing, element.picturePath);
    return Hide(page, std::move(element), std::move(refusal));
  }
  TakeAvailability(element, worn);
  ShowByAvailability(page, std::move(element));
}

}  // namespace

PageOffer PageOffers::GetClothing() const {
  PageOffer page = MakePage(PageKind::Clothing, m_character.GetContainerName(CLOTH));
  const std::wstring folder = FolderOf(m_character);
  page.shown.reserve(static_cast<std::size_t>(m_character.GetCount(CLOTH)));
  for (int i = 0; i < m_character.GetCount(CLOTH); ++i) {
    const DataContainer* cloth = m_character.GetContainerElement(CLOTH, i);
    if (!cloth) continue;
    OfferedElement element = Describe(cloth, RepositoryPaths::ClothPreview(folder, cloth));
    element.url = Fields::TextOrEmpty(cloth, FIELD_URL);
    if (!m_files.Exists(element.picturePath)) {
      Refusal refusal(WhyNot::PictureMissing, element.picturePath);
      Hide(page, std::move(element), std::move(refusal));
      continue;
    }
    if (!Fields::Equals(cloth, FIELD_AVAILABLE, VALUE_AVAILABLE)) {
      element.refusal = {WhyNot::FolderMissing, RepositoryPaths::Element(folder, cloth)};
    }
    ShowByAvailability(page, std::move(element));
  }
  return page;
}

void PageOffers::VisitAll(const Visit& visit) const {
  visit(MakePoses());
  VisitExceptPoses(visit);
}

void PageOffers::VisitExceptPoses(const Visit& visit) const {
  visit(MakeSkins());
  const DataContainer* clothing = m_character.GetCloth(Selection2::GetCloth());
  if (clothing && clothing->GetChildCount() > 0) visit(MakeStyles(*clothing));
  for (int i = 0; i < m_character.GetCount(CATEGORIES); ++i) {
    const DataContainer* category = m_character.GetContainerElement(CATEGORIES, i);
    if (category) visit(MakeAssets(*category));
  }
}

void PageOffers::VisitAssetsWithoutPage(const std::function<void(const OfferedElement&)>& visit) const {
  for (int i = 0; i < m_character.GetCount(ASSETS); ++i) {
    const DataContainer* asset = m_character.GetContainerElement(ASSETS, i);
    if (!asset || m_character.GetCategory(asset)) continue;
    const wchar_t* id = Fields::OptionalText(asset, FIELD_CATEGORY);
    OfferedElement element = Describe(asset, std::wstring());
    element.refusal = id ? Refusal(WhyNot::CategoryUnknown, id) : Refusal(WhyNot::CategoryUnnamed, FIELD_CATEGORY);
    visit(element);
  }
}

PageOffer PageOffers::MakePoses() const {
  PageOffer page = MakePage(PageKind::Poses, m_character.GetContainerName(POSES));
  const wchar_t* cloth = Selection2::GetCloth();
  const std::wstring clothId = cloth ? cloth : L"";
  const std::wstring folder = FolderOf(m_character);
  for (int i = 0; i < m_character.GetCount(POSES); ++i) {
    const DataContainer* pose = m_character.GetContainerElement(POSES, i);
    if (!pose) continue;
    OfferedElement element = Describe(pose, RepositoryPaths::PosePicture(folder, clothId, pose));
    if (pose->GetFastFlag(FLAG_VALID)) {
      ShowIfPictured(page, std::move(element), ClothInPose(m_character, pose, m_files), m_files);
    } else {
      Hide(page, std::move(element), RepositoryValidation::WhyUnmarked(*pose, &m_character));
    }
  }
  ChooseFirstAvailable(page);
  return page;
}

PageOffer PageOffers::MakeSkins() const {
  PageOffer page = MakePage(PageKind::Skins, m_character.GetContainerName(SKINS));
  const ClothInPose worn = ClothInPose::Chosen(m_character, m_files);
  const std::wstring folder = FolderOf(m_character);
  for (int i = 0; i < m_character.GetCount(SKINS); ++i) {
    const DataContainer* skin = m_character.GetContainerElement(SKINS, i);
    if (skin) ShowIfPictured(page, Describe(skin, RepositoryPaths::SkinPicture(folder, skin)), worn, m_files);
  }
  ChooseFirstAvailable(page);
  return page;
}

PageOffer PageOffers::MakeStyles(const DataContainer& clothing) const {
  PageOffer page = MakePage(PageKind::Styles, m_character.GetContainerName(CLOTH));
  const DataContainer* materials = clothing.GetChild(MATERIAL);
  if (!materials) return page;
  const ClothInPose worn = ClothInPose::Chosen(m_character, m_files);
  const std::wstring folder = RepositoryPaths::Element(FolderOf(m_character), &clothing);
  for (int i = 0; i < materials->GetChildCount(); ++i) {
    const DataContainer* material = materials->GetChild(i);
    if (!material) continue;
    OfferedElement element = Describe(material, RepositoryPaths::StylePicture(folder, material));
    if (!worn.IsComplete()) {
      Hide(page, std::move(element), worn.GetRefusal());
      continue;
    }
    // The one kind of element that is shown without a picture.
    TakeAvailability(element, worn);
    ShowByAvailability(page, std::move(element));
  }
  ChooseFirstAvailable(page);
  return page;
}

PageOffer PageOffers::MakeAssets(const DataContainer& category) const {
  PageOffer page = MakePage(PageKind::Assets, NameOf(&category).c_str());
  page.category = &category;
  std::vector<const DataContainer*> listed;
  for (const ListedAsset& asset : m_character.ListAssetsForCategory(&category)) {
    if (asset.whyNot == WhyNot::Nothing) {
      listed.push_back(asset.record);
    } else {
      Hide(page, Describe(asset.record, std::wstring()), WhyNotListed(asset, m_character));
    }
  }
  page.hasTab = !listed.empty();
  if (!page.hasTab) return page;
  if (CharacterData::IsMultiple(&category)) Debug::AddDebugMessage(DEBUG_INFO, L"set multiple true...");
  if (CharacterData::IsRequired(&category)) Debug::AddDebugMessage(DEBUG_INFO, L"set required true...");
  const ClothInPose worn = ClothInPose::Chosen(m_character, m_files);
  for (const DataContainer* asset : listed) AddAsset(page, asset, worn);
  return page;
}

void PageOffers::AddAsset(PageOffer& page, const DataContainer* asset, const ClothInPose& worn) const {
  if (!worn.IsComplete()) return Hide(page, Describe(asset, std::wstring()), worn.GetRefusal());
  if (!asset->GetFastFlag(FLAG_VALID)) {
    const CharacterData* owner = Data2::IsGlobalAssetUnique(Data2::GetUnique(asset)) ? nullptr : &m_character;
    return Hide(page, Describe(asset, std::wstring()), RepositoryValidation::WhyUnmarked(*asset, owner));
  }
  const std::wstring folder = RepositoryPaths::Asset(RepositoryPaths::Root(), FolderOf(m_character), asset);
  if (asset->GetChildCount() > 0) return HandleAssetStyles(page, asset, folder, worn);
  AddAssetElement(page, Describe(asset, RepositoryPaths::AssetPicture(folder)), worn);
}

void PageOffers::HandleAssetStyles(PageOffer& page, const DataContainer* asset, const std::wstring& folder,
                                   const ClothInPose& worn) const {
  for (int i = 0; i < asset->GetChildCount(); ++i) {
    const DataContainer* style = asset->GetChild(i);
    if (!style) continue;
    OfferedElement element = Describe(style, RepositoryPaths::StylePicture(folder, style));
    element.record = asset;
    element.style = style;
    element.text = NameOf(asset) + L" : " + element.text;
    AddAssetElement(page, std::move(element), worn);
  }
}

/// Assets keep the order of the repository, whether they are available or not.
void PageOffers::AddAssetElement(PageOffer& page, OfferedElement element, const ClothInPose& worn) const {
  if (!m_files.Exists(element.picturePath)) {
    Refusal refusal(WhyNot::PictureMissing, element.picturePath);
    return Hide(page, std::move(element), std::move(refusal));
  }
  TakeAvailability(element, worn);
  const bool required = page.shown.empty() && CharacterData::IsRequired(page.category);
  const bool selected = m_character.CheckAssetStyleForClothSelection(element.record, element.style);
  if (required || selected) page.choice.push_back(element.unique);
  page.shown.push_back(std::move(element));
}

}  // namespace ZORVEL
