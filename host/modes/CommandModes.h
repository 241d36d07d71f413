#pragma once

#include <cmdmode.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace host {

/// The stack of command modes with the host's standard mode always at the bottom. A mode that becomes current is
/// entered, one that ceases to be is left; EnterMode and ExitMode may change the stack themselves. Modes stay their
/// owner's, who takes one out with `remove` before it ends. Null is passed over everywhere.
class CommandModes {
 public:
  /// The host's command that makes the standard mode current.
  static constexpr int STANDARD_MODE_COMMAND = 91;

  CommandModes();
  ~CommandModes();
  CommandModes(const CommandModes&) = delete;
  CommandModes& operator=(const CommandModes&) = delete;

  CommandMode& current() const { return *stack_.back(); }
  CommandMode& standard() const { return *stack_.front(); }
  std::size_t depth() const { return stack_.size(); }
  /// Rises whenever another mode becomes current.
  std::uint64_t generation() const { return generation_; }

  void push(CommandMode* mode);
  /// Takes the place of the mode on top, the standard mode excepted. Setting the mode that is current already changes
  /// nothing: it is neither left nor entered again.
  void set(CommandMode* mode);
  /// The standard mode stays.
  void pop();
  /// Takes the mode out wherever it stands.
  void remove(CommandMode* mode);
  void returnToStandard();

  /// Records the number; one that names a mode returns to the standard mode.
  void execute(int command);
  const std::vector<int>& executed() const { return executed_; }

 private:
  void replaceStack(std::vector<CommandMode*> stack);

  std::unique_ptr<CommandMode> standard_;
  std::vector<CommandMode*> stack_;
  std::vector<int> executed_;
  std::uint64_t generation_ = 0;
};

}  // namespace host
