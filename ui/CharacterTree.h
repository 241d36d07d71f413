#pragma once

#include <QTreeWidget>

namespace ZORVEL {

/// A tree of names. It knows whether the keyboard is at work in it, tells the name that is under a resting pointer, and
/// says so when it is empty.
class CharacterTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit CharacterTree(QWidget* parent = nullptr);

  /// While a key that was pressed in the tree is being answered.
  bool IsHandlingKey() const { return m_handlingKey; }

 signals:
  void MouseMoved();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void ShowToolTip(const QHelpEvent& event);

  bool m_handlingKey = false;
};

}  // namespace ZORVEL
