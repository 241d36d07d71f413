#pragma once

#include <QStringList>

#include "plugin/CommandListener.h"

namespace support {

/// Every choice and every Create that reaches the plug-in's commands, in order and before it acts: "pose p1" when the
/// window is not to be refreshed, "pose p1, refresh" when it is. An id that names no record shows as "unknown".
class CommandLog : public ZORVEL::CommandListener {
 public:
  CommandLog();
  ~CommandLog() override;
  CommandLog(const CommandLog&) = delete;
  CommandLog& operator=(const CommandLog&) = delete;

  void clear() { lines_.clear(); }
  /// Those since the last call.
  QStringList take();

  void BeforeCommand(ZORVEL::Command command, std::initializer_list<unsigned int> uniques, bool updateGui) override;

 private:
  QStringList lines_;
};

}  // namespace support
