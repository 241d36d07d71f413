#include "apps/stage/panels/ScriptLine.h"

#include <maxscript/maxscript.h>

#include <QKeyEvent>

namespace stage {

namespace {

constexpr int MOST_REMEMBERED = 200;

}  // namespace

ScriptLine::ScriptLine(QWidget* parent) : QLineEdit(parent) {
  setPlaceholderText(tr("Script: for example  qat.add \"ZORVEL\" \"ZORVEL Manager\""));
  setToolTip(tr("Runs one line of script (Enter); Up and Down bring earlier lines back"));
  setAccessibleName(tr("Script line"));
  setMaxLength(10000);
  connect(this, &QLineEdit::returnPressed, this, [this] {
    const QString script = text().trimmed();
    if (script.isEmpty()) return;
    clear();
    run(script);
  });
}

bool ScriptLine::run(const QString& script) {
  history_.removeAll(script);
  history_ << script;
  if (history_.size() > MOST_REMEMBERED) history_.removeFirst();
  place_ = history_.size();
  const bool understood = ExecuteMAXScriptScript(script.toStdWString().c_str()) != FALSE;
  emit executed(script, understood);
  return understood;
}

void ScriptLine::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up) return recall(-1);
  if (event->key() == Qt::Key_Down) return recall(1);
  QLineEdit::keyPressEvent(event);
}

void ScriptLine::recall(int step) {
  place_ = qBound(0, place_ + step, history_.size());
  setText(place_ < history_.size() ? history_[place_] : QString());
}

}  // namespace stage
