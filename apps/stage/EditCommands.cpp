#include "apps/stage/EditCommands.h"

#include <hold.h>

#include <algorithm>
#include <vector>

#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/scene/Scene.h"
#include "host/services/UndoStack.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

/// Children first, so that none moves up to its grandparent only to go as well.
void collect(const host::Ref<host::Node>& node, std::vector<host::Ref<host::Node>>& out) {
  for (const auto& child : node->children()) collect(child, out);
  if (std::find(out.begin(), out.end(), node) == out.end()) out.push_back(node);
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
  for (const auto& node : application().scene().selection()) collect(node, nodes);
  if (nodes.empty()) return;
  theHold.Begin();
  for (const auto& node : nodes) application().interface().DeleteNode(node.get(), FALSE, FALSE);
  theHold.Accept(L"Delete");
  application().interface().RedrawViews(0);
}

void EditCommands::selectAll() {
  application().scene().clearSelection();
  for (const auto& node : application().scene().root().children()) application().scene().select(*node, false);
}

void EditCommands::selectNone() { application().scene().clearSelection(); }

}  // namespace stage
