#include "tests/agreement/Damage.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <regex>
#include <vector>

namespace support {

namespace fs = std::filesystem;

namespace {

std::string readAll(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void writeAll(const fs::path& file, const std::string& text) { std::ofstream(file, std::ios::binary) << text; }

std::vector<std::smatch> allMatches(const std::string& text, const std::regex& pattern) {
  return {std::sregex_iterator(text.begin(), text.end(), pattern), {}};
}

/// "id" becomes "ID", "globalID" "GLOBALID".
std::string inCapitals(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
  return text;
}

}  // namespace

std::string Damage::doOne() {
  if (below(3) == 0) return damageFile();
  const fs::path description = root_ / "zorvel.xml";
  std::string text = readAll(description);
  const std::string done = below(3) == 0 ? damageElement(text) : damageAttribute(text);
  writeAll(description, text);
  return done;
}

std::string Damage::damageAttribute(std::string& text) {
  static const std::regex PATTERN(R"re( ([A-Za-z_]+)="([^"]*)")re");
  const std::vector<std::smatch> attributes = allMatches(text, PATTERN);
  const std::smatch chosen = anyOf(attributes);
  const std::string before = chosen.str();
  std::string after;
  switch (below(5)) {
    case 4:
      return swapAttributes(text, attributes, chosen);
    case 0:
      break;
    case 1:
      after = " " + inCapitals(chosen[1]) + "=\"" + chosen[2].str() + "\"";
      break;
    case 2:
      after = " " + chosen[1].str() + "=\"\"";
      break;
    default:
      after = " " + chosen[1].str() + "=\"" + anyOf(attributes)[2].str() + "\"";
  }
  const auto position = static_cast<std::size_t>(chosen.position());
  text.replace(position, before.size(), after);
  return before + " -> " + after;
}

/// Two of one name, most of them.
std::string Damage::swapAttributes(std::string& text, const std::vector<std::smatch>& attributes,
                                   const std::smatch& one) {
  std::vector<std::smatch> alike;
  for (const std::smatch& attribute : attributes) {
    if (attribute[1] == one[1]) alike.push_back(attribute);
  }
  const std::smatch& other = anyOf(alike);
  const std::smatch& first = one.position() < other.position() ? one : other;
  const std::smatch& second = one.position() < other.position() ? other : one;
  const std::string firstText = first.str();
  const std::string secondText = second.str();
  const auto firstPosition = static_cast<std::size_t>(first.position());
  const auto secondPosition = static_cast<std::size_t>(second.position());
  text.replace(secondPosition, secondText.size(), firstText);
  text.replace(firstPosition, firstText.size(), secondText);
  return firstText + " <-> " + secondText;
}

std::string Damage::damageElement(std::string& text) {
  static const std::regex PATTERN(R"(<[A-Za-z]+ [^<>]*/>)");
  const std::vector<std::smatch> elements = allMatches(text, PATTERN);
  const std::smatch chosen = anyOf(elements);
  const std::string element = chosen.str();
  const auto position = static_cast<std::size_t>(chosen.position());
  if (below(2) == 0) {
    text.erase(position, element.size());
    if (below(2) == 0) return "without " + element;
    const std::vector<std::smatch> rest = allMatches(text, PATTERN);
    const std::smatch& place = anyOf(rest);
    const std::string next = place.str();
    text.insert(static_cast<std::size_t>(place.position()), element);
    return element + " moved before " + next;
  }
  const std::string other = anyOf(elements).str();
  text.insert(position, other);
  return "before " + element + " also " + other;
}

std::string Damage::damageFile() {
  std::vector<fs::path> all;
  for (const auto& entry : fs::recursive_directory_iterator(root_)) {
    if (entry.path().filename() != "zorvel.xml") all.push_back(entry.path());
  }
  std::sort(all.begin(), all.end());
  const fs::path chosen = anyOf(all);
  switch (below(6)) {
    case 0:
      fs::remove_all(chosen);
      return "without " + chosen.string();
    case 1:
      fs::rename(chosen, chosen.string() + ".old");
      return "renamed " + chosen.string();
    case 2:
      fs::rename(chosen, chosen.parent_path() / inCapitals(chosen.filename().string()));
      return "in capitals: " + chosen.string();
    case 3:
    case 4:
      return replaceContent(chosen, all);
    default: {
      const bool wasFolder = fs::is_directory(chosen);
      fs::remove_all(chosen);
      if (wasFolder) {
        writeAll(chosen, "no folder");
      } else {
        fs::create_directory(chosen);
      }
      return "file for folder, or folder for file: " + chosen.string();
    }
  }
}

std::string Damage::replaceContent(const fs::path& file, const std::vector<fs::path>& all) {
  if (fs::is_directory(file)) return "nothing";
  const fs::path other = anyOf(all);
  const bool isEmptied = below(2) == 0 || fs::is_directory(other);
  const std::string content = isEmptied ? "" : readAll(other);
  writeAll(file, content);
  return (isEmptied ? "emptied " : "as " + other.string() + ": ") + file.string();
}

unsigned damages(unsigned usual) {
  const char* wanted = std::getenv("ZORVEL_DAMAGES");
  return wanted != nullptr ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : usual;
}

}  // namespace support
