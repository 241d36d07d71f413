#include "model/LibrarySearches.h"

#include <algorithm>

namespace ZORVEL {

namespace {

bool Saw(const MaterialResult& result, LibraryState state) {
  return std::any_of(result.searches.begin(), result.searches.end(),
                     [state](const LibrarySearch& one) { return one.state == state; });
}

MaterialState StateAfter(const MaterialResult& result) {
  if (Saw(result, LibraryState::HoldsMaterial)) return MaterialState::FromLibrary;
  return Saw(result, LibraryState::NameOfMap) ? MaterialState::NameOfMap : MaterialState::InNoLibrary;
}

}  // namespace

MaterialResult LibrarySearches::Run(const wchar_t* name, const std::vector<std::wstring>& files, const Look& look) {
  MaterialResult result;
  result.state = MaterialState::NoField;
  if (name == nullptr) return result;
  result.name = name;
  for (const std::wstring& file : files) {
    result.searches.push_back({file, look(file, name)});
    if (result.searches.back().state == LibraryState::HoldsMaterial) break;
  }
  result.state = StateAfter(result);
  return result;
}

}  // namespace ZORVEL
