#include "scene/AssetBuilder.h"

#include <inode.h>

#include "core/Debug.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "scene/BuildContext.h"
#include "scene/MaterialLibraries.h"
#include "scene/PieceSteps.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

const float RADIANS_PER_DEGREE = 0.017453292F;

void MoveToRow(INode& node, const AssetMatrixElement& row) {
  Matrix3 tm(TRUE);
  tm.RotateX(row.xrot * RADIANS_PER_DEGREE);
  tm.RotateY(row.yrot * RADIANS_PER_DEGREE);
  tm.RotateZ(row.zrot * RADIANS_PER_DEGREE);
  tm.Translate(Point3(row.xpos, row.ypos, row.zpos));
  node.SetNodeTM(0, tm);
}

}  // namespace

AssetBuilder::AssetBuilder(const BuildContext& context, ElementKind kind, const DataContainer& asset,
                           const DataContainer* material, BuildReport& report)
    : m_context(context), m_asset(asset), m_materialRecord(material != nullptr ? *material : asset), m_report(report) {
  m_piece.element = PieceSteps::Describe(kind, &asset, material);
}

void AssetBuilder::Add() {
  if (IsLostReference()) return LeaveOutReference();
  if (!PieceSteps::HasFields(&m_asset, {FIELD_FOLDER, FIELD_ID, FIELD_NAME}, m_piece.element, m_report)) return;
  if (Data2::CheckAssetGlobal(&m_asset)) return AddShared();
  if (CharacterData::IsSpecific(&m_asset)) return AddPoseSpecific();
  AddOrdinary();
}

bool AssetBuilder::IsLostReference() const {
  const bool isReference = m_piece.element.kind == ElementKind::Asset && Data2::CheckAssetGlobal(&m_asset);
  return isReference && !m_asset.CheckDatafield(FIELD_FOLDER);
}

void AssetBuilder::LeaveOutReference() {
  const std::wstring globalId = Fields::TextOrEmpty(&m_asset, FIELD_GLOBAL_ID);
  m_report.omissions.push_back({m_piece.element, OmissionReason::NoSharedRecord, globalId});
}

void AssetBuilder::AddShared() {
  const std::wstring base = RepositoryPaths::GlobalAsset(m_context.repositoryPath, &m_asset);
  INode* node = AddNode(RepositoryPaths::AssetMesh(base));
  if (node == nullptr) return;
  const DataContainer* own = m_context.character.FindLocalAssetForGlobal(&m_asset);
  if (Place(*node, Fields::OptionalText(own, FIELD_ID))) {
    Finish(*node, MaterialLibraries::OfSharedAsset(m_context, base));
  } else {
    if (own == nullptr) m_piece.placing = PlacingState::NotListed;
    m_report.pieces.push_back(m_piece);
  }
}

void AssetBuilder::AddPoseSpecific() {
  const std::wstring base = RepositoryPaths::Element(m_context.characterFolder, &m_asset);
  INode* node = AddNode(RepositoryPaths::AssetMeshInPose(base, m_context.poseId));
  if (node != nullptr) Finish(*node, MaterialLibraries::OfElement(m_context, base));
}

void AssetBuilder::AddOrdinary() {
  const std::wstring base = RepositoryPaths::Element(m_context.characterFolder, &m_asset);
  INode* node = AddNode(RepositoryPaths::AssetMesh(base));
  if (node == nullptr) return;
  if (Place(*node, m_piece.element.id.c_str())) {
    Finish(*node, MaterialLibraries::OfElement(m_context, base));
  } else {
    Debug::AddDebugMessage(DEBUG_ERROR, L"could not find asset matrix...");
    m_report.pieces.push_back(m_piece);
  }
}

INode* AssetBuilder::AddNode(const std::wstring& meshFile) {
  m_piece.meshFile = meshFile;
  INode* node = PieceSteps::AddNode(m_piece, m_context.parent, m_report);
  if (node != nullptr) node->SetUserPropString(L"ZORVEL_ASSET", m_piece.element.id.c_str());
  return node;
}

bool AssetBuilder::Place(INode& node, const wchar_t* assetId) {
  const AssetMatrixElement* row = m_context.character.FindAssetMatrixElement(m_context.poseId.c_str(), assetId);
  m_piece.placing = row != nullptr ? PlacingState::ByRow : PlacingState::NoRow;
  if (row != nullptr) MoveToRow(node, *row);
  return row != nullptr;
}

void AssetBuilder::Finish(INode& node, const std::vector<std::wstring>& libraries) {
  m_piece.material = PieceSteps::ResolveMaterial(m_materialRecord, libraries, m_context, node);
  m_report.pieces.push_back(m_piece);
}

}  // namespace ZORVEL
