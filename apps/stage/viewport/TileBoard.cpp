#include "apps/stage/viewport/TileBoard.h"

#include <QPoint>
#include <algorithm>
#include <array>

namespace stage {

namespace {

constexpr std::array<TileBoard::Quality, TileBoard::QUALITY_COUNT> QUALITIES = {
    {{8, 1}, {4, 1}, {2, 1}, {1, 1}, {1, 4}, {1, 16}}};

int distance(const QRect& where, const QSize& size) {
  return (where.center() - QPoint(size.width() / 2, size.height() / 2)).manhattanLength();
}

}  // namespace

const TileBoard::Quality& TileBoard::quality(int level) { return QUALITIES[static_cast<std::size_t>(level)]; }

void TileBoard::resize(const QSize& picture) {
  size_ = picture;
  tiles_.clear();
  for (int y = 0; y < picture.height(); y += TILE_SIZE) {
    for (int x = 0; x < picture.width(); x += TILE_SIZE) {
      Tile tile;
      tile.where = QRect(x, y, TILE_SIZE, TILE_SIZE).intersected(QRect(QPoint(), picture));
      tiles_.push_back(tile);
    }
  }
  std::stable_sort(tiles_.begin(), tiles_.end(), [&](const Tile& one, const Tile& other) {
    return distance(one.where, picture) < distance(other.where, picture);
  });
  stale_ = tiles_.size();
  unfinished_ = tiles_.size();
}

int TileBoard::touched(const QRect& region) const {
  return static_cast<int>(
      std::count_if(tiles_.begin(), tiles_.end(), [&](const Tile& tile) { return tile.where.intersects(region); }));
}

int TileBoard::spoil(const QRect& region, int level) {
  int count = 0;
  for (Tile& tile : tiles_) {
    if (tile.next == QUALITY_COUNT) ++unfinished_;
    if (tile.where.intersects(region)) {
      ++count;
      if (!tile.stale) ++stale_;
      tile.next = tile.stale ? std::min(tile.next, level) : level;
      tile.stale = true;
    } else {
      tile.next = std::min(tile.next, QUALITY_COUNT - 1);
    }
  }
  return count;
}

std::optional<TileBoard::Task> TileBoard::next(Wanted wanted) {
  std::size_t best = tiles_.size();
  int bestRank = 2 * QUALITY_COUNT;
  for (std::size_t i = 0; i < tiles_.size(); ++i) {
    const Tile& tile = tiles_[i];
    if (tile.taken || tile.next == QUALITY_COUNT) continue;
    if (wanted == Wanted::StaleOnly && !tile.stale) continue;
    const int rank = tile.next + (tile.stale ? 0 : QUALITY_COUNT);
    if (rank >= bestRank) continue;
    best = i;
    bestRank = rank;
    if (rank == 0) break;
  }
  if (best == tiles_.size()) return std::nullopt;
  tiles_[best].taken = true;
  return Task{best, tiles_[best].next, tiles_[best].where, tiles_[best].stale};
}

void TileBoard::finish(const Task& task) {
  Tile& tile = tiles_[task.tile];
  tile.taken = false;
  if (tile.stale) --stale_;
  tile.stale = false;
  tile.next = task.level + 1;
  if (tile.next == QUALITY_COUNT) --unfinished_;
}

}  // namespace stage
