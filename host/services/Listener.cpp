#include "host/services/Listener.h"

#include <algorithm>

namespace host {

Listener& Listener::instance() {
  static Listener listener;
  return listener;
}

void Listener::reportOnce(const std::string& line) {
  if (std::find(lines_.begin(), lines_.end(), line) == lines_.end()) report(line);
}

}  // namespace host
