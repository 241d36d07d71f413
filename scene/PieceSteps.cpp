#include "scene/PieceSteps.h"

#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "scene/BuildContext.h"
#include "scene/MaterialResolver.h"
#include "scene/SceneNodes.h"

namespace ZORVEL {

using namespace RepositoryFormat;

BuildElement PieceSteps::Describe(ElementKind kind, const DataContainer* record, const DataContainer* materialRecord) {
  BuildElement element;
  element.kind = kind;
  element.id = Fields::TextOrEmpty(record, FIELD_ID);
  element.name = Fields::TextOrEmpty(record, FIELD_NAME);
  element.materialId = Fields::TextOrEmpty(materialRecord, FIELD_ID);
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

MaterialResult PieceSteps::ResolveMaterial(const DataContainer& record, const std::vector<std::wstring>& libraries,
                                           const BuildContext& context, INode& node) {
  const wchar_t* name = Fields::OptionalText(&record, FIELD_MATERIAL);
  return MaterialResolver::Resolve({name, libraries, context.globalMaps}, node);
}

}  // namespace ZORVEL
