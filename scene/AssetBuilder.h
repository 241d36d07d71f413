#pragma once

#include <string>
#include <vector>

#include "scene/BuildReport.h"

class INode;

namespace ZORVEL {

struct BuildContext;
class DataContainer;

/// Adds one asset to the character that is being built: its mesh, its place in the pose and its material.
class AssetBuilder {
 public:
  /// `material` is null when the asset itself names its material. Everything must outlive this.
  AssetBuilder(const BuildContext& context, ElementKind kind, const DataContainer& asset, const DataContainer* material,
               BuildReport& report);

  /// An asset that lacks a field, or whose mesh node cannot be made, is left out. One that should have a row in the
  /// asset matrix and has none stays at the origin, without a material.
  void Add();

 private:
  /// Whether it only refers to a shared asset, which is not there.
  bool IsLostReference() const;
  void LeaveOutReference();
  void AddShared();
  void AddPoseSpecific();
  void AddOrdinary();
  /// Marked as the asset's; null when it was left out.
  INode* AddNode(const std::wstring& meshFile);
  /// False without a row for that id of an asset, which may be null.
  bool Place(INode& node, const wchar_t* assetId);
  void Finish(INode& node, const std::vector<std::wstring>& libraries);

  const BuildContext& m_context;
  const DataContainer& m_asset;
  const DataContainer& m_materialRecord;
  BuildReport& m_report;
  BuiltPiece m_piece;
};

}  // namespace ZORVEL
