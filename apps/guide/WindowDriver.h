#pragma once

#include <QTabWidget>
#include <QTreeWidget>
#include <filesystem>

#include "apps/stage/StageWindow.h"

namespace guide {

/// Uses the stage and the plug-in's window as a person does, with mouse events, and takes pictures. What a step needs
/// and does not find ends the program with a message: a guide with a wrong picture would be worse.
class WindowDriver {
 public:
  WindowDriver(stage::StageWindow& stage, std::filesystem::path folder);

  /// Presses the plug-in's button in the stage's tool bar.
  void openWindow();
  QWidget& window() const;
  void chooseCharacter(const QString& name);
  void chooseClothing(const QString& character, const QString& clothing);
  void showTab(const QString& title);
  /// Ticks the check box with this text on the page that is shown.
  void tick(const QString& text);
  void pressCreate();
  // In the stage's viewport, as shares of its width and height.
  void movePointer(double x, double y);
  void click(double x, double y);
  void undo();

  void takeWindow(const QString& name) const;
  void takeStage(const QString& name) const;

 private:
  QTreeWidget& tree() const;
  QTabWidget& tabs() const;
  QPoint pixel(double x, double y) const;

  stage::StageWindow& stage_;
  std::filesystem::path folder_;
};

}  // namespace guide
