#include "host/files/JsonBounds.h"

#include <vector>

namespace host {

namespace {

/// Some objects keep the order of their members, and look through all of them for each.
constexpr std::size_t MOST_MEMBERS = 2000;

/// Behind the string that begins there.
std::size_t endOfString(std::string_view json, std::size_t at) {
  for (++at; at < json.size() && json[at] != '"'; ++at) {
    if (json[at] == '\\') ++at;
  }
  return at;
}

}  // namespace

bool isWithinBounds(std::string_view json, std::size_t mostValues) {
  std::size_t values = 0;
  // Of the objects and arrays that are open: those of an array are no members.
  std::vector<std::size_t> members;
  std::vector<bool> isObject;
  for (std::size_t at = 0; at < json.size(); ++at) {
    const char c = json[at];
    if (c == '"') {
      at = endOfString(json, at);
    } else if (c == '{' || c == '[') {
      members.push_back(0);
      isObject.push_back(c == '{');
      ++values;
    } else if ((c == '}' || c == ']') && !members.empty()) {
      members.pop_back();
      isObject.pop_back();
    } else if (c == ',') {
      ++values;
      if (!members.empty() && isObject.back() && ++members.back() >= MOST_MEMBERS) return false;
    }
    if (values > mostValues) return false;
  }
  return true;
}

}  // namespace host
