#pragma once

#include <memory>
#include <string>

class INode;

namespace ZORVEL {

class CharacterData;
class DataContainer;
struct BuildReport;

/// What one build works with: the parent node and the selection, looked up in the model. The records are borrowed.
struct BuildContext {
  /// Null when something is not chosen or not in the model, which the report then names. Writes the character's
  /// "generalTextureFolder" and "globalMaps", as far as it comes.
  static std::unique_ptr<BuildContext> Prepare(INode& parent, BuildReport& report);

  INode& parent;
  const CharacterData& character;
  const DataContainer& pose;
  const DataContainer& cloth;
  const DataContainer& style;
  const DataContainer& skin;
  std::wstring poseId;
  std::wstring clothId;
  /// Ends in a separator, as does the folder of textures.
  std::wstring repositoryPath;
  std::wstring globalMaps;
};

}  // namespace ZORVEL
