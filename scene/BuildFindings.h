#pragma once

#include <string>
#include <vector>

namespace ZORVEL {

struct BuildReport;

enum class FindingKind {
  NothingBuilt,
  LeftOut,
  Bare,      ///< built without a mesh, a material or a texture
  Unplaced,  ///< at the origin
  Loose      ///< the whole character is not in a group or not on its layer
};

struct BuildFinding {
  FindingKind kind;
  /// One sentence for a person, with the reason and the id or file that it speaks of.
  std::wstring text;
};

/// Says what keeps a character from being what was chosen.
class BuildFindings {
 public:
  BuildFindings() = delete;

  /// By kind, in the order of the enumeration; within a kind in the order of building. Empty when all is well.
  static std::vector<BuildFinding> Describe(const BuildReport& report);
};

}  // namespace ZORVEL
