#include "apps/stage/viewport/PictureWorker.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "host/services/Threads.h"

namespace stage {

namespace {

/// A picture that is on the screen within this time feels immediate.
constexpr double SECONDS_FOR_FIRST = 0.03;

/// Leaves the processor to the mouse: niceness counts for each thread on Linux.
void stepBack() { setpriority(PRIO_PROCESS, 0, 10); }

}  // namespace

PictureWorker::PictureWorker(std::function<void()> wake, unsigned threads) : wake_(std::move(wake)) {
  host::startThreads(threads_, std::clamp(threads, 1U, 64U), [this] { run(); });
}

PictureWorker::~PictureWorker() {
  {
    const Lock lock(mutex_);
    ending_ = true;
    end_ = true;
    hurry_ = true;
  }
  work_.notify_all();
  for (std::thread& thread : threads_) thread.join();
}

void PictureWorker::setView(const host::Camera& camera, const QSize& picture) {
  ask([&](Change& change) {
    change.camera = camera;
    change.size = picture;
  });
}

void PictureWorker::setItems(std::vector<host::ViewItem> items) {
  ask([&](Change& change) {
    change.items = std::move(items);
    change.moves.clear();
  });
}

void PictureWorker::moveItems(std::vector<Move> moves, const QRect& region) {
  ask([&](Change& change) {
    // Of several moves of one thing only the last counts, so a queue cannot grow.
    for (const Move& move : moves) {
      const auto same = [&](const Move& other) { return other.item == move.item; };
      change.moves.erase(std::remove_if(change.moves.begin(), change.moves.end(), same), change.moves.end());
    }
    change.moves.insert(change.moves.end(), moves.begin(), moves.end());
    change.region |= region;
  });
}

void PictureWorker::ask(const std::function<void(Change&)>& how) {
  {
    const Lock lock(mutex_);
    how(change_);
    change_.any = true;
    hurry_ = true;
  }
  work_.notify_all();
  if (threads_.empty()) workHere();
}

void PictureWorker::workHere() {
  Lock lock(mutex_);
  while (workOnce(lock)) {
  }
}

std::vector<PictureWorker::Piece> PictureWorker::takeFinished() {
  const Lock lock(mutex_);
  return std::exchange(finished_, {});
}

bool PictureWorker::complete() const {
  const Lock lock(mutex_);
  return !change_.any && !changing_ && board_.complete();
}

std::size_t PictureWorker::tilesSpoiled() const {
  const Lock lock(mutex_);
  return spoiled_;
}

void PictureWorker::run() {
  stepBack();
  Lock lock(mutex_);
  while (!ending_) {
    if (!workOnce(lock)) work_.wait(lock);
  }
}

bool PictureWorker::workOnce(Lock& lock) {
  const bool mayChange = change_.any && !changing_ && (board_.whole() || painter_ == nullptr);
  if (mayChange && drawing_ == 0) {
    takeUp(lock);
    return true;
  }
  std::optional<TileBoard::Task> task;
  if (!mayChange && !changing_ && painter_ != nullptr) {
    task = board_.next(change_.any ? TileBoard::Wanted::StaleOnly : TileBoard::Wanted::Anything);
  }
  if (task) draw(*task, lock);
  return task.has_value();
}

void PictureWorker::takeUp(Lock& lock) {
  Change change = std::exchange(change_, {});
  changing_ = true;
  hurry_ = false;
  lock.unlock();
  // Nobody draws and nobody else changes, so the scene is this thread's alone.
  if (change.items) scene_.setItems(std::move(*change.items));
  if (!change.moves.empty()) scene_.moveItems(change.moves);
  if (change.camera) camera_ = change.camera;
  const QSize size = change.camera ? change.size : board_.size();
  std::shared_ptr<const TilePainter> painter;
  if (camera_ && !size.isEmpty()) painter = std::make_shared<const TilePainter>(scene_, *camera_, size);
  lock.lock();
  painter_ = std::move(painter);
  spoil(change);
  changing_ = false;
  work_.notify_all();
}

void PictureWorker::spoil(const Change& change) {
  if (change.camera && change.size != board_.size()) board_.resize(change.size);
  const QRect everything(QPoint(), board_.size());
  const bool whole = change.camera || change.items;
  const QRect region = whole ? everything : change.region;
  spoiled_ += static_cast<std::size_t>(board_.spoil(region, firstLevel(board_.touched(region))));
  replacesAll_ = replacesAll_ || whole;
}

int PictureWorker::firstLevel(int tiles) const {
  const double pixels = static_cast<double>(tiles) * TileBoard::TILE_SIZE * TileBoard::TILE_SIZE;
  const double seconds = pixels * sampleCost_ / static_cast<double>(std::max<std::size_t>(threads_.size(), 1));
  for (int level = TileBoard::SHARP; level > 0; --level) {
    const int step = TileBoard::quality(level).step;
    if (seconds / (step * step) <= SECONDS_FOR_FIRST) return level;
  }
  return 0;
}

void PictureWorker::draw(const TileBoard::Task& task, Lock& lock) {
  const std::shared_ptr<const TilePainter> painter = painter_;
  // What makes the picture whole is drawn to its end, or a mouse that never rests would never see one.
  const std::atomic<bool>& stop = task.stale ? end_ : hurry_;
  ++drawing_;
  lock.unlock();
  const auto start = std::chrono::steady_clock::now();
  QImage picture = painter->paint(task, stop);
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  lock.lock();
  --drawing_;
  if (picture.isNull()) {
    board_.giveBack(task);
  } else {
    measure(task, seconds);
    deliver(task, std::move(picture));
  }
  if (change_.any || board_.whole()) work_.notify_all();
}

void PictureWorker::deliver(const TileBoard::Task& task, QImage picture) {
  board_.finish(task);
  held_.push_back({task.where, std::move(picture), board_.size()});
  if (!board_.whole()) return;
  const bool wakes = finished_.empty();
  // What nobody took yet is of no use any more; dropped earlier, a window that is slow to take would never see
  // anything.
  if (std::exchange(replacesAll_, false)) finished_.clear();
  std::move(held_.begin(), held_.end(), std::back_inserter(finished_));
  held_.clear();
  if (wakes) wake_();
}

void PictureWorker::measure(const TileBoard::Task& task, double seconds) {
  const TileBoard::Quality& quality = TileBoard::quality(task.level);
  const double pixels = static_cast<double>(task.where.width()) * task.where.height() / (quality.step * quality.step);
  sampleCost_ += 0.05 * (seconds / (pixels * quality.samples) - sampleCost_);
}

}  // namespace stage
