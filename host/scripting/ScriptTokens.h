#pragma once

#include <string>
#include <vector>

namespace host {

/// A word, a sign or a text of a script.
struct ScriptToken {
  bool isText;
  /// Without quotes, escapes resolved. Words are in lower case: the language does not tell cases apart.
  std::wstring value;
};

/// The tokens of one line of script; none when a text in it does not end.
std::vector<ScriptToken> scriptTokens(const std::wstring& script);

}  // namespace host
