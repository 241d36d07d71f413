#include "host/services/Accelerators.h"

namespace host {

void Accelerators::disable() {
  if (++holds_ == 1 && changed) changed();
}

void Accelerators::enable() {
  if (holds_ == 0) return;
  if (--holds_ == 0 && changed) changed();
}

}  // namespace host
