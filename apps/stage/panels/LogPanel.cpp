#include "apps/stage/panels/LogPanel.h"

#include <QAction>

#include "apps/stage/ShownText.h"

namespace stage {

namespace {

constexpr int MOST_SHOWN = 5000;

QColor colorOf(int level) {
  switch (level) {
    case 2:
      return {232, 110, 96};
    case 1:
      return {232, 196, 96};
    default:
      return {190, 190, 190};
  }
}

}  // namespace

LogPanel::LogPanel(QWidget* parent) : QDockWidget(tr("Plug-in Log"), parent), list_(new QListWidget) {
  setObjectName("log");
  list_->setUniformItemSizes(true);
  list_->setToolTip(tr("What the plug-in logs; only a diagnostic build records it"));
  list_->setAccessibleName(tr("Plug-in log"));
  setWidget(list_);
  follow({});
}

void LogPanel::follow(const ModuleLog& log) {
  log_ = log;
  seen_ = 0;
  list_->clear();
  setVisible(log_.records());
  toggleViewAction()->setEnabled(log_.records());
  refresh();
}

void LogPanel::refresh() {
  const std::vector<ModuleLog::Line> lines = log_.linesFrom(seen_);
  if (lines.empty()) return;
  seen_ += static_cast<int>(lines.size());
  for (const ModuleLog::Line& line : lines) {
    auto* item = new QListWidgetItem(shownText(line.text), list_);
    item->setForeground(colorOf(line.level));
  }
  while (list_->count() > MOST_SHOWN) delete list_->takeItem(0);
  list_->scrollToBottom();
}

}  // namespace stage
