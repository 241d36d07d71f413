#include "apps/stage/HostWatch.h"

#include <QAbstractEventDispatcher>

#include "host/actions/ActionManager.h"
#include "host/actions/QuickAccessBar.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/services/Prompts.h"
#include "host/services/UndoStack.h"
#include "host/services/Units.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

std::vector<std::wstring> undoNow() {
  std::vector<std::wstring> names = application().undo().undoNames();
  names.emplace_back(L"\n");
  for (const std::wstring& name : application().undo().redoNames()) names.push_back(name);
  return names;
}

std::vector<std::pair<std::uint64_t, bool>> buttonsNow() {
  std::vector<std::pair<std::uint64_t, bool>> result;
  for (const host::QuickAccessBar::Button& button : application().quickAccess().buttons()) {
    const std::uint64_t id = (std::uint64_t{button.table} << 32U) | static_cast<std::uint32_t>(button.command);
    result.emplace_back(id, application().actions().isActive(button.table));
  }
  return result;
}

/// Whether the value is another one; it is kept then.
template <class Value>
bool renew(Value& known, const Value& now) {
  if (known == now) return false;
  known = now;
  return true;
}

}  // namespace

HostWatch::HostWatch(QObject* parent) : QObject(parent) {
  if (auto* dispatcher = QAbstractEventDispatcher::instance()) {
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &HostWatch::check);
  }
}

void HostWatch::check() {
  checkListener();
  if (renew(unit_, application().units().type())) emit unitChanged();
  if (renew(revision_, application().scene().revision())) emit sceneChanged();
  if (renew(undo_, undoNow())) emit undoChanged();
  if (renew(prompt_, application().prompts().top())) emit promptChanged(QString::fromStdWString(prompt_));
  if (renew(buttons_, buttonsNow())) emit buttonsChanged();
  if (renew(mode_, application().modes().generation())) emit modeChanged();
  emit checked();
}

void HostWatch::checkListener() {
  const std::vector<std::string>& lines = application().listener().lines();
  // Fewer than before: it was cleared meanwhile.
  if (lines.size() < lines_) lines_ = 0;
  if (lines.size() == lines_) return;
  QStringList fresh;
  for (; lines_ < lines.size(); ++lines_) fresh << QString::fromStdString(lines[lines_]);
  emit linesReported(fresh);
}

}  // namespace stage
