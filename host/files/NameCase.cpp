#include "host/files/NameCase.h"

#include <clocale>
#include <cwctype>

namespace host {

namespace {

/// A locale that knows all characters.
locale_t unicodeLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

wchar_t capital(wchar_t c) {
  const auto wide = static_cast<wint_t>(c);
  const locale_t locale = unicodeLocale();
  return static_cast<wchar_t>(locale ? towupper_l(wide, locale) : towupper(wide));
}

}  // namespace

std::wstring inCapitals(std::wstring_view name) {
  std::wstring capitals(name);
  for (wchar_t& c : capitals) c = capital(c);
  return capitals;
}

}  // namespace host
