#include "host/services/LookChanges.h"

namespace host {

LookChanges& LookChanges::instance() {
  static LookChanges changes;
  return changes;
}

}  // namespace host
