#pragma once

#include <string>
#include <string_view>

namespace cli {

/// While it lives, a pipe that nobody reads any more is an error of the output and does not end the program.
class ClosedPipesAreErrors {
 public:
  ClosedPipesAreErrors();
  ~ClosedPipesAreErrors();
  ClosedPipesAreErrors(const ClosedPipesAreErrors&) = delete;
  ClosedPipesAreErrors& operator=(const ClosedPipesAreErrors&) = delete;

 private:
  void (*before_)(int);
};

/// All of it at once. Whether it could be written, finishStandardOutput says.
void writeStandardOutput(std::string_view text);

/// Writes what is waiting, from here or from std::cout. Answers an empty text, or why something that was printed since
/// the last time did not arrive: a pipe that nobody reads any more, a full disk.
[[nodiscard]] std::string finishStandardOutput();

}  // namespace cli
