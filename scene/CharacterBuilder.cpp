#include "scene/CharacterBuilder.h"

#include <hold.h>
#include <maxapi.h>

#include <string>

#include "core/Debug.h"
#include "core/Settings.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/Selection2.h"
#include "scene/AssetBuilder.h"
#include "scene/BuildContext.h"
#include "scene/MaterialResolver.h"
#include "scene/SceneNodes.h"
#include "scene/UnitFactor.h"

namespace ZORVEL {

namespace {

std::wstring CharacterNodeName(const DataContainer* character) {
  const wchar_t* name = Fields::OptionalText(character, L"name");
  return std::wstring(L"ZORVEL Character ") + (name != nullptr ? name : L"");
}

/// Writes a field that is derived from others and answers the stored text.
const wchar_t* DeriveField(DataContainer& record, const wchar_t* field, const std::wstring& text) {
  record.SetData(field, text.c_str());
  return Fields::OptionalText(&record, field);
}

bool PrepareCharacter(BuildContext& context) {
  context.repositoryPath = Settings::GetPath();
  if (context.repositoryPath == nullptr) return false;
  context.characterId = Selection2::GetCharacter();
  context.character = Data2::GetCharacter(context.characterId);
  context.characterFolder = Fields::OptionalText(context.character, L"folder");
  if (context.characterFolder == nullptr) return false;
  context.generalTextureFolder =
      DeriveField(*context.character, L"generalTextureFolder", std::wstring(context.characterFolder) + L"\\maps\\");
  return context.generalTextureFolder != nullptr;
}

bool PrepareElements(BuildContext& context) {
  const CharacterData& character = *context.character;
  context.poseId = Selection2::GetPose();
  context.pose = character.GetPose(context.poseId);
  if (context.pose == nullptr) return false;
  context.clothId = Selection2::GetCloth();
  context.cloth = character.GetCloth(context.clothId);
  if (context.cloth == nullptr) return false;
  context.style = character.GetStyle(context.clothId, Selection2::GetStyle());
  if (context.style == nullptr) return false;
  context.skinId = Selection2::GetSkin();
  context.skin = character.GetSkin(context.skinId);
  return context.skin != nullptr;
}

bool Prepare(BuildContext& context) {
  if (!PrepareCharacter(context) || !PrepareElements(context)) return false;
  context.globalMaps = DeriveField(*context.character, L"globalMaps", std::wstring(context.repositoryPath) + L"maps\\");
  return context.globalMaps != nullptr;
}

/// Null when a field or the host's proxy class is missing.
INode* AddBody(const BuildContext& context) {
  const wchar_t* folder = Fields::OptionalText(context.pose, L"folder");
  const wchar_t* name = Fields::OptionalText(context.pose, L"name");
  if (folder == nullptr || name == nullptr) return nullptr;
  const std::wstring characterFolder = context.characterFolder;
  INode* node = SceneNodes::AddProxy(characterFolder + L"\\" + folder + L"\\pose.vrmesh", name, context.parent);
  if (node == nullptr) return nullptr;
  node->SetUserPropString(L"ZORVEL_CHAR", Fields::OptionalText(context.character, L"id"));
  node->SetUserPropString(L"ZORVEL_POSE", Fields::OptionalText(context.pose, L"id"));
  MaterialResolver::Resolve(Fields::OptionalText(context.skin, L"material"), characterFolder + L"\\skin\\skin.mat",
                            node, context);
  return node;
}

void AddMandatoryElements(BuildContext& context) {
  for (int i = 0; i < context.pose->GetChildCount(); ++i) {
    Debug::AddDebugMessage(DEBUG_INFO, L"add mandatory element...");
    const DataContainer* entry = context.pose->GetChild(i);
    if (Fields::OptionalText(entry, L"id") == nullptr) continue;
    context.currentAsset = context.character->ResolveAsset(entry);
    context.currentMaterial = nullptr;
    if (context.currentAsset != nullptr && Data2::GetUnique(context.currentAsset) != 0) AssetBuilder::Add(context);
  }
}

void AddCloth(const BuildContext& context) {
  const wchar_t* folder = Fields::OptionalText(context.cloth, L"folder");
  const wchar_t* name = Fields::OptionalText(context.cloth, L"name");
  if (folder == nullptr || name == nullptr) return;
  const std::wstring base = std::wstring(context.characterFolder) + L"\\" + folder;
  INode* node =
      SceneNodes::AddProxy(base + L"\\" + context.clothId + L"_" + context.poseId + L".vrmesh", name, context.parent);
  if (node == nullptr) return;
  node->SetUserPropString(L"ZORVEL_CLOTH", context.clothId);
  node->SetUserPropString(L"ZORVEL_POSE", context.poseId);
  MaterialResolver::Resolve(Fields::OptionalText(context.style, L"material"), base + L"\\materials.mat", node, context);
}

void AddSelectedAssets(BuildContext& context) {
  Debug::AddDebugMessage(DEBUG_INFO, L"add assets:");
  for (int i = 0; i < Selection2::GetAssetCount(); ++i) {
    const int unique = Selection2::GetAsset(i);
    if (unique == 0) continue;
    context.currentAsset = nullptr;
    context.currentMaterial = nullptr;
    const bool found = Data2::GetGlobalAssetAndMaterial(unique, context.currentAsset, context.currentMaterial) ||
                       context.character->GetAssetAndMaterial(unique, context.currentAsset, context.currentMaterial);
    if (found) AssetBuilder::Add(context);
  }
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

void Group(const BuildContext& context) {
  Interface* host = GetCOREInterface();
  INodeTab nodes = ParentAndChildren(*context.parent);
  MSTR name(CharacterNodeName(context.character).c_str());
  INode* head = host->GroupNodes(&nodes, &name, FALSE);
  if (head == nullptr) return;
  head->SetUserPropBool(L"ZORVEL_GROUP", TRUE);
  SceneNodes::AddToCharacterLayer(head);
  MovePivotToOrigin(*head);
  host->GetRootNode()->AttachChild(head, 1);
}

void AddElements(BuildContext& context) {
  if (AddBody(context) != nullptr) AddMandatoryElements(context);
  AddCloth(context);
  AddSelectedAssets(context);
}

}  // namespace

INode* CharacterBuilder::BuildSelectedCharacter() {
  Debug::AddDebugMessage(DEBUG_INFO, L"Create Character from Selection...");
  Interface* host = GetCOREInterface();
  host->DisplayTempPrompt(L"Create ZORVEL Character...");
  theHold.Begin();
  BuildContext context;
  context.parent = SceneNodes::AddParent(CharacterNodeName(Data2::GetCharacter(Selection2::GetCharacter())));
  if (context.parent == nullptr) {
    theHold.Cancel();
    return nullptr;
  }
  SceneNodes::AddToCharacterLayer(context.parent);
  if (!Prepare(context)) {
    theHold.Cancel();
    return nullptr;
  }
  AddElements(context);
  ScaleToSceneUnits(*context.parent);
  Group(context);
  theHold.Accept(L"ZORVEL Character");
  host->DisplayTempPrompt(L"ZORVEL Character created");
  host->RedrawViews(host->GetTime(), REDRAW_NORMAL);
  return context.parent;
}

}  // namespace ZORVEL
