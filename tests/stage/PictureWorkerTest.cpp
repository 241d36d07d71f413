#include "apps/stage/viewport/PictureWorker.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/host/meshes/Shapes.h"

using stage::PictureWorker;
using stage::TileBoard;

namespace {

const QSize size(640, 384);

class PictureWorkerTest : public ::testing::Test {
 protected:
  void begin() {
    std::vector<host::ViewItem> items(2);
    items[0].mesh = shapes::sphere(10, {0, 0, 30}, 48);
    items[1].mesh = shapes::sphere(2, {30, 0, 2}, 24);
    worker.setItems(items);
    worker.setView(camera, size);
  }
  /// Hands pieces to `take` until it is content; false after a minute.
  template <class Take>
  bool waitUntil(Take take) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (std::chrono::steady_clock::now() < end) {
      {
        std::unique_lock<std::mutex> lock(mutex);
        woken.wait_for(lock, std::chrono::milliseconds(20), [this] { return news; });
        news = false;
      }
      if (take(worker.takeFinished())) return true;
    }
    return false;
  }

  std::mutex mutex;
  std::condition_variable woken;
  bool news = false;
  host::Camera camera{{0, -160, 60}, {0, 0, 20}};
  PictureWorker worker{[this] {
                         const std::lock_guard<std::mutex> lock(mutex);
                         news = true;
                         woken.notify_one();
                       },
                       2};
};

QRegion regionOf(const std::vector<PictureWorker::Piece>& pieces) {
  QRegion region;
  for (const auto& piece : pieces) region += piece.where;
  return region;
}

TEST_F(PictureWorkerTest, FirstComesAWholePictureAndThenBetterParts) {
  begin();
  std::vector<PictureWorker::Piece> first;
  ASSERT_TRUE(waitUntil([&](auto pieces) {
    first = std::move(pieces);
    return !first.empty();
  }));
  EXPECT_EQ(regionOf(first), QRegion(QRect(QPoint(), size)));
  EXPECT_FALSE(worker.complete());
  EXPECT_TRUE(waitUntil([&](const auto&) { return worker.complete(); }));
}

TEST_F(PictureWorkerTest, AMouseThatNeverRestsStillSeesWholePictures) {
  begin();
  int pictures = 0;
  int asked = 0;
  EXPECT_TRUE(waitUntil([&](const auto& pieces) {
    if (regionOf(pieces) == QRegion(QRect(QPoint(), size))) ++pictures;
    // The next view is asked for before the picture of the last one can be taken.
    for (int i = 0; i < 10; ++i) {
      worker.setView(host::Camera({static_cast<float>(++asked), -160, 60}, {0, 0, 20}), size);
      std::this_thread::yield();
    }
    std::unique_lock<std::mutex> lock(mutex);
    woken.wait_for(lock, std::chrono::seconds(10), [this] { return news; });
    lock.unlock();
    worker.setView(host::Camera({static_cast<float>(++asked), -160, 60}, {0, 0, 20}), size);
    return pictures >= 5;
  }));
}

TEST_F(PictureWorkerTest, AMoveRedrawsWhatItChangedAndRefinesTheRestOnlyWhenAllElseIsDone) {
  begin();
  ASSERT_TRUE(waitUntil([&](const auto&) { return worker.complete(); }));
  const std::size_t before = worker.tilesSpoiled();
  Matrix3 moved(TRUE);
  moved.Translate(Point3(1, 0, 0));
  const QRect region(400, 200, 60, 60);
  worker.moveItems({{1, moved}}, region);
  std::vector<PictureWorker::Piece> first;
  ASSERT_TRUE(waitUntil([&](auto pieces) {
    first = std::move(pieces);
    return !first.empty();
  }));
  TileBoard board;
  board.resize(size);
  EXPECT_EQ(worker.tilesSpoiled() - before, static_cast<std::size_t>(board.touched(region)));
  EXPECT_LE(board.touched(region), 4);
  EXPECT_TRUE(first.front().where.intersects(region));
  EXPECT_TRUE(waitUntil([&](const auto&) { return worker.complete(); }));
}

}  // namespace
