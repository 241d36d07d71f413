#include "scene/CharacterBuilder.h"

#include <hold.h>
#include <maxapi.h>

#include <memory>
#include <string>

#include "core/Debug.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/Selection2.h"
#include "scene/BuildContext.h"
#include "scene/BuildReport.h"
#include "scene/ElementBuilder.h"
#include "scene/SceneNodes.h"
#include "scene/UnitFactor.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

std::wstring CharacterNodeName(const DataContainer* character) {
  return L"ZORVEL Character " + Fields::TextOrEmpty(character, FIELD_NAME);
}

void ScaleToSceneUnits(INode& parent) {
  const float factor = UnitFactor();
  Matrix3 tm = parent.GetNodeTM(0);
  tm.Scale(Point3(factor, factor, factor));
  parent.SetNodeTM(0, tm);
}

INodeTab ParentAndChildren(INode& parent) {
  INodeTab nodes;
  INode* node = &parent;
  nodes.Append(1, &node);
  for (int i = 0; i < parent.NumberOfChildren(); ++i) {
    node = parent.GetChildNode(i);
    nodes.Append(1, &node);
  }
  return nodes;
}

/// The pivot of the group goes to the world's origin, where the character stands.
void MovePivotToOrigin(INode& head) {
  const Point3 position = head.GetNodeTM(0).GetTrans();
  head.Move(0, Matrix3(TRUE), -position, FALSE, FALSE, PIV_PIVOT_ONLY, FALSE);
}

/// False when the host makes no group.
bool Group(const BuildContext& context) {
  Interface* host = GetCOREInterface();
  INodeTab nodes = ParentAndChildren(context.parent);
  MSTR name(CharacterNodeName(&context.character).c_str());
  INode* head = host->GroupNodes(&nodes, &name, FALSE);
  if (head == nullptr) return false;
  head->SetUserPropBool(L"ZORVEL_GROUP", TRUE);
  SceneNodes::AddToCharacterLayer(head);
  MovePivotToOrigin(*head);
  host->GetRootNode()->AttachChild(head, 1);
  return true;
}

/// The parent, which is a part of the scene only when the hold is accepted; null when something is missing.
INode* Build(BuildReport& report) {
  INode* parent = SceneNodes::AddParent(CharacterNodeName(Data2::GetCharacter(Selection2::GetCharacter())));
  if (parent == nullptr) {
    report.obstacle = BuildObstacle::Parent;
    return nullptr;
  }
  report.isOnLayer = SceneNodes::AddToCharacterLayer(parent);
  const std::unique_ptr<BuildContext> context = BuildContext::Prepare(*parent, report);
  if (context == nullptr) return nullptr;
  ElementBuilder(*context, report).AddAll();
  ScaleToSceneUnits(*parent);
  report.isGrouped = Group(*context);
  return parent;
}

}  // namespace

INode* CharacterBuilder::BuildSelectedCharacter(BuildReport& report) {
  report = BuildReport();
  Debug::AddDebugMessage(DEBUG_INFO, L"Create Character from Selection...");
  Interface* host = GetCOREInterface();
  host->ReplacePrompt(L"Create ZORVEL Character...");
  theHold.Begin();
  INode* parent = Build(report);
  if (parent == nullptr) {
    theHold.Cancel();
    return nullptr;
  }
  theHold.Accept(L"ZORVEL Character");
  host->ReplacePrompt(L"ZORVEL Character created");
  host->RedrawViews(host->GetTime(), REDRAW_NORMAL);
  return parent;
}

}  // namespace ZORVEL
