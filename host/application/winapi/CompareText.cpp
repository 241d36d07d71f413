#include <windows.h>

#include <string_view>

#include "host/files/NameCase.h"

namespace {

std::wstring_view textOf(LPCWSTR text, int length) {
  return length < 0 ? std::wstring_view(text) : std::wstring_view(text, static_cast<std::size_t>(length));
}

}  // namespace

int WINAPI CompareStringOrdinal(LPCWSTR left, int leftLength, LPCWSTR right, int rightLength, BOOL ignoreCase) {
  if (!left || !right) return 0;
  const std::wstring_view first = textOf(left, leftLength);
  const std::wstring_view second = textOf(right, rightLength);
  const int order = ignoreCase ? host::inCapitals(first).compare(host::inCapitals(second)) : first.compare(second);
  if (order == 0) return CSTR_EQUAL;
  return order < 0 ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
}
