#pragma once

#include <cstddef>
#include <stdexcept>

namespace host {

/// Thrown by the readers of mesh files and caught in MeshFile; its text is one line, for the user.
class UnreadableMesh : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A small file can name the same vertices many times over; reading stops here rather than when memory is gone. A file
// of 64 MiB that names none twice has fewer.
constexpr std::size_t MOST_TRIANGLES = 2'500'000;
constexpr std::size_t MOST_VERTICES = 2'500'000;

}  // namespace host
