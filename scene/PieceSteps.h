#pragma once

#include <initializer_list>

#include "scene/BuildReport.h"

class INode;

namespace ZORVEL {

struct BuildContext;
class DataContainer;

/// The steps that body, clothing and assets have in common. What cannot be made is told to the report.
class PieceSteps {
 public:
  PieceSteps() = delete;

  /// `materialRecord` is null when the record itself names its material. A null record has no fields.
  static BuildElement Describe(ElementKind kind, const DataContainer* record, const DataContainer* materialRecord);
  /// False, and the element left out, when the record lacks one of the fields.
  static bool HasFields(const DataContainer* record, std::initializer_list<const wchar_t*> fields,
                        const BuildElement& element, BuildReport& report);
  /// The node of the piece's mesh file; null, and the element left out, when it cannot be made.
  static INode* AddNode(BuiltPiece& piece, INode& parent, BuildReport& report);
  /// Gives the node the material that the record names.
  static MaterialResult ResolveMaterial(const DataContainer& record, const std::vector<std::wstring>& libraries,
                                        const BuildContext& context, INode& node);
};

}  // namespace ZORVEL
