#pragma once

#include <QTabBar>
#include <QTabWidget>

class QStylePainter;

namespace ZORVEL {

/// Tabs that look like buttons, all of one size.
class TabButtons : public QTabBar {
  Q_OBJECT

 public:
  explicit TabButtons(QWidget* parent = nullptr);

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintButton(QStylePainter& painter, int index) const;
};

class TabControl : public QTabWidget {
  Q_OBJECT

 public:
  explicit TabControl(QWidget* parent = nullptr);
};

}  // namespace ZORVEL
