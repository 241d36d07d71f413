#include "scene/PieceSteps.h"

#include "model/Fields.h"
#include "scene/SceneNodes.h"

namespace ZORVEL {

namespace {

std::wstring TextOrEmpty(const DataContainer* record, const wchar_t* field) {
  const wchar_t* text = Fields::OptionalText(record, field);
  return text != nullptr ? text : L"";
}

}  // namespace

BuildElement PieceSteps::Describe(ElementKind kind, const DataContainer* record, const DataContainer* materialRecord) {
  BuildElement element;
  element.kind = kind;
  element.id = TextOrEmpty(record, L"id");
  element.name = TextOrEmpty(record, L"name");
  element.materialId = TextOrEmpty(materialRecord, L"id");
  return element;
}

bool PieceSteps::HasFields(const DataContainer* record, std::initializer_list<const wchar_t*> fields,
                           const BuildElement& element, BuildReport& report) {
  for (const wchar_t* field : fields) {
    if (Fields::OptionalText(record, field) != nullptr) continue;
    report.omissions.push_back({element, OmissionReason::NoField, field});
    return false;
  }
  return true;
}

INode* PieceSteps::AddNode(BuiltPiece& piece, INode& parent, BuildReport& report) {
  const ProxyNode added = SceneNodes::AddProxy(piece.meshFile, piece.element.name.c_str(), parent);
  piece.mesh = added.mesh;
  if (added.node == nullptr) report.omissions.push_back({piece.element, added.problem, piece.meshFile});
  return added.node;
}

}  // namespace ZORVEL
