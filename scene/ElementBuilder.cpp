#include "scene/ElementBuilder.h"

#include <inode.h>

#include "core/Debug.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/Selection2.h"
#include "scene/AssetBuilder.h"
#include "scene/BuildContext.h"
#include "scene/BuildReport.h"
#include "scene/MaterialLibraries.h"
#include "scene/PieceSteps.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

const DataContainer* FindOwnAsset(const CharacterData& character, const wchar_t* id) {
  for (int i = 0; i < character.GetCount(ASSETS); ++i) {
    const DataContainer* asset = character.GetContainerElement(ASSETS, i);
    if (Fields::Equals(asset, FIELD_ID, id)) return asset;
  }
  return nullptr;
}

/// Why the character has nothing to build for the id that a pose asks for.
Omission WhyUnresolved(const CharacterData& character, const wchar_t* id) {
  BuildElement element;
  element.kind = ElementKind::MandatoryAsset;
  element.id = id;
  const DataContainer* reference = FindOwnAsset(character, id);
  if (reference == nullptr) return {element, OmissionReason::UnknownId, id};
  return {element, OmissionReason::NoSharedRecord, Fields::TextOrEmpty(reference, FIELD_GLOBAL_ID)};
}

}  // namespace

void ElementBuilder::AddAll() {
  if (AddBody()) {
    AddMandatoryAssets();
  } else {
    LeaveOutMandatoryAssets();
  }
  AddCloth();
  AddSelectedAssets();
}

bool ElementBuilder::AddBody() {
  BuiltPiece piece;
  piece.element = PieceSteps::Describe(ElementKind::Body, &m_context.pose, &m_context.skin);
  if (!PieceSteps::HasFields(&m_context.pose, {FIELD_FOLDER, FIELD_NAME}, piece.element, m_report)) return false;
  piece.meshFile = RepositoryPaths::BodyMesh(RepositoryPaths::Element(m_context.characterFolder, &m_context.pose));
  INode* node = PieceSteps::AddNode(piece, m_context.parent, m_report);
  if (node == nullptr) return false;
  node->SetUserPropString(L"ZORVEL_CHAR", Fields::OptionalText(&m_context.character, FIELD_ID));
  node->SetUserPropString(L"ZORVEL_POSE", m_context.poseId.c_str());
  piece.material = PieceSteps::ResolveMaterial(m_context.skin, MaterialLibraries::OfSkin(m_context), m_context, *node);
  m_report.pieces.push_back(piece);
  return true;
}

void ElementBuilder::AddMandatoryAssets() {
  for (int i = 0; i < m_context.pose.GetChildCount(); ++i) {
    Debug::AddDebugMessage(DEBUG_INFO, L"add mandatory element...");
    AddMandatoryAsset(m_context.pose.GetChild(i));
  }
}

void ElementBuilder::AddMandatoryAsset(const DataContainer* entry) {
  const BuildElement element = PieceSteps::Describe(ElementKind::MandatoryAsset, entry, nullptr);
  if (!PieceSteps::HasFields(entry, {FIELD_ID}, element, m_report)) return;
  const DataContainer* asset = m_context.character.ResolveAsset(entry);
  if (asset == nullptr) {
    m_report.omissions.push_back(WhyUnresolved(m_context.character, element.id.c_str()));
  } else if (Data2::GetUnique(asset) != 0) {
    AssetBuilder(m_context, ElementKind::MandatoryAsset, *asset, nullptr, m_report).Add();
  }
}

void ElementBuilder::LeaveOutMandatoryAssets() {
  for (int i = 0; i < m_context.pose.GetChildCount(); ++i) {
    const BuildElement element = PieceSteps::Describe(ElementKind::MandatoryAsset, m_context.pose.GetChild(i), nullptr);
    m_report.omissions.push_back({element, OmissionReason::NoBody, L""});
  }
}

void ElementBuilder::AddCloth() {
  BuiltPiece piece;
  piece.element = PieceSteps::Describe(ElementKind::Clothing, &m_context.cloth, &m_context.style);
  if (!PieceSteps::HasFields(&m_context.cloth, {FIELD_FOLDER, FIELD_NAME}, piece.element, m_report)) return;
  const std::wstring folder = RepositoryPaths::Element(m_context.characterFolder, &m_context.cloth);
  piece.meshFile = RepositoryPaths::ClothMesh(folder, m_context.clothId, m_context.poseId);
  INode* node = PieceSteps::AddNode(piece, m_context.parent, m_report);
  if (node == nullptr) return;
  node->SetUserPropString(L"ZORVEL_CLOTH", m_context.clothId.c_str());
  node->SetUserPropString(L"ZORVEL_POSE", m_context.poseId.c_str());
  piece.material =
      PieceSteps::ResolveMaterial(m_context.style, MaterialLibraries::OfElement(m_context, folder), m_context, *node);
  m_report.pieces.push_back(piece);
}

void ElementBuilder::AddSelectedAssets() {
  Debug::AddDebugMessage(DEBUG_INFO, L"add assets:");
  for (int i = 0; i < Selection2::GetAssetCount(); ++i) {
    const int unique = Selection2::GetAsset(i);
    if (unique != 0) AddSelectedAsset(unique);
  }
}

void ElementBuilder::AddSelectedAsset(int unique) {
  DataContainer* asset = nullptr;
  DataContainer* material = nullptr;
  const bool isShared = Data2::GetGlobalAssetAndMaterial(unique, asset, material);
  if (isShared || m_context.character.GetAssetAndMaterial(unique, asset, material)) {
    const ElementKind kind = isShared ? ElementKind::SharedAsset : ElementKind::Asset;
    AssetBuilder(m_context, kind, *asset, material, m_report).Add();
    return;
  }
  BuildElement element;
  element.kind = ElementKind::Asset;
  m_report.omissions.push_back({element, OmissionReason::NotInModel, std::to_wstring(unique)});
}

}  // namespace ZORVEL
