#pragma once

#include <string>

namespace ZORVEL {

class CharacterData;
class DataContainer;

/// The chosen clothing of a character in one of its poses: whether it can be worn so, and where to get it if not.
class ClothInPose {
 public:
  /// A null pose, and a clothing that is not chosen or not found, make it incomplete.
  ClothInPose(const CharacterData& character, const DataContainer* pose);
  /// In the chosen pose.
  static ClothInPose Chosen(const CharacterData& character);

  bool IsComplete() const { return m_cloth != nullptr && m_pose != nullptr; }
  const std::wstring& GetClothId() const { return m_clothId; }
  /// The mesh that is there when the clothing can be worn in this pose. Only when complete; so the next.
  const std::wstring& GetMeshPath() const { return m_meshPath; }
  const std::wstring& GetUrl() const { return m_url; }

 private:
  std::wstring m_clothId;
  const DataContainer* m_cloth;
  const DataContainer* m_pose;
  std::wstring m_meshPath;
  std::wstring m_url;
};

}  // namespace ZORVEL
