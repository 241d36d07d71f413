#pragma once

#include <stdexcept>

namespace host {

/// What is wrong with a file, in words for its author. Never leaves the readers of files.
class Unreadable : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace host
