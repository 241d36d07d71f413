#pragma once

#include <functional>

#include "model/ClothInPose.h"
#include "model/PageOffer.h"

namespace ZORVEL {

class CharacterData;
class DataContainer;
class FileStamps;

/// The one place that decides which elements of a character are offered for the present choice (Selection2), in which
/// order, whether they are available and otherwise why not, and what is chosen to begin with.
class PageOffers {
 public:
  /// Both must outlive this. The files are asked at most once for each path.
  PageOffers(const CharacterData& character, FileStamps& files) : m_character(character), m_files(files) {}

  /// The pictures of the clothing strip.
  PageOffer GetClothing() const;

  /// Calls `visit` for one page after the other, in the order of the tabs. What a page offers depends on what the ones
  /// before it have chosen: each is made when the visit of the one before has returned.
  using Visit = std::function<void(PageOffer page)>;
  void VisitAll(const Visit& visit) const;
  /// All but the poses, which do not depend on the pose that is chosen.
  void VisitExceptPoses(const Visit& visit) const;

  /// Assets that no page lists in any pose, for want of a category.
  void VisitAssetsWithoutPage(const std::function<void(const OfferedElement&)>& visit) const;

 private:
  PageOffer MakePoses() const;
  PageOffer MakeSkins() const;
  PageOffer MakeStyles(const DataContainer& clothing) const;
  PageOffer MakeAssets(const DataContainer& category) const;
  void AddAsset(PageOffer& page, const DataContainer* asset, const ClothInPose& worn) const;
  void HandleAssetStyles(PageOffer& page, const DataContainer* asset, const std::wstring& folder,
                         const ClothInPose& worn) const;
  void AddAssetElement(PageOffer& page, OfferedElement element, const ClothInPose& worn) const;

  const CharacterData& m_character;
  FileStamps& m_files;
};

}  // namespace ZORVEL
