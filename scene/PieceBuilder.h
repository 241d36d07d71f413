#pragma once

#include <utility>
#include <vector>

class INode;

namespace ZORVEL {

struct BuildContext;
struct BuiltPiece;
struct BuildReport;
struct PiecePlan;

/// Makes the parts of a character as their plans say, each with its mesh, its place and its material, and tells the
/// report.
class PieceBuilder {
 public:
  /// Names of user properties and their texts, in the order in which they are set.
  using Properties = std::vector<std::pair<const wchar_t*, const wchar_t*>>;

  /// Both must outlive this.
  PieceBuilder(const BuildContext& context, BuildReport& report) : m_context(context), m_report(report) {}

  /// False when the part is left out.
  bool Add(const PiecePlan& plan, const Properties& properties) const;

 private:
  /// Null, and the part left out, when it cannot be made.
  INode* AddNode(BuiltPiece& piece) const;

  const BuildContext& m_context;
  BuildReport& m_report;
};

}  // namespace ZORVEL
