#include "check/report/RulesDocument.h"

#include <map>
#include <nlohmann/json.hpp>

#include "check/Rule.h"

namespace check {

namespace {

const std::map<char, const char*> CHAPTERS = {{'1', "Reading the description"},
                                              {'2', "Ids and names"},
                                              {'3', "Files and folders"},
                                              {'4', "What is offered"},
                                              {'5', "What is built"}};

const char* const INTRODUCTION =
    "# Rules of `zorvel check`\n"
    "\n"
    "Made by `zorvel rules --format md`. Codes never change their meaning. An *error* means that a character or an\n"
    "element cannot be seen or built, a *warning* that the artist will miss something, a *hint* is worth knowing. "
    "What\n"
    "stands in braces is filled in.\n";

/// What stands for itself in a cell of a table.
std::string markdownText(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '<') {
      result += "&lt;";
    } else if (c == '>') {
      result += "&gt;";
    } else {
      result += (c == '|' || c == '*' || c == '_' ? "\\" : "") + std::string(1, c);
    }
  }
  return result;
}

char chapterOf(const Rule& rule) { return rule.code[2]; }

std::string headOf(char chapter) {
  const auto named = CHAPTERS.find(chapter);
  const std::string title = named == CHAPTERS.end() ? std::string("Others") : named->second;
  return "\n## " + title + "\n\n| code | name | severity | what is found | what to do |\n|---|---|---|---|---|\n";
}

}  // namespace

std::string rulesText() {
  std::string text;
  for (const Rule& rule : allRules()) {
    text += std::string(rule.code) + "  " + nameOf(rule.severity) + "  " + rule.name + "\n    " + rule.sentence +
            "\n    Remedy: " + rule.remedy + '\n';
  }
  return text;
}

std::string rulesMarkdown() {
  std::string text = INTRODUCTION;
  char chapter = '\0';
  for (const Rule& rule : allRules()) {
    if (chapterOf(rule) != chapter) text += headOf(chapter = chapterOf(rule));
    text += "| " + std::string(rule.code) + " | `" + rule.name + "` | " + nameOf(rule.severity) + " | " +
            markdownText(rule.sentence) + " | " + markdownText(rule.remedy) + " |\n";
  }
  return text;
}

std::string rulesJson() {
  nlohmann::ordered_json json = nlohmann::ordered_json::array();
  for (const Rule& rule : allRules()) {
    json.push_back({{"code", rule.code},
                    {"name", rule.name},
                    {"severity", nameOf(rule.severity)},
                    {"sentence", rule.sentence},
                    {"remedy", rule.remedy}});
  }
  return json.dump(2) + '\n';
}

}  // namespace check
