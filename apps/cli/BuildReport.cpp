#include "apps/cli/BuildReport.h"

#include "host/files/Paths.h"

namespace cli {

BuildReport reportOf(const std::vector<ZORVEL::LogEntry>& entries) {
  BuildReport report;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::wstring& text = entries[i].text;
    // A value is logged right after the message that it belongs to.
    const auto value = [&] { return i + 1 < entries.size() ? host::toUtf8(entries[++i].text) : std::string(); };
    if (text == L"proxy mesh:") {
      report.pieces.emplace_back();
      report.pieces.back().meshFile = value();
    }
    if (report.pieces.empty()) continue;
    BuildReport::Piece& piece = report.pieces.back();
    if (text == L"use instance...") piece.sharesMesh = true;
    if (text == L"Search for material: ") piece.material = value();
    if (text == L"Found material!") piece.materialFound = piece.sharesMaterial = true;
    if (text == L"Found material in lib") piece.materialFound = true;
    if (text == L"could not find asset matrix...") piece.withoutPlace = true;
  }
  return report;
}

}  // namespace cli
