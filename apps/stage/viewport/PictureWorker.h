#pragma once

#include <QImage>
#include <QSize>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "apps/stage/viewport/TileBoard.h"
#include "apps/stage/viewport/TilePainter.h"
#include "host/rays/RayScene.h"
#include "host/view/Camera.h"

namespace stage {

/// Draws the viewport's picture in threads of its own, coarse at first and better as long as nothing changes. They have
/// a ray-casting scene of their own, so whoever moves things never waits for the drawing: changes are taken up as soon
/// as the picture is whole, and what was being refined then is dropped.
class PictureWorker {
 public:
  /// A finished part of the picture, in its pixels; premultiplied.
  struct Piece {
    QRect where;
    QImage picture;
    /// Of the whole picture that this is a part of.
    QSize whole;
  };
  using Move = host::RayScene::Move;

  /// `wake` is called from a drawing thread when there is something to take and nothing was before.
  explicit PictureWorker(std::function<void()> wake, unsigned threads = std::thread::hardware_concurrency());
  /// Waits for the threads, which end within milliseconds.
  ~PictureWorker();
  PictureWorker(const PictureWorker&) = delete;
  PictureWorker& operator=(const PictureWorker&) = delete;

  // Each returns at once. Where the machine allows no thread at all, it draws first.
  void setView(const host::Camera& camera, const QSize& picture);
  void setItems(std::vector<host::ViewItem> items);
  /// Redraws the region first, in pixels of the picture.
  void moveItems(std::vector<Move> moves, const QRect& region);

  /// Parts that belong together come together; later ones lie over earlier ones.
  std::vector<Piece> takeFinished();
  /// Everything asked for is drawn at its best.
  bool complete() const;
  /// How many tiles had to be drawn anew for changes, in all.
  std::size_t tilesSpoiled() const;

 private:
  using Lock = std::unique_lock<std::mutex>;

  /// What is to be done before drawing goes on; each part only where it was asked for.
  struct Change {
    std::optional<host::Camera> camera;
    QSize size;
    std::optional<std::vector<host::ViewItem>> items;
    std::vector<Move> moves;
    QRect region;
    bool any = false;
  };

  void ask(const std::function<void(Change&)>& how);
  void run();
  /// Until nothing is left to be done.
  void workHere();
  /// False when there is nothing to do.
  bool workOnce(Lock& lock);
  void takeUp(Lock& lock);
  void spoil(const Change& change);
  int firstLevel(int tiles) const;
  void draw(const TileBoard::Task& task, Lock& lock);
  void deliver(const TileBoard::Task& task, QImage picture);
  void measure(const TileBoard::Task& task, double seconds);

  std::function<void()> wake_;
  mutable std::mutex mutex_;
  std::condition_variable work_;
  bool ending_ = false;
  bool changing_ = false;
  int drawing_ = 0;
  Change change_;
  /// Tells those who refine to stop.
  std::atomic<bool> hurry_{false};
  std::atomic<bool> end_{false};

  host::RayScene scene_;
  std::optional<host::Camera> camera_;
  std::shared_ptr<const TilePainter> painter_;
  TileBoard board_;
  std::size_t spoiled_ = 0;
  /// Seconds for one sample of one pixel, as measured lately.
  double sampleCost_ = 3e-6;

  /// Until the picture is whole.
  std::vector<Piece> held_;
  bool replacesAll_ = false;
  std::vector<Piece> finished_;
  std::vector<std::thread> threads_;
};

}  // namespace stage
