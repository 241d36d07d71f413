#include "ui/MainWindowClothMaterialsTab.h"

#include "plugin/Commands.h"
#include "ui/Log.h"
#include "ui/MainWindowPosesElement.h"

namespace ZORVEL {

void MainWindowClothMaterialsTab::FillMaterials(PageOffer page) {
  // The text names another page; it is kept as it is.
  for (std::size_t i = 0; i < page.hidden.size(); ++i) LogInfo(L"MainWindowSkinTab::FillMaterials clothDC not found");
  Fill<MainWindowPosesElement>(std::move(page));
}

void MainWindowClothMaterialsTab::SelectedElement(int unique) {
  LogInfo(L"selected a cloth material in the GUI");
  m_lastSelected = unique;
  Commands::SetSelectedStyle(static_cast<unsigned int>(unique), true);
}

void MainWindowClothMaterialsTab::UnselectElement(int /*unique*/) { SelectOnlyUnique(m_lastSelected); }

}  // namespace ZORVEL
