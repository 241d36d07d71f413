#pragma once

class QMainWindow;

namespace stage {

/// Keeps the window's place and the arrangement of its panels between two runs, and nothing else.
class WindowMemory {
 public:
  WindowMemory() = delete;

  /// Does nothing the first time, and where what was kept is not understood.
  static void restore(QMainWindow& window);
  static void remember(const QMainWindow& window);
};

}  // namespace stage
