#include "fuzz/Mutation.h"

#include <array>
#include <cctype>
#include <random>
#include <vector>

namespace fuzz {

namespace {

/// Where it begins, and how long it is.
struct Span {
  std::size_t at;
  std::size_t size;
};

/// Numbers at which something may change.
constexpr std::array<const char*, 16> NUMBERS = {"0",    "-1",    "1",          "1e12",       "-1e15",
                                                 "1e19", "1e30",  "3.4e38",     "1e-40",      "1e400",
                                                 "255",  "65536", "2147483648", "4294967295", "18446744073709551616",
                                                 "90"};

class Mutation {
 public:
  Mutation(std::string text, unsigned seed) : text_(std::move(text)), random_(seed) {}

  std::string make() {
    const std::vector<Span> found = below(3) == 0 ? lines() : words();
    if (found.empty()) return text_;
    const Span& one = pick(found);
    const Span& other = pick(found);
    const std::string copy = text_.substr(other.at, other.size);
    switch (below(5)) {
      case 0:
        return text_.replace(one.at, one.size, NUMBERS.at(below(NUMBERS.size())));
      case 1:
        return text_.erase(one.at, one.size);
      case 2:
        return text_.insert(one.at, copy);
      default:
        return text_.replace(one.at, one.size, copy);
    }
  }

 private:
  std::size_t below(std::size_t count) { return random_() % count; }
  const Span& pick(const std::vector<Span>& spans) { return spans[below(spans.size())]; }

  std::vector<Span> lines() const {
    std::vector<Span> found;
    for (std::size_t at = 0; at < text_.size();) {
      const std::size_t end = std::min(text_.find('\n', at), text_.size() - 1) + 1;
      found.push_back({at, end - at});
      at = end;
    }
    return found;
  }

  static bool isInWord(char one) {
    return std::isalnum(static_cast<unsigned char>(one)) != 0 || one == '_' || one == '-' || one == '.' || one == '+';
  }

  std::vector<Span> words() const {
    std::vector<Span> found;
    for (std::size_t at = 0; at < text_.size(); ++at) {
      if (!isInWord(text_[at])) continue;
      const std::size_t begin = at;
      while (at < text_.size() && isInWord(text_[at])) ++at;
      found.push_back({begin, at - begin});
    }
    return found;
  }

  std::string text_;
  std::minstd_rand random_;
};

}  // namespace

std::string mutated(const std::string& text, unsigned seed) { return Mutation(text, seed).make(); }

}  // namespace fuzz
