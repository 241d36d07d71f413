#pragma once

#include <QDockWidget>
#include <QTreeWidget>

class INode;

namespace host {
class Node;
}

namespace stage {

/// The tree of the scene's nodes; what is chosen in it is the scene's selection, and the other way round.
class NodePanel : public QDockWidget {
  Q_OBJECT

 public:
  explicit NodePanel(QWidget* parent = nullptr);

  QTreeWidget& tree() const { return *tree_; }

 public slots:
  void refresh();

 private:
  void rebuild();
  void add(const host::Node& node, QTreeWidgetItem* parent);
  void showSelection();
  void takeSelection();

  QTreeWidget* tree_;
  /// What the tree was made from.
  std::vector<std::pair<quint64, QString>> shown_;
  bool following_ = false;
};

}  // namespace stage
