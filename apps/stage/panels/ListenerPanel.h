#pragma once

#include <QDockWidget>
#include <QPlainTextEdit>

#include "apps/stage/panels/ScriptLine.h"

namespace stage {

/// What the host reports, what scripts answer, and the line that takes scripts.
class ListenerPanel : public QDockWidget {
  Q_OBJECT

 public:
  explicit ListenerPanel(QWidget* parent = nullptr);

  ScriptLine& scriptLine() const { return *script_; }
  QString text() const { return lines_->toPlainText(); }

 public slots:
  void report(const QStringList& lines);

 private:
  void append(const QString& line, const QColor& color);

  QPlainTextEdit* lines_;
  ScriptLine* script_;
};

}  // namespace stage
