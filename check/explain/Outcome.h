#pragma once

#include <string>

namespace check {

/// What becomes of an element in the end: a verdict for a person, and whether it is offered and built at all.
struct Outcome {
  bool works = false;
  std::string verdict;
};

}  // namespace check
