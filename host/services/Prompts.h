#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace host {

/// The stack of status line texts, and a temporary text over it. What is asked of a person is more than what they are
/// told: the temporary text goes when its time is up or the stack changes.
class Prompts {
 public:
  using Milliseconds = std::chrono::milliseconds;

  void push(const std::wstring& text) {
    stack_.push_back(text);
    temporaryEnd_ = {};
  }
  /// The lowest prompt stays.
  void pop() {
    if (stack_.size() > 1) stack_.pop_back();
    temporaryEnd_ = {};
  }
  void showTemporary(const std::wstring& text, Milliseconds time) {
    temporary_ = text;
    temporaryEnd_ = Clock::now() + time;
  }

  /// Of the stack.
  const std::wstring& top() const { return stack_.back(); }
  std::size_t depth() const { return stack_.size(); }
  /// What a person reads now.
  const std::wstring& shown() const { return temporaryLeft() > Milliseconds(0) ? temporary_ : top(); }
  /// How long `shown` stays as it is by itself; 0 when a temporary text has nothing to do with it.
  Milliseconds temporaryLeft() const {
    const auto left = temporaryEnd_ - Clock::now();
    return left > Clock::duration(0) ? std::chrono::ceil<Milliseconds>(left) : Milliseconds(0);
  }

 private:
  using Clock = std::chrono::steady_clock;

  std::vector<std::wstring> stack_ = {L""};
  std::wstring temporary_;
  Clock::time_point temporaryEnd_;
};

}  // namespace host
