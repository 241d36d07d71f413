#include "apps/stage/panels/NodePanel.h"

#include <QHash>
#include <QHeaderView>
#include <QSet>

#include "apps/stage/ShownText.h"
#include "host/application/Application.h"
#include "host/scene/Scene.h"

namespace stage {

namespace {

constexpr int HANDLE_ROLE = Qt::UserRole;

host::Scene& scene() { return host::Application::instance().scene(); }

QString kindOf(host::Node& node) {
  if (node.IsGroupHead() != FALSE) return NodePanel::tr("Group");
  const Object* object = node.GetObjectRef();
  const SClass_ID kind = object != nullptr ? const_cast<Object*>(object)->SuperClassID() : 0;
  if (kind == GEOMOBJECT_CLASS_ID) return NodePanel::tr("Geometry");
  return kind == SHAPE_CLASS_ID ? NodePanel::tr("Shape") : NodePanel::tr("Helper");
}

/// Handle, parent and name of every node, in order: equal when the tree would look the same.
std::vector<std::pair<quint64, QString>> contents() {
  std::vector<std::pair<quint64, QString>> result;
  for (host::Node* node : scene().nodes()) {
    const quint64 parent = node->GetParentNode()->GetHandle();
    result.emplace_back((parent << 32U) | node->GetHandle(), QString::fromWCharArray(node->GetName()));
  }
  return result;
}

QList<QTreeWidgetItem*> allItems(const QTreeWidget& tree) {
  return tree.findItems("*", Qt::MatchWildcard | Qt::MatchRecursive);
}

quint64 handleOf(const QTreeWidgetItem* item) { return item->data(0, HANDLE_ROLE).toULongLong(); }

}  // namespace

NodePanel::NodePanel(QWidget* parent) : QDockWidget(tr("Scene"), parent), tree_(new QTreeWidget) {
  setObjectName("scene");
  tree_->setColumnCount(2);
  tree_->setHeaderLabels({tr("Name"), tr("Kind")});
  tree_->header()->setStretchLastSection(false);
  tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  tree_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tree_->setUniformRowHeights(true);
  tree_->setIndentation(14);
  tree_->setAlternatingRowColors(true);
  tree_->setToolTip(tr("Nodes of the scene: click to select, Del deletes, Z frames"));
  tree_->setAccessibleName(tr("Nodes of the scene"));
  setWidget(tree_);
  connect(tree_, &QTreeWidget::itemSelectionChanged, this, [this] {
    if (!following_) takeSelection();
  });
}

void NodePanel::refresh() {
  following_ = true;
  auto now = contents();
  if (now != shown_) {
    shown_ = std::move(now);
    rebuild();
  }
  showSelection();
  following_ = false;
}

void NodePanel::rebuild() {
  QSet<quint64> closed;
  for (const QTreeWidgetItem* item : allItems(*tree_)) {
    if (item->childCount() > 0 && !item->isExpanded()) closed.insert(handleOf(item));
  }
  tree_->setUpdatesEnabled(false);
  tree_->clear();
  for (const auto& node : scene().root().children()) add(*node, tree_->invisibleRootItem());
  tree_->expandAll();
  for (QTreeWidgetItem* item : allItems(*tree_)) {
    if (closed.contains(handleOf(item))) item->setExpanded(false);
  }
  tree_->setUpdatesEnabled(true);
}

void NodePanel::add(const host::Node& node, QTreeWidgetItem* parent) {
  auto& shown = const_cast<host::Node&>(node);
  auto* item = new QTreeWidgetItem(parent, {shownText(QString::fromWCharArray(shown.GetName())), kindOf(shown)});
  item->setData(0, HANDLE_ROLE, static_cast<quint64>(shown.GetHandle()));
  item->setForeground(1, QColor(150, 150, 150));
  for (const auto& child : node.children()) add(*child, item);
}

void NodePanel::showSelection() {
  QSet<quint64> selected;
  for (const auto& node : scene().selection()) selected.insert(node->GetHandle());
  for (QTreeWidgetItem* item : allItems(*tree_)) {
    const bool wanted = selected.contains(handleOf(item));
    if (item->isSelected() == wanted) continue;
    item->setSelected(wanted);
    if (wanted) tree_->scrollToItem(item);
  }
}

void NodePanel::takeSelection() {
  QHash<quint64, host::Node*> byHandle;
  for (host::Node* node : scene().nodes()) byHandle.insert(node->GetHandle(), node);
  std::vector<host::Node*> selected;
  for (const QTreeWidgetItem* item : tree_->selectedItems()) {
    if (host::Node* node = byHandle.value(handleOf(item))) selected.push_back(node);
  }
  scene().select(selected);
}

}  // namespace stage
