#pragma once

#include <string>
#include <vector>

namespace host {

/// The stack of status line texts.
class Prompts {
 public:
  void push(const std::wstring& text) { stack_.push_back(text); }
  /// The lowest prompt stays.
  void pop() {
    if (stack_.size() > 1) stack_.pop_back();
  }
  void replace(const std::wstring& text) { stack_.back() = text; }
  const std::wstring& top() const { return stack_.back(); }
  std::size_t depth() const { return stack_.size(); }

 private:
  std::vector<std::wstring> stack_ = {L""};
};

}  // namespace host
