#pragma once

class INode;

namespace ZORVEL {

class CharacterData;
class DataContainer;

/// What one build works with. Everything is borrowed from the model, the settings and the scene.
struct BuildContext {
  INode* parent = nullptr;
  CharacterData* character = nullptr;
  const wchar_t* characterId = nullptr;
  /// A complete path.
  const wchar_t* characterFolder = nullptr;
  const wchar_t* generalTextureFolder = nullptr;
  DataContainer* pose = nullptr;
  const wchar_t* poseId = nullptr;
  DataContainer* cloth = nullptr;
  const wchar_t* clothId = nullptr;
  DataContainer* skin = nullptr;
  const wchar_t* skinId = nullptr;
  DataContainer* style = nullptr;
  /// Set for each asset that is added.
  DataContainer* currentAsset = nullptr;
  /// Null when the asset itself names its material.
  DataContainer* currentMaterial = nullptr;
  /// Ends in a separator, as does the folder of textures.
  const wchar_t* repositoryPath = nullptr;
  const wchar_t* globalMaps = nullptr;
};

}  // namespace ZORVEL
