#include "host/files/NameFolding.h"

#include <clocale>
#include <cwctype>

namespace host {

namespace {

/// A locale that knows all characters, whatever the process's locale is.
locale_t unicodeLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

wchar_t foldCharacter(wchar_t c) {
  const auto wide = static_cast<wint_t>(c);
  const locale_t locale = unicodeLocale();
  if (!locale) return static_cast<wchar_t>(towlower(towupper(wide)));
  return static_cast<wchar_t>(towlower_l(towupper_l(wide, locale), locale));
}

}  // namespace

std::wstring foldName(std::wstring_view name) {
  std::wstring folded(name);
  for (wchar_t& c : folded) c = foldCharacter(c);
  return folded;
}

}  // namespace host
