#pragma once

#include <QPoint>
#include <memory>
#include <string>

#include "apps/stage/Questions.h"
#include "apps/stage/StageWindow.h"
#include "host/scene/Scene.h"
#include "tests/support/LoadedRepositoryFixture.h"

namespace support {

/// A stage window over a scene with steps, ramp, table and lamp, and the small repository loaded; the plug-in's code is
/// linked into the test. Mouse and keys go in where the window system delivers them.
class StageFixture : public LoadedRepositoryFixture {
 protected:
  void SetUp() override;
  void TearDown() override;

  stage::StageWindow& window() { return *window_; }
  stage::ViewportWidget& view() { return window_->view(); }
  static host::Scene& scene();
  static INode* node(const wchar_t* name);

  /// The nearest pixel of the viewport; the world point must be in view.
  QPoint pixelOf(const Point3& world);
  // In the viewport, its pixels.
  void move(const QPoint& pixel);
  void press(const QPoint& pixel, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
  void release(const QPoint& pixel, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
  void click(const QPoint& pixel, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
  void key(Qt::Key key, Qt::KeyboardModifiers keys = {});
  /// Handles what is waiting and brings the window up to date.
  void settle();
  /// False when the viewport's picture does not reach its best within a minute.
  bool waitForPicture();

  /// Builds the selected character and starts placing it, as the plug-in's own button does.
  static void createCharacter();
  QString listenerText() { return window_->listener().text(); }

 private:
  QPoint inWindow(const QPoint& pixel);

  std::unique_ptr<stage::StageWindow> window_;
};

/// Answers with what a test prepared.
class PreparedAnswers : public stage::Questions {
 public:
  struct Answers {
    File file;
    Unsaved unsaved = Unsaved::Cancel;
    int asked = 0;
  };

  explicit PreparedAnswers(Answers& answers) : answers_(answers) {}
  File openFile(const QString& /*title*/, const QString& /*filter*/) override { return answers_.file; }
  File saveFile(const QString& /*title*/, const QString& /*filter*/, const QString& /*suffix*/) override {
    return answers_.file;
  }
  Unsaved unsavedChanges(const QString& /*name*/) override {
    ++answers_.asked;
    return answers_.unsaved;
  }

 private:
  Answers& answers_;
};

}  // namespace support
