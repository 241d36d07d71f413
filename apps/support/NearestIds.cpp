#include "apps/support/NearestIds.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace apps {

namespace {

bool sameLetter(char a, char b) {
  return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

/// How many letters have to be changed, added or taken away; letter case does not count.
std::size_t editDistance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed = diagonal + (sameLetter(a[i - 1], b[j - 1]) ? 0 : 1);
      diagonal = std::exchange(row[j], std::min({changed, row[j] + 1, row[j - 1] + 1}));
    }
  }
  return row.back();
}

}  // namespace

std::vector<std::string> nearestIds(const std::string& wanted, const std::vector<std::string>& known) {
  constexpr std::size_t MOST = 3;
  std::vector<std::pair<std::size_t, std::string>> ranked;
  for (const std::string& id : known) {
    const std::size_t distance = editDistance(wanted, id);
    if (distance < std::max(wanted.size(), id.size())) ranked.emplace_back(distance, id);
  }
  std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string> result;
  for (const auto& entry : ranked) {
    if (result.size() < MOST) result.push_back(entry.second);
  }
  return result;
}

std::string nearestId(const std::string& wanted, const std::vector<std::string>& known) {
  const std::vector<std::string> near = nearestIds(wanted, known);
  const std::size_t most = std::max(std::size_t{1}, wanted.size() / 3);
  return near.empty() || editDistance(wanted, near.front()) > most ? std::string() : near.front();
}

std::string unknownId(const std::string& kind, const std::string& wanted, const std::vector<std::string>& known) {
  constexpr std::size_t MOST = 8;
  std::string text = "There is no " + kind + " with the id \"" + wanted + "\"";
  const std::vector<std::string> near = nearestIds(wanted, known);
  const std::vector<std::string>& named = near.empty() ? known : near;
  if (named.empty()) return text + ".";
  text += near.empty() ? "; known: " : "; nearest: ";
  for (std::size_t i = 0; i < named.size() && i < MOST; ++i) text += (i == 0 ? "" : ", ") + named[i];
  return text + ".";
}

}  // namespace apps
