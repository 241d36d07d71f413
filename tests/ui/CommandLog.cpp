#include "tests/ui/CommandLog.h"

#include <utility>

#include "model/Data2.h"
#include "plugin/Commands.h"

namespace support {

using ZORVEL::Command;

namespace {

QString idOf(unsigned int unique) {
  const wchar_t* id = ZORVEL::Data2::GetIdForUnique(static_cast<int>(unique));
  return id != nullptr ? QString::fromWCharArray(id) : QStringLiteral("unknown");
}

/// Empty for a command that is neither a choice nor Create.
QString nameOf(Command command) {
  switch (command) {
    case Command::CreateCharacter:
      return "create";
    case Command::SetSelectedCharacterUnique:
      return "character";
    case Command::SetSelectedClothUnique:
      return "cloth";
    case Command::SetSelectedPose:
      return "pose";
    case Command::SetSelectedSkin:
      return "skin";
    case Command::SetSelectedStyle:
      return "style";
    case Command::SetSelectedAsset:
      return "asset";
    case Command::SetDeselectedAsset:
      return "without";
    case Command::CallMainWindow:
    case Command::ReloadRepository:
    case Command::ResetRepository:
      break;
  }
  return {};
}

}  // namespace

CommandLog::CommandLog() { ZORVEL::Commands::SetListener(this); }

CommandLog::~CommandLog() { ZORVEL::Commands::SetListener(nullptr); }

QStringList CommandLog::take() { return std::exchange(lines_, {}); }

void CommandLog::BeforeCommand(Command command, std::initializer_list<unsigned int> uniques, bool updateGui) {
  QString line = nameOf(command);
  if (line.isEmpty()) return;
  for (const unsigned int unique : uniques) line += ' ' + idOf(unique);
  lines_.append(updateGui ? line + ", refresh" : line);
}

}  // namespace support
