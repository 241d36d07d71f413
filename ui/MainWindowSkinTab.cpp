#include "ui/MainWindowSkinTab.h"

#include "plugin/Commands.h"
#include "ui/Log.h"
#include "ui/MainWindowGeneralElement.h"

namespace ZORVEL {

void MainWindowSkinTab::FillSkins(PageOffer page) { Fill<MainWindowGeneralElement>(std::move(page)); }

void MainWindowSkinTab::SelectedElement(int unique) {
  LogInfo(L"selected a skin in the GUI");
  m_lastSelected = unique;
  Commands::SetSelectedSkin(static_cast<unsigned int>(unique), true);
}

void MainWindowSkinTab::UnselectElement(int /*unique*/) { SelectOnlyUnique(m_lastSelected); }

}  // namespace ZORVEL
