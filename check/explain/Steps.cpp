#include "check/explain/Steps.h"

#include "host/files/PrintableText.h"

namespace check {

void Steps::unless(const std::string& whyNot, const std::string& topic, const std::string& text) {
  if (whyNot.empty()) return good(topic, text);
  bad(topic, whyNot);
}

void Steps::count(const std::string& topic, std::size_t good, std::size_t all, const std::string& before,
                  const std::string& after) {
  using State = ExplainedStep::State;
  add(good == 0 ? State::Bad : good == all ? State::Good : State::Note, topic, before + ofAll(good, all, after));
}

void Steps::add(ExplainedStep::State state, const std::string& topic, const std::string& text) {
  steps_.push_back({state, topic, host::printable(text)});
}

std::string ofAll(std::size_t count, std::size_t all, const std::string& nouns) {
  return std::to_string(count) + " of " + std::to_string(all) + ' ' + nouns;
}

}  // namespace check
