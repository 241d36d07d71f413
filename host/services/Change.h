#pragma once

#include <functional>

namespace host {

/// Makes a change through `redo` and, while a recording is open, keeps both ways for later. What the functions capture
/// by Ref stays alive as long as the step does.
void applyChange(std::function<void()> undo, std::function<void()> redo);

/// Sets a member of a reference-counted target, undoably. A value that is already there records nothing.
template <class Owner, class Target, class Value>
void changeMember(const Owner& owner, Value Target::*member, Value value) {
  Target* target = owner.get();
  if (target->*member == value) return;
  Value before = target->*member;
  applyChange([owner, member, before] { owner.get()->*member = before; },
              [owner, member, value] { owner.get()->*member = value; });
}

}  // namespace host
