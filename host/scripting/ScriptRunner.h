#pragma once

#include <string>
#include <vector>

namespace host {

/// Runs the script forms that the plug-in and its users need, and remembers every text.
class ScriptRunner {
 public:
  /// False, and a line for the listener, for a text that it does not understand.
  bool run(const std::wstring& text);
  const std::vector<std::wstring>& texts() const { return texts_; }

 private:
  std::vector<std::wstring> texts_;
};

}  // namespace host
