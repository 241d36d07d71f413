#include <algorithm>
#include <functional>

#include "check/PrintableText.h"
#include "check/report/FindingCounts.h"
#include "check/report/FindingPlace.h"
#include "check/report/WearReport.h"

namespace check {

namespace {

constexpr std::size_t LINE_WIDTH = 100;
constexpr std::size_t CELL_WIDTH = 3;
/// A longer id has a line of its own.
constexpr std::size_t LONGEST_LABEL = 40;

const char* const LEGEND =
    ". builds   ! incomplete: without body or clothing   G grey   H hidden   X cannot be chosen\n";

/// Letters, not bytes.
std::size_t widthOf(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string padded(const std::string& text, std::size_t width) {
  return text + std::string(width - std::min(width, widthOf(text)), ' ');
}

std::string rightAligned(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, widthOf(text)), ' ') + text;
}

std::string withoutEndBlanks(const std::string& text) { return text.substr(0, text.find_last_not_of(' ') + 1) + '\n'; }

std::string shownId(const std::string& id) { return id.empty() ? "(no id)" : id; }

char signOf(WearState state) { return ".!GHX"[static_cast<int>(state)]; }

bool builds(const WearCell& cell) { return cell.state == WearState::Builds; }

std::size_t countBuilding(const WearTable& table) {
  std::size_t count = 0;
  for (const WearRow& row : table.rows) {
    count += static_cast<std::size_t>(std::count_if(row.cells.begin(), row.cells.end(), builds));
  }
  return count;
}

/// One character.
class TableWriter {
 public:
  TableWriter(const WearTable& table, bool showsAll) : table_(table), showsAll_(showsAll) {}

  std::string write() {
    const std::string name = "character " + shownId(table_.character);
    if (!table_.whyNone.empty()) return name + ": left out: " + table_.whyNone + "\n\n";
    const std::size_t all = table_.rows.size() * table_.poses.size();
    text_ = name + ": " + std::to_string(countBuilding(table_)) + " of " + std::to_string(all) + " build\n";
    if (all > 0) addTable();
    addReasons();
    return text_ + '\n';
  }

 private:
  void addTable() {
    addPoses();
    for (const WearRow& row : table_.rows) {
      const std::size_t width = widthOf(shownId(row.clothing));
      if (width <= LONGEST_LABEL) label_ = std::max(label_, width);
    }
    const std::size_t most = (LINE_WIDTH - 2 - label_) / CELL_WIDTH;
    for (std::size_t first = 0; first < table_.poses.size(); first += most) {
      addBlock(first, std::min(first + most, table_.poses.size()));
    }
  }

  /// Down before across, as many columns as fit.
  void addPoses() {
    std::size_t width = 0;
    for (const std::string& pose : table_.poses) width = std::max(width, widthOf(shownId(pose)) + CELL_WIDTH + 5);
    const std::size_t across = std::max<std::size_t>(1, LINE_WIDTH / width);
    const std::size_t down = (table_.poses.size() + across - 1) / across;
    for (std::size_t row = 0; row < down; ++row) {
      std::string line;
      for (std::size_t i = row; i < table_.poses.size(); i += down) {
        line += padded(rightAligned(std::to_string(i + 1), CELL_WIDTH + 2) + ' ' + shownId(table_.poses[i]), width);
      }
      text_ += withoutEndBlanks(line);
    }
  }

  void addBlock(std::size_t first, std::size_t end) {
    text_ += std::string(2 + label_, ' ');
    for (std::size_t i = first; i < end; ++i) text_ += rightAligned(std::to_string(i + 1), CELL_WIDTH);
    text_ += '\n';
    for (const WearRow& row : table_.rows) {
      const std::string id = shownId(row.clothing);
      const bool isWide = widthOf(id) > label_;
      text_ += "  " + (isWide ? id + "\n  " + std::string(label_, ' ') : padded(id, label_));
      for (std::size_t i = first; i < end; ++i) text_ += rightAligned({signOf(row.cells[i].state)}, CELL_WIDTH);
      text_ += '\n';
    }
  }

  void addReasons() {
    std::vector<bool> isTold(table_.poses.size());
    for (std::size_t pose = 0; pose < table_.poses.size(); ++pose) isTold[pose] = addColumn(pose);
    for (const WearRow& row : table_.rows) {
      if (addRow(row, isTold)) continue;
      for (std::size_t i = 0; i < row.cells.size(); ++i) {
        if (!isTold[i]) addReason(row.cells[i], shownId(row.clothing) + " in " + shownId(table_.poses[i]));
      }
    }
  }

  /// False when something builds, or the clothes have different reasons.
  bool addColumn(std::size_t pose) {
    if (showsAll_ || table_.rows.size() < 2) return false;
    const WearCell& first = table_.rows.front().cells[pose];
    if (builds(first)) return false;
    const bool isSame = std::all_of(table_.rows.begin(), table_.rows.end(), [&](const WearRow& row) {
      return row.cells[pose].state == first.state && row.cells[pose].reason == first.reason;
    });
    if (isSame) addReason(first, "all clothes in " + shownId(table_.poses[pose]));
    return isSame;
  }

  /// False when the poses have different reasons.
  bool addRow(const WearRow& row, const std::vector<bool>& isTold) {
    std::vector<const WearCell*> cells;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      if (!isTold[i]) cells.push_back(&row.cells[i]);
    }
    const auto isLikeFirst = [&](const WearCell* cell) {
      return cell->state == cells.front()->state && cell->code == cells.front()->code &&
             cell->file.empty() == cells.front()->file.empty();
    };
    if (showsAll_ || cells.size() < 2 || !std::all_of(cells.begin(), cells.end(), isLikeFirst)) return false;
    const bool isOne = std::all_of(cells.begin(), cells.end(),
                                   [&](const WearCell* cell) { return cell->reason == cells.front()->reason; });
    const std::string more = isOne ? "" : ", and " + std::to_string(cells.size() - 1) + " more";
    addReason(*cells.front(),
              shownId(row.clothing) + (cells.size() == isTold.size() ? " in all poses" : " in all other poses"), more);
    return true;
  }

  void addReason(const WearCell& cell, const std::string& where, const std::string& more = "") {
    if (builds(cell)) return;
    text_ +=
        std::string("  ") + signOf(cell.state) + ' ' + where + ": " + cell.reason + more + " [" + cell.code + "]\n";
  }

  const WearTable& table_;
  const bool showsAll_;
  std::size_t label_ = 0;
  std::string text_;
};

std::string summaryFor(const JudgedRepository& repository) {
  const FindingCounts counts = countsOf(repository.result);
  const int all = counts.errors + counts.warnings + counts.hints;
  std::string text = descriptionOf(repository.result);
  if (!repository.result.isReadable) {
    const auto& findings = repository.result.findings;
    return text + " could not be checked: " + (findings.empty() ? "" : printable(findings.front().message)) + '\n';
  }
  std::size_t building = 0;
  std::size_t cells = 0;
  for (const WearTable& table : repository.result.wear) {
    building += countBuilding(table);
    cells += table.rows.size() * table.poses.size();
  }
  text += ": " + std::to_string(building) + " of " + std::to_string(cells) + " clothes in poses build";
  if (all == 0) return text + ", clean\n";
  return text + "; zorvel check names " + std::to_string(all) + (all == 1 ? " finding\n" : " findings\n");
}

}  // namespace

std::string wearText(const std::vector<JudgedRepository>& repositories, bool showsAll) {
  std::string text = LEGEND;
  for (const JudgedRepository& repository : repositories) {
    text += '\n';
    for (const WearTable& table : repository.result.wear) text += TableWriter(table, showsAll).write();
    text += summaryFor(repository);
  }
  return text;
}

}  // namespace check
