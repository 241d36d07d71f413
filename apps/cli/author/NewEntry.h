#pragma once

#include <string>
#include <vector>

#include "apps/cli/author/AddOptions.h"
#include "apps/cli/author/Element.h"
#include "apps/cli/author/EntryKind.h"
#include "apps/support/ExitStatus.h"

namespace cli {

/// An entry that fits into a description, or why it does not.
struct NewEntry {
  EntryKind kind = EntryKind::Character;
  /// The entry first, then the rows of the asset matrix that it needs.
  std::vector<Addition> additions;
  /// The entry itself, wherever it is in the additions.
  Element element;
  /// The id of its character; empty for what belongs to none.
  std::wstring character;
  /// Of a style.
  std::wstring clothing;
  /// How many rows of the asset matrix there are among the additions.
  std::size_t rows = 0;

  /// One line; empty for an entry that fits.
  std::string refusal;
  apps::ExitStatus status = apps::EXIT_CLEAN;
};

NewEntry planEntry(const Element& description, const AddOptions& options);

}  // namespace cli
