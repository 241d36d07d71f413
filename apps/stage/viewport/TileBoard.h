#pragma once

#include <QRect>
#include <QSize>
#include <optional>
#include <vector>

namespace stage {

/// Knows how good each tile of the picture is, and which is drawn next: the worst first, among equals the one nearest
/// to the middle.
class TileBoard {
 public:
  static constexpr int TILE_SIZE = 64;

  /// One way to draw a tile: every `step`th pixel of every `step`th line, `samples` of each.
  struct Quality {
    int step;
    int samples;
  };
  static constexpr int QUALITY_COUNT = 6;
  static const Quality& quality(int level);
  /// The first level at which every pixel is drawn.
  static constexpr int SHARP = 3;

  struct Task {
    std::size_t tile;
    int level;
    QRect where;
    /// Shows what is no more, as long as it is not finished.
    bool stale;
  };
  enum class Wanted { Anything, StaleOnly };

  /// In pixels; everything is to be drawn anew.
  void resize(const QSize& picture);
  const QSize& size() const { return size_; }

  /// What the region touches is to be drawn anew, from `level` on; everything else once more at its best, since light
  /// that a thing throws back reaches far. Answers how many tiles the region touches.
  int spoil(const QRect& region, int level);
  /// As many tiles as `spoil` would answer.
  int touched(const QRect& region) const;

  /// The tile is the caller's until it is finished or given back. Nothing when there is nothing left to hand out.
  std::optional<Task> next(Wanted wanted = Wanted::Anything);
  void finish(const Task& task);
  void giveBack(const Task& task) { tiles_[task.tile].taken = false; }

  /// No part of the picture shows what is no more.
  bool whole() const { return stale_ == 0; }
  bool complete() const { return unfinished_ == 0; }

 private:
  struct Tile {
    QRect where;
    int next = 0;
    bool stale = true;
    bool taken = false;
  };

  std::vector<Tile> tiles_;
  QSize size_;
  std::size_t stale_ = 0;
  std::size_t unfinished_ = 0;
};

}  // namespace stage
