#pragma once

#include <QObject>
#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "host/view/Camera.h"
#include "host/view/Renderer.h"

namespace stage {

/// Draws the scene as it is now with sun and sky and writes it as PNG, in a thread of its own; one picture at a time.
/// Where the machine allows no thread it is drawn at once.
class PictureSaver : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  /// Gives up a picture that is being drawn.
  ~PictureSaver() override;

  bool busy() const { return busy_; }
  /// False, and nothing begun, while one is being drawn.
  bool start(const host::Camera& camera, const QSize& size, const std::filesystem::path& file);
  /// The same, waited for. Answers why it could not, or an empty text.
  static std::string saveNow(const host::Camera& camera, const QSize& size, const std::filesystem::path& file);

 signals:
  void progress(int percent);
  /// With an empty text, or what went wrong.
  void finished(const QString& file, const QString& error);

 private:
  std::thread thread_;
  std::atomic<bool> cancel_{false};
  bool busy_ = false;
};

}  // namespace stage
