#include "apps/stage/panels/ListenerPanel.h"

#include <QVBoxLayout>

#include "apps/stage/ShownText.h"

namespace stage {

namespace {

const QColor REPORTED(232, 178, 112);
const QColor TYPED(150, 196, 232);
const QColor ANSWERED(200, 200, 200);

}  // namespace

ListenerPanel::ListenerPanel(QWidget* parent)
    : QDockWidget(tr("Listener"), parent), lines_(new QPlainTextEdit), script_(new ScriptLine) {
  setObjectName("listener");
  lines_->setReadOnly(true);
  lines_->setMaximumBlockCount(2000);
  lines_->setToolTip(tr("What the host reports and what scripts answer"));
  lines_->setAccessibleName(tr("Listener"));
  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addWidget(lines_);
  layout->addWidget(script_);
  setWidget(content);
  connect(script_, &ScriptLine::executed, this, [this](const QString& script, bool understood) {
    append(script, TYPED);
    append(understood ? "OK" : "false", ANSWERED);
  });
}

void ListenerPanel::report(const QStringList& lines) {
  for (const QString& line : lines) append("-- " + line, REPORTED);
}

void ListenerPanel::append(const QString& line, const QColor& color) {
  lines_->appendHtml(QString("<span style=\"white-space:pre-wrap;color:%1\">%2</span>")
                         .arg(color.name(), shownText(line).toHtmlEscaped()));
}

}  // namespace stage
