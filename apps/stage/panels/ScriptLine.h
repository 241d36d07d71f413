#pragma once

#include <QLineEdit>
#include <QStringList>

namespace stage {

/// Takes one line of script and runs it; the arrow keys bring earlier lines back.
class ScriptLine : public QLineEdit {
  Q_OBJECT

 public:
  explicit ScriptLine(QWidget* parent = nullptr);

  /// Runs the text as if it had been typed. False when the host does not understand it.
  bool run(const QString& script);

 signals:
  void executed(const QString& script, bool understood);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void recall(int step);

  QStringList history_;
  int place_ = 0;
};

}  // namespace stage
