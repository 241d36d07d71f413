#include "host/scripting/ScriptRunner.h"

#include <maxapi.h>

#include <cstdint>
#include <optional>

#include "host/actions/ActionManager.h"
#include "host/actions/QuickAccessBar.h"
#include "host/files/Paths.h"
#include "host/scripting/ScriptTokens.h"
#include "host/services/Listener.h"

namespace host {

namespace {

using Tokens = std::vector<ScriptToken>;

/// Whether the tokens are a word, then as many others of which `texts` says which are texts ("t") and which words
/// ("w").
bool matches(const Tokens& tokens, const wchar_t* first, const std::string& texts) {
  if (tokens.size() != texts.size() + 1 || tokens[0].isText || tokens[0].value != first) return false;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (tokens[i + 1].isText != (texts[i] == 't')) return false;
  }
  return true;
}

std::optional<std::uint32_t> number(const std::wstring& text) {
  if (text.empty() || text.size() > 10 || text.find_first_not_of(L"0123456789") != std::wstring::npos)
    return std::nullopt;
  const unsigned long long value = std::stoull(text);
  return value <= 0xFFFFFFFFU ? std::optional(static_cast<std::uint32_t>(value)) : std::nullopt;
}

std::string executeAction(ActionManager& actions, const std::wstring& table, const std::wstring& command) {
  const auto tableId = number(table);
  const auto commandId = number(command);
  const bool ran = tableId && commandId && actions.executeAction(*tableId, static_cast<int>(*commandId));
  return ran ? "" : "No such action is active: " + toUtf8(table) + " \"" + toUtf8(command) + "\"";
}

}  // namespace

std::string ScriptRunner::execute(const Tokens& tokens) {
  if (matches(tokens, L"qat.add", "tt")) {
    quickAccess_.add(tokens[1].value, tokens[2].value);
    return "";
  }
  if (matches(tokens, L"actionman.executeaction", "wt"))
    return executeAction(actions_, tokens[1].value, tokens[2].value);
  if (matches(tokens, L"animbuttonstate", "ww") && tokens[1].value == L"=" &&
      (tokens[2].value == L"true" || tokens[2].value == L"false")) {
    interface_.SetAnimateButtonState(tokens[2].value == L"true" ? TRUE : FALSE);
    return "";
  }
  return "Script not understood";
}

bool ScriptRunner::run(const std::wstring& text) {
  texts_.push_back(text);
  const std::string problem = execute(scriptTokens(text));
  if (problem.empty()) return true;
  Listener::instance().report(problem + ": " + toUtf8(text));
  return false;
}

}  // namespace host
