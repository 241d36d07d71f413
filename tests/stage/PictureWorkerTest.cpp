#include "apps/stage/viewport/PictureWorker.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/host/meshes/Shapes.h"

using stage::PictureWorker;
using stage::TileBoard;

namespace {

const QSize SIZE(640, 384);

class PictureWorkerTest : public ::testing::Test {
 protected:
  void begin() {
    std::vector<host::ViewItem> items(2);
    items[0].mesh = shapes::sphere(10, {0, 0, 30}, 48);
    items[1].mesh = shapes::sphere(2, {30, 0, 2}, 24);
    worker_.setItems(items);
    worker_.setView(camera_, SIZE);
  }
  /// Hands pieces to `take` until it is content; false after a minute.
  template <class Take>
  bool waitUntil(Take take) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (std::chrono::steady_clock::now() < end) {
      {
        std::unique_lock<std::mutex> lock(mutex_);
        woken_.wait_for(lock, std::chrono::milliseconds(20), [this] { return news_; });
        news_ = false;
      }
      if (take(worker_.takeFinished())) return true;
    }
    return false;
  }

  std::mutex mutex_;
  std::condition_variable woken_;
  bool news_ = false;
  host::Camera camera_{{0, -160, 60}, {0, 0, 20}};
  PictureWorker worker_{[this] {
                          const std::lock_guard<std::mutex> lock(mutex_);
                          news_ = true;
                          woken_.notify_one();
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
  EXPECT_EQ(regionOf(first), QRegion(QRect(QPoint(), SIZE)));
  EXPECT_FALSE(worker_.complete());
  EXPECT_TRUE(waitUntil([&](const auto&) { return worker_.complete(); }));
}

TEST_F(PictureWorkerTest, AMouseThatNeverRestsStillSeesWholePictures) {
  begin();
  int pictures = 0;
  int asked = 0;
  EXPECT_TRUE(waitUntil([&](const auto& pieces) {
    if (regionOf(pieces) == QRegion(QRect(QPoint(), SIZE))) ++pictures;
    // The next view is asked for before the picture of the last one can be taken.
    for (int i = 0; i < 10; ++i) {
      worker_.setView(host::Camera({static_cast<float>(++asked), -160, 60}, {0, 0, 20}), SIZE);
      std::this_thread::yield();
    }
    std::unique_lock<std::mutex> lock(mutex_);
    woken_.wait_for(lock, std::chrono::seconds(10), [this] { return news_; });
    lock.unlock();
    worker_.setView(host::Camera({static_cast<float>(++asked), -160, 60}, {0, 0, 20}), SIZE);
    return pictures >= 5;
  }));
}

TEST_F(PictureWorkerTest, AMoveRedrawsWhatItChangedAndRefinesTheRestOnlyWhenAllElseIsDone) {
  begin();
  ASSERT_TRUE(waitUntil([&](const auto&) { return worker_.complete(); }));
  // What was finished between the last look and the end.
  worker_.takeFinished();
  const std::size_t before = worker_.tilesSpoiled();
  Matrix3 moved(TRUE);
  moved.Translate(Point3(1, 0, 0));
  const QRect region(400, 200, 60, 60);
  worker_.moveItems({{1, moved}}, region);
  std::vector<PictureWorker::Piece> first;
  ASSERT_TRUE(waitUntil([&](auto pieces) {
    first = std::move(pieces);
    return !first.empty();
  }));
  TileBoard board;
  board.resize(SIZE);
  EXPECT_EQ(worker_.tilesSpoiled() - before, static_cast<std::size_t>(board.touched(region)));
  EXPECT_LE(board.touched(region), 4);
  EXPECT_TRUE(first.front().where.intersects(region));
  EXPECT_TRUE(waitUntil([&](const auto&) { return worker_.complete(); }));
}

}  // namespace
