#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/AssetMatrixElement.h"
#include "model/DataContainer.h"
#include "model/Refusal.h"

namespace ZORVEL {

enum CONTAINER : int { SKINS = 0, CLOTH = 1, POSES = 2, CATEGORIES = 3, ASSETS = 4 };

/// The three groups that every cloth element of a repository has as its children.
enum CLOTH_CHILD : int { MATERIAL = 0, EXCLUDE = 1, SELECT = 2 };

/// A cloth that was dropped: its place in the list before, and the picture that is not there.
struct ClothWithoutPreview {
  int index;
  std::wstring preview;
};

/// An asset as its category lists it.
struct ListedAsset {
  DataContainer* asset;
  DataContainer* record;  ///< the global record where the asset stands for one that there is, else the asset
  WhyNot whyNot;          ///< why it is not listed
};

/// One character: its own fields, five lists of elements and the asset matrix. Elements are named by the text of their
/// "id" field; lookups compare exactly, answer with the first match in list order, and null when there is none.
/// Elements are owned by the character; what lookups return is borrowed until the store is cleared.
class CharacterData : public DataContainer {
 public:
  CharacterData() = default;
  ~CharacterData() override = default;

  // Building. Elements are appended; indexes count within their list, -1 and null mean that nothing was added.
  int AddContainerElement(CONTAINER container);
  /// Names of skins, cloth and poses only; a second call extends the name.
  void SetContainerName(CONTAINER container, const wchar_t* name);
  DataContainer* AddChildToClothContainer(int clothIndex, CLOTH_CHILD group);
  DataContainer* AddMaterialToCloth(int clothIndex);
  DataContainer* AddMandatoryElement(int poseIndex);
  DataContainer* AddMaterialToAsset(int assetIndex);
  /// Adds a row from the fields of a record that the caller keeps. False when nothing is added: without "poseID" or
  /// "assetID".
  bool AddAssetMatrixElement(const DataContainer* element);
  void AddAssetMatrixElement(const wchar_t* poseID, const wchar_t* assetID, float xpos, float ypos, float zpos,
                             float xrot, float yrot, float zrot);
  /// Makes room for rows that are about to be added.
  void ReserveAssetMatrix(int count);
  bool AddSkinElement(const wchar_t* id, const wchar_t* name, const wchar_t* preview, const wchar_t* url);
  /// A cloth made this way has no groups.
  bool AddClothElement(const wchar_t* id, const wchar_t* name, const wchar_t* folder, const wchar_t* url);
  bool AddPoseElement(const wchar_t* id, const wchar_t* name, const wchar_t* folder, const wchar_t* url);
  bool AddCategoryElement(const wchar_t* id, const wchar_t* name, const wchar_t* selection, const wchar_t* required);
  bool AddAssetElement(const wchar_t* id, const wchar_t* name, const wchar_t* type, const wchar_t* folder,
                       const wchar_t* category, const wchar_t* url);
  /// Destroys the clothes that have no preview picture on disk, and answers which those were.
  std::vector<ClothWithoutPreview> ValidateCloths();
  /// By the UTF-16 code units of "name", stable; a cloth without a name counts as empty.
  void SortClothsAlphabetically();

  // The lists.
  DataContainer* GetContainerElement(CONTAINER container, int index) const;
  int GetCount(CONTAINER container) const;
  /// Empty when never set, null for a list that has no name.
  const wchar_t* GetContainerName(CONTAINER container) const;
  int GetClothChildCount(int clothIndex, CLOTH_CHILD group) const;
  /// Never answers an element: an index from 0 to the group's count is refused here, a larger one by the group.
  DataContainer* GetClothChildElement(int clothIndex, CLOTH_CHILD group, int index) const;

  // Lookups.
  static DataContainer* FindElementById(const DataContainer* container, const wchar_t* id);
  DataContainer* GetSkin(const wchar_t* id) const;
  DataContainer* GetPose(const wchar_t* id) const;
  DataContainer* GetCloth(const wchar_t* id) const;
  /// A style is a material of a cloth.
  DataContainer* GetStyle(const wchar_t* clothId, const wchar_t* styleId) const;
  /// One of the character's own, which may stand for a global one.
  DataContainer* GetAsset(const wchar_t* id) const;
  DataContainer* GetCategory(const DataContainer* asset) const;
  DataContainer* GetCategoryForGlobalAsset(const DataContainer* globalAsset) const;
  /// The assets to offer for a category with the selected cloth and pose, appended in list order. A global asset is
  /// listed as its global record, whose "local_asset_id" is set to the id of this character's own asset.
  void GetAssetsForCategory(std::vector<DataContainer*>& assets, const DataContainer* category) const;
  /// The same with what is not listed and why, every asset of the category in list order.
  std::vector<ListedAsset> ListAssetsForCategory(const DataContainer* category) const;
  /// Whether the selected cloth asks for the asset, or for the asset in this material (null: in any).
  bool CheckAssetStyleForClothSelection(const DataContainer* asset, const DataContainer* material) const;
  /// Whether an entry of a clothing's select group finds an asset, and for one with materials the material, too.
  bool FindsSelected(const DataContainer* entry) const;
  /// `material` is null when the id names the asset itself. On false both are left as they were.
  bool GetAssetAndMaterial(int unique, DataContainer*& asset, DataContainer*& material) const;
  const AssetMatrixElement* FindAssetMatrixElement(const wchar_t* poseID, const wchar_t* assetID) const;
  bool IsAssetExcludedByCloth(const DataContainer* cloth, const DataContainer* asset) const;
  static bool IsSpecific(const DataContainer* asset);
  static bool IsMultiple(const DataContainer* category);
  static bool IsRequired(const DataContainer* category);
  /// This character's asset that stands for the global one.
  DataContainer* FindLocalAssetForGlobal(const DataContainer* globalAsset) const;
  /// The asset with the element's id; for an asset of type "global" its global record, null when there is none.
  DataContainer* ResolveAsset(const DataContainer* element) const;

 private:
  static const int CONTAINER_COUNT = 5;
  static const int CLOTH_CHILD_COUNT = 3;

  DataContainer* FindClothGroup(int clothIndex, CLOTH_CHILD group) const;
  ListedAsset ListAsset(DataContainer* asset, const DataContainer* cloth) const;
  /// Those with that text in the field, in list order.
  std::vector<DataContainer*> AssetsWith(IndexedField indexed, const wchar_t* field, const wchar_t* text) const;
  void OrderAssetMatrix() const;

  DataContainer m_containers[CONTAINER_COUNT];  // indexed by CONTAINER
  std::wstring m_skinsName;
  std::wstring m_posesName;
  std::wstring m_clothName;
  std::vector<AssetMatrixElement> m_assetMatrix;
  /// Indexes of the rows by asset and pose, made when a row is first looked for.
  mutable std::vector<std::uint32_t> m_matrixOrder;
};

}  // namespace ZORVEL
