#include "check/report/CsvText.h"
#include "check/report/WearReport.h"

namespace check {

namespace {

std::string rowsOf(const std::string& root, const WearTable& table) {
  if (!table.whyNone.empty()) return csvRow({root, table.character, "", "", "left out", "", table.whyNone, ""});
  std::string rows;
  for (const WearRow& row : table.rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const WearCell& cell = row.cells[i];
      rows += csvRow(
          {root, table.character, row.clothing, table.poses[i], nameOf(cell.state), cell.code, cell.reason, cell.file});
    }
  }
  return rows;
}

}  // namespace

std::string wearCsv(const std::vector<JudgedRepository>& repositories) {
  std::string text = csvRow({"repository", "character", "clothing", "pose", "state", "code", "reason", "file"});
  for (const JudgedRepository& repository : repositories) {
    for (const WearTable& table : repository.result.wear) text += rowsOf(repository.result.root, table);
  }
  return text;
}

}  // namespace check
