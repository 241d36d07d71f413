#include "apps/reference/Documents.h"

#include <fstream>
#include <iterator>

#include "apps/reference/FormatTables.h"
#include "apps/reference/Schema.h"
#include "check/report/RulesDocument.h"

namespace reference {

namespace {

/// Replaces what stands between the marks of a part; a text without them stays as it is.
std::string withPart(std::string text, const std::string& name, const std::string& part) {
  const std::string begin = "<!-- " + name + ": written by scripts/reference -->\n";
  const std::string end = "<!-- end of " + name + " -->";
  const std::size_t first = text.find(begin);
  const std::size_t last = text.find(end);
  if (first == std::string::npos || last == std::string::npos || last < first) return text;
  const std::size_t inner = first + begin.size();
  return text.replace(inner, last - inner, part);
}

}  // namespace

std::string contentOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<Document> documents(const std::filesystem::path& folder) {
  const std::filesystem::path format = folder / "repository-format.md";
  const std::string withTree = withPart(contentOf(format), "tree", elementTree());
  return {{folder / "rules.md", check::rulesDocument()},
          {folder / "schema" / "zorvel.xsd", schema()},
          {format, withPart(withTree, "elements", elementSections())}};
}

}  // namespace reference
