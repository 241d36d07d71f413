#include "scene/ProxyObjectDatabase.h"

#include <algorithm>
#include <map>
#include <string>

#include "core/Debug.h"
#include "model/Utf16Order.h"

namespace ZORVEL {

namespace {

struct NameOrder {
  bool operator()(const std::wstring& a, const std::wstring& b) const { return CompareUtf16(a.c_str(), b.c_str()) < 0; }
};

using PathMap = std::map<std::wstring, Object*, NameOrder>;
using CountMap = std::map<const Object*, int>;

PathMap& Paths() {
  static PathMap paths;
  return paths;
}

CountMap& Counts() {
  static CountMap counts;
  return counts;
}

}  // namespace

Object* ProxyObjectDatabase::LookUp(const wchar_t* fileName) {
  const auto found = Paths().find(fileName);
  if (found == Paths().end()) return nullptr;
  ++Counts()[found->second];
  return found->second;
}

void ProxyObjectDatabase::Add(Object* object, const wchar_t* fileName) {
  Paths()[fileName] = object;
  Counts()[object] = 1;
}

void ProxyObjectDatabase::Release(const Object* object) {
  const auto entry = std::find_if(Paths().begin(), Paths().end(),
                                  [object](const PathMap::value_type& one) { return one.second == object; });
  if (entry == Paths().end()) return;
  const auto count = Counts().find(object);
  if (count == Counts().end()) return;
  --count->second;
  Debug::AddDebugMessage(DEBUG_INFO, L"Decrease count...");
  if (count->second >= 1) return;
  Debug::AddDebugMessage(DEBUG_INFO, L"Delete object from database...");
  Paths().erase(entry);
  Counts().erase(count);
}

void ProxyObjectDatabase::Clear() {
  Paths().clear();
  Counts().clear();
}

}  // namespace ZORVEL
