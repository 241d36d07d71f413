#include "check/report/CsvText.h"

#include <algorithm>

#include "host/files/PrintableText.h"

namespace check {

namespace {

/// The last four are the wide forms, which some spreadsheets take for the same.
bool beginsFormula(const std::string& text) {
  static const std::vector<std::string> BEGINNINGS = {"=",  "+",      "-",      "@",      "\t",
                                                      "\r", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"};
  return std::any_of(BEGINNINGS.begin(), BEGINNINGS.end(),
                     [&text](const std::string& beginning) { return text.rfind(beginning, 0) == 0; });
}

std::string cell(const std::string& text) {
  const std::string content = (beginsFormula(text) ? "'" : "") + host::printable(text);
  if (content.find_first_of(",\"") == std::string::npos) return content;
  std::string quoted = "\"";
  for (const char c : content) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

}  // namespace

std::string csvRow(const std::vector<std::string>& texts) {
  std::string line;
  for (const std::string& text : texts) line += cell(text) + ',';
  line.back() = '\r';
  return line + '\n';
}

}  // namespace check
