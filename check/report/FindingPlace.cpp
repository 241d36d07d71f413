#include "check/report/FindingPlace.h"

#include "host/files/PrintableText.h"

namespace check {

namespace {

std::string below(const std::string& root, const std::string& file) {
  const bool needsSlash = !root.empty() && root.back() != '/' && !file.empty();
  return host::printable(root + (needsSlash ? "/" : "") + file);
}

}  // namespace

std::string placeOf(const CheckResult& result, const Finding& finding) {
  std::string place = below(result.root, finding.file);
  if (finding.line > 0) place += ':' + std::to_string(finding.line);
  if (finding.line > 0 && finding.column > 0) place += ':' + std::to_string(finding.column);
  return place;
}

std::string descriptionOf(const CheckResult& result) { return below(result.root, "zorvel.xml"); }

}  // namespace check
