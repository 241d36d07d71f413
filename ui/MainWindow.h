#pragma once

namespace ZORVEL {

/// How the rest of the plug-in opens and refreshes the main window. User-interface thread only. With no window open,
/// every entry but the first only logs.
namespace MainWindow {

void OpenMainWindow();
/// Makes every widget anew from the model.
void Rebuild();
/// Makes the pages anew, except that of the poses.
void RebuildTabs();
void UpdateCharacterSelectionFromGUI();
void UpdateElementSelection();
void UpdateInfo();

}  // namespace MainWindow

}  // namespace ZORVEL
