#include "ui/MainWindowPosesTab.h"

#include "plugin/Commands.h"
#include "ui/Log.h"
#include "ui/MainWindowPosesElement.h"

namespace ZORVEL {

void MainWindowPosesTab::FillPoses(PageOffer page) { Fill<MainWindowPosesElement>(std::move(page)); }

void MainWindowPosesTab::SelectedElement(int unique) {
  LogInfo(L"selected a pose in the GUI");
  m_lastSelected = unique;
  Commands::SetSelectedPose(static_cast<unsigned int>(unique), true);
}

void MainWindowPosesTab::UnselectElement(int unique) { SelectOnlyUnique(unique); }

}  // namespace ZORVEL
