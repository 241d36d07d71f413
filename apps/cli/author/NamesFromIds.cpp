#include "apps/cli/author/NamesFromIds.h"

#include <algorithm>

#include "host/files/NameCase.h"

namespace cli {

namespace {

bool isBetweenWords(wchar_t c) { return c == L'_' || c == L'-' || c == L'.' || c == L' '; }

}  // namespace

std::wstring withoutOwner(const std::wstring& id, const std::wstring& owner) {
  const bool owned = !owner.empty() && id.size() > owner.size() + 1 && id.compare(0, owner.size(), owner) == 0 &&
                     isBetweenWords(id[owner.size()]);
  return owned ? id.substr(owner.size() + 1) : id;
}

std::wstring nameFor(const std::wstring& id) {
  std::wstring name = id;
  std::replace_if(name.begin(), name.end(), &isBetweenWords, L' ');
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (i == 0 || name[i - 1] == L' ') name.replace(i, 1, host::inCapitals(name.substr(i, 1)));
  }
  return name;
}

}  // namespace cli
