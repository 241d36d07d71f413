#pragma once

#include <string>

#include "model/Refusal.h"

namespace ZORVEL {

class CharacterData;
class DataContainer;
class FileStamps;

/// The chosen clothing of a character in one of its poses: whether it can be worn so, and where to get it if not.
class ClothInPose {
 public:
  /// A null pose, and a clothing that is not chosen or not found, make it incomplete. The files are asked at once.
  ClothInPose(const CharacterData& character, const DataContainer* pose, FileStamps& files);
  /// In the chosen pose.
  static ClothInPose Chosen(const CharacterData& character, FileStamps& files);

  bool IsComplete() const { return m_cloth != nullptr && m_pose != nullptr; }
  /// Nothing when the clothing has a mesh in the pose; else the mesh that is missing, or what it is incomplete for.
  const Refusal& GetRefusal() const { return m_refusal; }
  /// Where the mesh can be had. Only when complete.
  const std::wstring& GetUrl() const { return m_url; }

 private:
  const DataContainer* m_cloth;
  const DataContainer* m_pose;
  Refusal m_refusal;
  std::wstring m_url;
};

}  // namespace ZORVEL
