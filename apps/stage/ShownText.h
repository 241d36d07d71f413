#pragma once

#include <QString>

namespace stage {

/// A text from a file, a name or a message as a person can be shown it in one line: see host::printable(). It is plain
/// text and never markup, so whatever shows it must not take it for any.
QString shownText(const QString& text);

/// The same for a tool tip, which takes for markup whatever looks like it.
QString shownToolTip(const QString& text);

}  // namespace stage
