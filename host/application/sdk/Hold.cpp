#include <hold.h>

#include "host/application/Application.h"
#include "host/services/UndoStack.h"

Hold theHold;

namespace {

host::UndoStack& stack() { return host::Application::instance().undo(); }

}  // namespace

void Hold::Begin() { stack().begin(); }

bool Hold::Put(RestoreObj* object) { return stack().put(std::unique_ptr<RestoreObj>(object)); }

void Hold::Accept(const MCHAR* commandName) { stack().accept(commandName != nullptr ? commandName : L""); }

void Hold::Cancel() { stack().cancel(); }

int Hold::Holding() const { return stack().recording() ? 1 : 0; }

int Hold::RestoreOrRedoing() const { return stack().replaying() ? 1 : 0; }

int Hold::GetBeginDepth() const { return stack().depth(); }
