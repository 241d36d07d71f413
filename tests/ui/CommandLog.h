#pragma once

#include <QStringList>

namespace support {

/// Every command that reaches the plug-in's commands, in order and before it acts: "pose p1" when the window is not to
/// be refreshed, "pose p1, refresh" when it is. An id that names no record shows as "unknown".
class CommandLog {
 public:
  static void Clear();
  /// Those since the last call.
  static QStringList Take();
};

}  // namespace support
