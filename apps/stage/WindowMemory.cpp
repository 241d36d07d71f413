#include "apps/stage/WindowMemory.h"

#include <QMainWindow>
#include <QSettings>

namespace stage {

namespace {

const char* const geometryKey = "window/geometry";
const char* const panelsKey = "window/panels";
/// Raised when panels come or go, so that an arrangement of other panels is not taken up.
constexpr int panelsVersion = 1;

}  // namespace

void WindowMemory::restore(QMainWindow& window) {
  const QSettings settings("zorvel", "zorvel-stage");
  window.restoreGeometry(settings.value(geometryKey).toByteArray());
  window.restoreState(settings.value(panelsKey).toByteArray(), panelsVersion);
}

void WindowMemory::remember(const QMainWindow& window) {
  QSettings settings("zorvel", "zorvel-stage");
  settings.setValue(geometryKey, window.saveGeometry());
  settings.setValue(panelsKey, window.saveState(panelsVersion));
}

}  // namespace stage
