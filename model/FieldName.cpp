#include "model/FieldName.h"

#include <cwchar>
#include <memory>
#include <set>

namespace ZORVEL {

namespace {

using Name = std::unique_ptr<wchar_t[]>;

struct NameOrder {
  using is_transparent = void;
  bool operator()(const Name& left, const Name& right) const { return std::wcscmp(left.get(), right.get()) < 0; }
  bool operator()(const Name& left, const wchar_t* right) const { return std::wcscmp(left.get(), right) < 0; }
  bool operator()(const wchar_t* left, const Name& right) const { return std::wcscmp(left, right.get()) < 0; }
};

const wchar_t* HeldName(const wchar_t* text) {
  static std::set<Name, NameOrder> names;
  const auto held = names.find(text);
  if (held != names.end()) return held->get();
  const std::size_t size = std::wcslen(text) + 1;
  Name copy(new wchar_t[size]);
  std::wmemcpy(copy.get(), text, size);
  return names.insert(std::move(copy)).first->get();
}

}  // namespace

FieldName::FieldName(const wchar_t* text) : m_text(HeldName(text)) {}

}  // namespace ZORVEL
