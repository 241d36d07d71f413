#include "scene/AssetBuilder.h"

#include <inode.h>

#include <string>

#include "core/Debug.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "scene/BuildContext.h"
#include "scene/MaterialResolver.h"
#include "scene/SceneNodes.h"

namespace ZORVEL {

namespace {

const float RADIANS_PER_DEGREE = 0.017453292F;

std::wstring OwnFolder(const BuildContext& context, const wchar_t* folder) {
  return std::wstring(context.characterFolder) + L"\\" + folder;
}

std::wstring GlobalFolder(const BuildContext& context, const wchar_t* folder) {
  return std::wstring(context.repositoryPath) + L"\\global_assets\\" + folder;
}

const wchar_t* MaterialName(const BuildContext& context) {
  const DataContainer* holder = context.currentMaterial != nullptr ? context.currentMaterial : context.currentAsset;
  return Fields::OptionalText(holder, L"material");
}

/// The node, marked as the asset's; null when a field or the host's proxy class is missing.
INode* AddMesh(const BuildContext& context, const std::wstring& meshFile) {
  const wchar_t* id = Fields::OptionalText(context.currentAsset, L"id");
  const wchar_t* name = Fields::OptionalText(context.currentAsset, L"name");
  if (id == nullptr || name == nullptr) return nullptr;
  INode* node = SceneNodes::AddProxy(meshFile, name, context.parent);
  if (node != nullptr) node->SetUserPropString(L"ZORVEL_ASSET", id);
  return node;
}

void Place(INode& node, const AssetMatrixElement& row) {
  Matrix3 tm(TRUE);
  tm.RotateX(row.xrot * RADIANS_PER_DEGREE);
  tm.RotateY(row.yrot * RADIANS_PER_DEGREE);
  tm.RotateZ(row.zrot * RADIANS_PER_DEGREE);
  tm.Translate(Point3(row.xpos, row.ypos, row.zpos));
  node.SetNodeTM(0, tm);
}

void AddGlobal(const BuildContext& context, const wchar_t* folder) {
  const std::wstring base = GlobalFolder(context, folder);
  INode* node = AddMesh(context, base + L"\\asset.vrmesh");
  if (node == nullptr) return;
  const DataContainer* own = context.character->FindLocalAssetForGlobal(context.currentAsset);
  const AssetMatrixElement* row =
      context.character->FindAssetMatrixElement(context.poseId, Fields::OptionalText(own, L"id"));
  if (row == nullptr) return;
  Place(*node, *row);
  MaterialResolver::ResolveGlobal(MaterialName(context), base + L"\\materials.mat", node, context);
}

void AddPoseSpecific(const BuildContext& context, const wchar_t* folder) {
  const std::wstring base = OwnFolder(context, folder);
  INode* node = AddMesh(context, base + L"\\" + context.poseId + L".vrmesh");
  MaterialResolver::Resolve(MaterialName(context), base + L"\\materials.mat", node, context);
}

void AddOrdinary(const BuildContext& context, const wchar_t* folder) {
  const std::wstring base = OwnFolder(context, folder);
  INode* node = AddMesh(context, base + L"\\asset.vrmesh");
  if (node == nullptr) return;
  const wchar_t* id = Fields::OptionalText(context.currentAsset, L"id");
  const AssetMatrixElement* row = context.character->FindAssetMatrixElement(context.poseId, id);
  if (row == nullptr) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"could not find asset matrix...");
    return;
  }
  Place(*node, *row);
  MaterialResolver::Resolve(MaterialName(context), base + L"\\materials.mat", node, context);
}

}  // namespace

void AssetBuilder::Add(const BuildContext& context) {
  const wchar_t* folder = Fields::OptionalText(context.currentAsset, L"folder");
  if (folder == nullptr) return;
  if (Data2::CheckAssetGlobal(context.currentAsset)) {
    AddGlobal(context, folder);
  } else if (CharacterData::IsSpecific(context.currentAsset)) {
    AddPoseSpecific(context, folder);
  } else {
    AddOrdinary(context, folder);
  }
}

}  // namespace ZORVEL
