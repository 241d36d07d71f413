#pragma once

#include <QDockWidget>
#include <QListWidget>

#include "apps/stage/ModuleLog.h"

namespace stage {

/// The messages that a diagnostic build of the plug-in records, as far as the panel is visible.
class LogPanel : public QDockWidget {
  Q_OBJECT

 public:
  explicit LogPanel(QWidget* parent = nullptr);

  /// Hidden for a module that records nothing.
  void follow(const ModuleLog& log);
  QListWidget& list() const { return *list_; }

 public slots:
  void refresh();

 private:
  QListWidget* list_;
  ModuleLog log_;
  int seen_ = 0;
};

}  // namespace stage
