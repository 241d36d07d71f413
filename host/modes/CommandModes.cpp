#include "host/modes/CommandModes.h"

#include <algorithm>

#include "host/modes/StandardMode.h"

namespace host {

CommandModes::CommandModes() : standard_(std::make_unique<StandardMode>()), stack_{standard_.get()} {}

CommandModes::~CommandModes() = default;

// The stack is changed first, so that whoever asks while being left or entered sees what is to be.
void CommandModes::replaceStack(std::vector<CommandMode*> stack) {
  CommandMode* before = stack_.back();
  stack_ = std::move(stack);
  if (stack_.back() == before) return;
  const std::uint64_t generation = ++generation_;
  before->ExitMode();
  // Leaving may have made yet another mode current, which has been entered then.
  if (generation == generation_) stack_.back()->EnterMode();
}

void CommandModes::push(CommandMode* mode) {
  if (mode == nullptr) return;
  std::vector<CommandMode*> stack = stack_;
  stack.push_back(mode);
  replaceStack(std::move(stack));
}

void CommandModes::set(CommandMode* mode) {
  if (mode == nullptr || mode == stack_.back()) return;
  if (mode == standard_.get()) return returnToStandard();
  std::vector<CommandMode*> stack = stack_;
  if (stack.size() > 1) stack.pop_back();
  stack.push_back(mode);
  replaceStack(std::move(stack));
}

void CommandModes::pop() {
  if (stack_.size() > 1) replaceStack({stack_.begin(), stack_.end() - 1});
}

void CommandModes::remove(CommandMode* mode) {
  if (mode == standard_.get()) return;
  std::vector<CommandMode*> stack = stack_;
  stack.erase(std::remove(stack.begin(), stack.end(), mode), stack.end());
  replaceStack(std::move(stack));
}

void CommandModes::returnToStandard() { replaceStack({standard_.get()}); }

void CommandModes::execute(int command) {
  executed_.push_back(command);
  if (command == STANDARD_MODE_COMMAND) returnToStandard();
}

}  // namespace host
