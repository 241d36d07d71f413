#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "check/report/FindingCounts.h"
#include "check/report/FindingPlace.h"
#include "check/report/WearReport.h"
#include "host/files/PrintableText.h"

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

  /// Cells with the same reason, as indexes of row and pose.
  struct Group {
    std::vector<std::pair<std::size_t, std::size_t>> cells;
    std::set<std::size_t> rows;
    std::set<std::size_t> poses;
  };

  void addReasons() {
    std::map<std::string, Group> groups;
    std::vector<std::string> order;
    for (std::size_t row = 0; row < table_.rows.size(); ++row) {
      for (std::size_t pose = 0; pose < table_.poses.size(); ++pose) {
        if (builds(cellAt(row, pose))) continue;
        const std::string key = keyOf(row, pose);
        Group& group = groups[key];
        if (group.cells.empty()) order.push_back(key);
        group.cells.emplace_back(row, pose);
        group.rows.insert(row);
        group.poses.insert(pose);
      }
    }
    for (const std::string& key : order) addGroup(groups[key]);
  }

  /// Where nothing goes with a clothing or a pose, it is one group although the files differ.
  std::string keyOf(std::size_t row, std::size_t pose) const {
    const WearCell& cell = cellAt(row, pose);
    std::string what = cell.reason;
    if (showsAll_) what = std::to_string(row) + ' ' + std::to_string(pose);
    if (!showsAll_ && cell.code == ruleOf(RuleId::ClothingNeverWorn).code) what = "row " + std::to_string(row);
    if (!showsAll_ && cell.code == ruleOf(RuleId::PoseNeverWorn).code) what = "pose " + std::to_string(pose);
    return signOf(cell.state) + what;
  }

  void addGroup(const Group& group) {
    const WearCell& first = cellAt(group.cells.front().first, group.cells.front().second);
    const bool isOneReason = std::all_of(group.cells.begin(), group.cells.end(), [&](const auto& cell) {
      return cellAt(cell.first, cell.second).reason == first.reason;
    });
    text_ += std::string("  ") + signOf(first.state) + ' ' + clothesOf(group) + " in " + posesOf(group) + ": " +
             first.reason + (isOneReason ? "" : ", and " + std::to_string(group.cells.size() - 1) + " more") +
             (first.code.empty() ? "" : " [" + first.code + ']') + '\n';
  }

  std::string clothesOf(const Group& group) const {
    const std::size_t count = group.rows.size();
    if (count == 1) return shownId(table_.rows[*group.rows.begin()].clothing);
    return (count == table_.rows.size() ? "all" : std::to_string(count)) + " clothes";
  }

  std::string posesOf(const Group& group) const {
    const std::size_t count = group.poses.size();
    if (count == 1) return shownId(table_.poses[*group.poses.begin()]);
    return (count == table_.poses.size() ? "all" : std::to_string(count)) + " poses";
  }

  const WearCell& cellAt(std::size_t row, std::size_t pose) const { return table_.rows[row].cells[pose]; }

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
    return text + " could not be checked: " + (findings.empty() ? "" : host::printable(findings.front().message)) +
           '\n';
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
