#include "ui/MainWindowGenericTab.h"

#include "plugin/Commands.h"
#include "ui/Log.h"
#include "ui/MainWindowGeneralElement.h"

namespace ZORVEL {

void MainWindowGenericTab::FillAssets(PageOffer page) { Fill<MainWindowGeneralElement>(std::move(page)); }

void MainWindowGenericTab::SelectedElement(int unique) {
  LogInfo(L"selected an asset in the GUI");
  Commands::SetSelectedAsset(static_cast<unsigned int>(unique), true);
}

void MainWindowGenericTab::UnselectElement(int unique) {
  LogInfo(L"de-select an asset in the GUI");
  Commands::SetDeselectedAsset(static_cast<unsigned int>(unique), true);
}

}  // namespace ZORVEL
