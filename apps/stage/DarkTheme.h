#pragma once

class QApplication;

namespace stage {

/// Gives the application the dark grey look of a modelling program, by palette and style alone.
void applyDarkTheme(QApplication& application);

}  // namespace stage
