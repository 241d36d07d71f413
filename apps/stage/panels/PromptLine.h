#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

namespace stage {

/// The bottom line: the prompt of the mode that is current, the last message, the system unit.
class PromptLine : public QStatusBar {
  Q_OBJECT

 public:
  explicit PromptLine(QWidget* parent = nullptr);

  QString prompt() const { return prompt_->text(); }
  QString message() const { return message_->text(); }

 public slots:
  void setPrompt(const QString& prompt);
  void say(const QString& message);
  /// Says it so that it is noticed.
  void warn(const QString& message);
  void setUnit(const QString& unit);
  /// Shown until 100.
  void setProgress(int percent);

 private:
  void showMessageIn(const QColor& color, const QString& message);

  QLabel* prompt_;
  QLabel* message_;
  QProgressBar* progress_;
  QLabel* unit_;
};

}  // namespace stage
