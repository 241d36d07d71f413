#include "scene/ElementBuilder.h"

#include "core/Debug.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/Selection2.h"
#include "scene/BuildContext.h"
#include "scene/BuildReport.h"

namespace ZORVEL {

ElementBuilder::ElementBuilder(const BuildContext& context, BuildReport& report)
    : m_context(context),
      m_report(report),
      m_plans(context.character, context.repositoryPath),
      m_pieces(context, report) {}

void ElementBuilder::AddAll() const {
  if (AddBody()) {
    AddMandatoryAssets();
  } else {
    LeaveOutMandatoryAssets();
  }
  AddCloth();
  AddSelectedAssets();
}

bool ElementBuilder::AddBody() const {
  return m_pieces.Add(m_plans.Body(m_context.pose, &m_context.skin),
                      {{L"ZORVEL_CHAR", Fields::OptionalText(&m_context.character, RepositoryFormat::FIELD_ID)},
                       {L"ZORVEL_POSE", m_context.poseId.c_str()}});
}

void ElementBuilder::AddMandatoryAssets() const {
  for (int i = 0; i < m_context.pose.GetChildCount(); ++i) {
    Debug::AddDebugMessage(DEBUG_INFO, L"add mandatory element...");
    AddAsset(m_plans.Mandatory(m_context.pose.GetChild(i), m_context.poseId));
  }
}

void ElementBuilder::LeaveOutMandatoryAssets() const {
  for (int i = 0; i < m_context.pose.GetChildCount(); ++i) {
    const BuildElement element = PiecePlans::Describe(ElementKind::MandatoryAsset, m_context.pose.GetChild(i), nullptr);
    m_report.omissions.push_back({element, OmissionReason::NoBody, L""});
  }
}

void ElementBuilder::AddCloth() const {
  m_pieces.Add(m_plans.Clothing(m_context.cloth, &m_context.style, m_context.pose),
               {{L"ZORVEL_CLOTH", m_context.clothId.c_str()}, {L"ZORVEL_POSE", m_context.poseId.c_str()}});
}

void ElementBuilder::AddSelectedAssets() const {
  Debug::AddDebugMessage(DEBUG_INFO, L"add assets:");
  for (int i = 0; i < Selection2::GetAssetCount(); ++i) {
    const int unique = Selection2::GetAsset(i);
    if (unique != 0) AddSelectedAsset(unique);
  }
}

void ElementBuilder::AddSelectedAsset(int unique) const {
  DataContainer* asset = nullptr;
  DataContainer* material = nullptr;
  const bool isShared = Data2::GetGlobalAssetAndMaterial(unique, asset, material);
  if (isShared || m_context.character.GetAssetAndMaterial(unique, asset, material)) {
    const ElementKind kind = isShared ? ElementKind::SharedAsset : ElementKind::Asset;
    return AddAsset(m_plans.Asset(kind, *asset, material, m_context.poseId));
  }
  BuildElement element;
  element.kind = ElementKind::Asset;
  m_report.omissions.push_back({element, OmissionReason::NotInModel, std::to_wstring(unique)});
}

void ElementBuilder::AddAsset(const PiecePlan& plan) const {
  m_pieces.Add(plan, {{L"ZORVEL_ASSET", plan.element.id.c_str()}});
}

}  // namespace ZORVEL
