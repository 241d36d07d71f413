#include "scene/PieceBuilder.h"

#include <inode.h>

#include "core/Debug.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "scene/BuildContext.h"
#include "scene/BuildReport.h"
#include "scene/MaterialResolver.h"
#include "scene/SceneNodes.h"

namespace ZORVEL {

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

void Place(INode& node, const PiecePlan& plan) {
  if (plan.row != nullptr) return MoveToRow(node, *plan.row);
  if (plan.placing != PlacingState::NoRow || Data2::CheckAssetGlobal(plan.record)) return;
  Debug::AddDebugMessage(DEBUG_ERROR, L"could not find asset matrix...");
}

MaterialResult ResolveMaterial(INode& node, const PiecePlan& plan, const std::wstring& mapsFolder) {
  if (plan.materialRecord == nullptr) return MaterialResult();
  const wchar_t* name = Fields::OptionalText(plan.materialRecord, RepositoryFormat::FIELD_MATERIAL);
  return MaterialResolver::Resolve({name, plan.libraries, mapsFolder}, node);
}

}  // namespace

bool PieceBuilder::Add(const PiecePlan& plan, const Properties& properties) const {
  if (!plan.canBeBuilt) {
    m_report.omissions.push_back(plan.omission);
    return false;
  }
  BuiltPiece piece;
  piece.element = plan.element;
  piece.meshFile = plan.meshFile;
  piece.placing = plan.placing;
  INode* node = AddNode(piece);
  if (node == nullptr) return false;
  for (const auto& property : properties) node->SetUserPropString(property.first, property.second);
  Place(*node, plan);
  piece.material = ResolveMaterial(*node, plan, m_context.globalMaps);
  m_report.pieces.push_back(piece);
  return true;
}

INode* PieceBuilder::AddNode(BuiltPiece& piece) const {
  const ProxyNode added = SceneNodes::AddProxy(piece.meshFile, piece.element.name.c_str(), m_context.parent);
  piece.mesh = added.mesh;
  if (added.node == nullptr) m_report.omissions.push_back({piece.element, added.problem, piece.meshFile});
  return added.node;
}

}  // namespace ZORVEL
