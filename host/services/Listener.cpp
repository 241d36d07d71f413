#include "host/services/Listener.h"

namespace host {

Listener& Listener::instance() {
  static Listener listener;
  return listener;
}

}  // namespace host
