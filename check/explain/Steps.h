#pragma once

#include <string>
#include <vector>

#include "check/explain/Explanation.h"

namespace check {

/// Takes in the steps of one explanation; texts may be any.
class Steps {
 public:
  void good(const std::string& topic, const std::string& text) { add(ExplainedStep::State::Good, topic, text); }
  void bad(const std::string& topic, const std::string& text) { add(ExplainedStep::State::Bad, topic, text); }
  void note(const std::string& topic, const std::string& text) { add(ExplainedStep::State::Note, topic, text); }
  /// Bad when there is a reason.
  void unless(const std::string& whyNot, const std::string& topic, const std::string& text);
  /// Bad when nothing counts, good when all do, else a note.
  void count(const std::string& topic, std::size_t good, std::size_t all, const std::string& before,
             const std::string& after);

  std::vector<ExplainedStep> take() { return std::move(steps_); }

 private:
  void add(ExplainedStep::State state, const std::string& topic, const std::string& text);

  std::vector<ExplainedStep> steps_;
};

/// "3 of 4 poses".
std::string ofAll(std::size_t count, std::size_t all, const std::string& nouns);

}  // namespace check
