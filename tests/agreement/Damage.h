#pragma once

#include <filesystem>
#include <random>
#include <regex>
#include <string>
#include <vector>

namespace support {

/// Does to a repository what happens to repositories: attributes get lost, misspelt, another's value or change places,
/// elements go, move or come twice, files and folders vanish, are emptied, renamed or trade places. The description
/// stays well formed. The same numbers bring the same damage.
class Damage {
 public:
  Damage(std::filesystem::path root, unsigned seed) : root_(std::move(root)), random_(seed) {}

  /// Does one thing and answers it in words.
  std::string doOne();

 private:
  std::string damageAttribute(std::string& text);
  std::string swapAttributes(std::string& text, const std::vector<std::smatch>& attributes, const std::smatch& one);
  std::string replaceContent(const std::filesystem::path& file, const std::vector<std::filesystem::path>& all);
  std::string damageElement(std::string& text);
  std::string damageFile();
  std::size_t below(std::size_t count) { return random_() % count; }
  template <class T>
  const T& anyOf(const std::vector<T>& all) {
    return all[below(all.size())];
  }

  std::filesystem::path root_;
  std::mt19937 random_;
};

/// How many repositories are damaged; for a longer search ZORVEL_DAMAGES says otherwise.
unsigned damages(unsigned usual);

}  // namespace support
