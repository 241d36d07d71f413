#include "apps/stage/WindowMemory.h"

#include <QMainWindow>
#include <QSettings>

namespace stage {

namespace {

const char* const GEOMETRY_KEY = "window/geometry";
const char* const PANELS_KEY = "window/panels";
/// Raised when panels come or go, so that an arrangement of other panels is not taken up.
constexpr int PANELS_VERSION = 1;

}  // namespace

void WindowMemory::restore(QMainWindow& window) {
  const QSettings settings("zorvel", "zorvel-stage");
  window.restoreGeometry(settings.value(GEOMETRY_KEY).toByteArray());
  window.restoreState(settings.value(PANELS_KEY).toByteArray(), PANELS_VERSION);
}

void WindowMemory::remember(const QMainWindow& window) {
  QSettings settings("zorvel", "zorvel-stage");
  settings.setValue(GEOMETRY_KEY, window.saveGeometry());
  settings.setValue(PANELS_KEY, window.saveState(PANELS_VERSION));
}

}  // namespace stage
