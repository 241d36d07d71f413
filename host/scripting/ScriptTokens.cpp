#include "host/scripting/ScriptTokens.h"

#include <cwctype>

namespace host {

namespace {

/// From the opening quote at `at`; leaves it behind the closing one. False without one.
bool readText(const std::wstring& script, std::size_t& at, std::wstring& text) {
  for (++at; at < script.size(); ++at) {
    if (script[at] == L'"') return ++at, true;
    if (script[at] == L'\\' && at + 1 < script.size()) ++at;
    text += script[at];
  }
  return false;
}

std::wstring readWord(const std::wstring& script, std::size_t& at) {
  std::wstring word;
  while (at < script.size() && std::iswspace(static_cast<wint_t>(script[at])) == 0 && script[at] != L'"' &&
         script[at] != L'=') {
    word += static_cast<wchar_t>(std::towlower(static_cast<wint_t>(script[at++])));
  }
  return word;
}

}  // namespace

std::vector<ScriptToken> scriptTokens(const std::wstring& script) {
  std::vector<ScriptToken> tokens;
  std::size_t at = 0;
  while (at < script.size()) {
    if (std::iswspace(static_cast<wint_t>(script[at])) != 0) {
      ++at;
    } else if (script[at] == L'"') {
      tokens.push_back({true, L""});
      if (!readText(script, at, tokens.back().value)) return {};
    } else if (script[at] == L'=') {
      tokens.push_back({false, L"="});
      ++at;
    } else {
      tokens.push_back({false, readWord(script, at)});
    }
  }
  return tokens;
}

}  // namespace host
