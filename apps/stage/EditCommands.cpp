#include "apps/stage/EditCommands.h"

#include <hold.h>

#include <unordered_set>
#include <vector>

#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "host/services/UndoStack.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

/// Children first, so that none moves up to its grandparent only to go as well.
void collect(const host::Ref<host::Node>& node, std::unordered_set<const host::Node*>& known,
             std::vector<host::Ref<host::Node>>& out) {
  if (!known.insert(node.get()).second) return;
  for (const auto& child : node->children()) collect(child, known, out);
  out.push_back(node);
}

}  // namespace

void EditCommands::undo() {
  if (application().undo().undo()) application().interface().RedrawViews(0);
}

void EditCommands::redo() {
  if (application().undo().redo()) application().interface().RedrawViews(0);
}

void EditCommands::deleteSelection() {
  std::vector<host::Ref<host::Node>> nodes;
  std::unordered_set<const host::Node*> known;
  for (const auto& node : application().scene().selection()) collect(node, known, nodes);
  if (nodes.empty()) return;
  theHold.Begin();
  // All of it goes, so no single node needs to be taken out of the selection.
  application().scene().clearSelection();
  for (const auto& node : nodes) application().interface().DeleteNode(node.get(), FALSE, FALSE);
  theHold.Accept(L"Delete");
  application().interface().RedrawViews(0);
}

void EditCommands::selectAll() {
  std::vector<host::Node*> tops;
  for (const auto& node : application().scene().root().children()) tops.push_back(node.get());
  application().scene().select(tops);
}

void EditCommands::selectNone() { application().scene().clearSelection(); }

void EditCommands::selectByMouse() { application().modes().returnToStandard(); }

}  // namespace stage
