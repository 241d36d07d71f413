#pragma once

#include <QIcon>

namespace stage {

enum class Icon { New, Open, Save, Select, Undo, Redo, Delete, FrameSelection, FrameAll, Picture, Import };

/// Drawn for the dark theme, greyed when disabled, sharp on any screen.
QIcon icon(Icon which);

}  // namespace stage
