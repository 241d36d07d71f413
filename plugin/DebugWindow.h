#pragma once

namespace ZORVEL {

/// The info window: opening it, adding to it, closing it. User-interface thread only.
namespace DebugWindow {

/// Opens a new one; an earlier one stays as it is, and nothing reaches it any more. Without a window toolkit that runs
/// nothing happens.
void CreateDebugWindow();
/// One line, in the window that was created last, closed or not. Ignored before there is one; null counts as empty.
void AddDebugWindowMessage(const wchar_t* text);
/// Closes the window and keeps it.
void FreeDebugWindow();

}  // namespace DebugWindow

}  // namespace ZORVEL
