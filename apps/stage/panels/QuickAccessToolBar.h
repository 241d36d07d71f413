#pragma once

#include <QToolBar>

namespace stage {

/// Shows the buttons that the host's quick access bar holds. One whose plug-in takes no commands at the moment is
/// greyed.
class QuickAccessToolBar : public QToolBar {
  Q_OBJECT

 public:
  explicit QuickAccessToolBar(QWidget* parent = nullptr);

 public slots:
  void refresh();
};

}  // namespace stage
