#include "model/Utf16Order.h"

#include <cstdint>

namespace ZORVEL {

namespace {

std::uint32_t FirstUnit(std::uint32_t character) {
  return character < 0x10000 ? character : 0xD800 + ((character - 0x10000) >> 10);
}

}  // namespace

int CompareUtf16(const wchar_t* left, const wchar_t* right) {
  if (!left) left = L"";
  if (!right) right = L"";
  while (*left && *left == *right) {
    ++left;
    ++right;
  }
  const auto a = static_cast<std::uint32_t>(*left);
  const auto b = static_cast<std::uint32_t>(*right);
  if (a == b) return 0;
  // Two that begin with the same surrogate differ in the second one, and so as code points.
  if (FirstUnit(a) == FirstUnit(b)) return a < b ? -1 : 1;
  return FirstUnit(a) < FirstUnit(b) ? -1 : 1;
}

}  // namespace ZORVEL
