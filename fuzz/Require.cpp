#include "fuzz/Require.h"

#include <cstdlib>
#include <iostream>

namespace fuzz {

void require(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << std::endl;
  std::abort();
}

}  // namespace fuzz
