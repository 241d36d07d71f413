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
  /// Rises whenever a mode becomes current, be it the same one again.
  std::uint64_t generation() const { return generation_; }

  void push(CommandMode* mode);
  /// Takes the place of the mode on top, the standard mode excepted. A mode that is current already is left and entered
  /// again; the standard mode is not.
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
  /// Nobody is left or entered when the mode on top stays the same.
  void replaceStack(std::vector<CommandMode*> stack);
  void changeMode(std::vector<CommandMode*> stack);

  std::unique_ptr<CommandMode> standard_;
  std::vector<CommandMode*> stack_;
  std::vector<int> executed_;
  std::uint64_t generation_ = 0;
};

}  // namespace host
