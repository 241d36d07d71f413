#pragma once

namespace ZORVEL {

class CommandListener;

/// The one door through which window and action act on the system. Main thread only. Elements are named by unique id, 0
/// is none; `updateGui` says whether the window is refreshed afterwards. An unknown id changes no character, clothing
/// or asset, and takes back the choice of pose, skin or style.
namespace Commands {

/// Null, as it is at first, for none. Whoever sets it takes it back before it goes.
void SetListener(CommandListener* listener);

void CallMainWindow();
/// Loads the repository the first time, asking for its place when none is known. False when there is none to load.
bool ValidateData();
/// Loads nothing: tells in the log whether there are settings to load with.
void LoadData();
void ReloadRepository();
/// Lets the user choose another repository and loads it.
void ResetRepository();
/// Asks for the repository's file. False when the user chose none.
bool SetPath();
/// Builds the chosen character and starts placing it.
void CreateCharacter();

void SetSelectedCharacterUnique(unsigned int character, bool updateGui);
void SetSelectedClothUnique(unsigned int character, unsigned int cloth, bool updateGui);
// While SetSelectedPose has the window rebuild its tabs, these four do nothing: the rebuild fires the window's own
// events.
void SetSelectedPose(unsigned int pose, bool updateGui);
void SetSelectedSkin(unsigned int skin, bool updateGui);
void SetSelectedStyle(unsigned int style, bool updateGui);
void SetSelectedAsset(unsigned int asset, bool updateGui);
void SetDeselectedAsset(unsigned int asset, bool updateGui);

}  // namespace Commands

}  // namespace ZORVEL
