#pragma once

#include <QPointer>
#include <QWidget>

#include "apps/stage/Questions.h"

namespace stage {

/// Asks with dialogs over the window.
class QtQuestions : public Questions {
 public:
  /// Answers the host's own questions for files, too, as long as it lives.
  explicit QtQuestions(QWidget* window);
  ~QtQuestions() override;

  File openFile(const QString& title, const QString& filter) override;
  File saveFile(const QString& title, const QString& filter, const QString& suffix) override;
  Unsaved unsavedChanges(const QString& name) override;

 private:
  QPointer<QWidget> window_;
  QString folder_;
};

}  // namespace stage
