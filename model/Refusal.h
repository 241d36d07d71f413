#pragma once

#include <string>
#include <utility>

namespace ZORVEL {

/// Why an element is not offered, or offered as not available.
enum class WhyNot {
  Nothing,          ///< it is offered and available
  FolderUnnamed,    ///< the field that is missing
  FolderMissing,    ///< the folder
  NeverChecked,     ///< the folder of the character, whose elements are not checked without it
  PictureMissing,   ///< the file
  MeshMissing,      ///< the file: the clothing has no mesh in the pose
  NoClothing,       ///< the id that is chosen and finds no clothing, empty when none is
  NoPose,           ///< the same for the pose
  CategoryUnnamed,  ///< the field that is missing
  CategoryUnknown,  ///< the id that finds no category
  NoMatrixRow,      ///< the ids of pose and asset, for which the asset matrix has no row
  Excluded,         ///< the id of the asset, which the clothing excludes
  GlobalUnnamed,    ///< the field that is missing
  GlobalUnknown     ///< the id that finds no global asset
};

/// An answer with what it concerns, as said above.
struct Refusal {
  Refusal() = default;
  Refusal(WhyNot reason, std::wstring what) : why(reason), concerned(std::move(what)) {}

  /// A sentence for a person; empty for Nothing.
  std::wstring GetText() const;

  WhyNot why = WhyNot::Nothing;
  std::wstring concerned;
};

}  // namespace ZORVEL
