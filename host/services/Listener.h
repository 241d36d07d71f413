#pragma once

#include <string>
#include <vector>

namespace host {

/// What the host has to tell a person, one line each: files that it could not read, scripts that it did not understand.
/// One for the process, because what cannot be read may be anywhere. Main thread only.
class Listener {
 public:
  static Listener& instance();

  void report(const std::string& line) { lines_.push_back(line); }
  /// For what is met again and again while it lasts: not a second time while the line stands there.
  void reportOnce(const std::string& line);
  const std::vector<std::string>& lines() const { return lines_; }
  void clear() { lines_.clear(); }

 private:
  std::vector<std::string> lines_;
};

}  // namespace host
