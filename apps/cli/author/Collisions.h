#pragma once

#include <string>
#include <vector>

#include "apps/cli/author/Element.h"

namespace cli {

// Where a new entry would meet those that are there, as Windows compares names: without regard to letter case. All
// answer a sentence, empty where nothing meets.

/// `word` says what they are.
std::string whyIdTaken(const std::wstring& id, const std::string& word, const std::vector<const Element*>& others);

std::string whyFolderTaken(const std::wstring& folder, const std::vector<const Element*>& others);

/// By something that is no element.
std::string whyFolderReserved(const std::wstring& folder, const std::vector<std::wstring>& reserved);

/// Ids of clothing and poses are joined in the names of pictures, where those of different elements may come out as
/// one. `added` is a clothing or a pose.
std::string whyPictureTaken(const Element& added, std::vector<const Element*> clothing,
                            std::vector<const Element*> poses);

}  // namespace cli
