#include "ui/MainWindowClothSelector.h"

#include <algorithm>

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "ui/DestroyTogether.h"
#include "ui/Log.h"

namespace ZORVEL {

void MainWindowClothSelector::Create(MaxForm& form, int size) {
  // The text names another widget; it is kept as it is.
  LogInfo(L"create pose widget");
  m_parent = &form;
  m_panel = new ScrollPanel;
  m_panel->setAccessibleName(QObject::tr("Clothing to choose from"));
  form.AddControl(m_panel, QRect(185, 95, 732, 520), ANCHOR_TOP | ANCHOR_BOTTOM | ANCHOR_LEFT | ANCHOR_RIGHT);
  QObject::connect(m_panel, &ScrollPanel::MouseMoved, m_panel, [this] { MouseMove(); });
  DisplayCloth(size);
}

void MainWindowClothSelector::Rebuild(MaxForm& form, int size) {
  DestroyTogether(m_panel, std::move(m_elements));
  m_elements.clear();
  form.RemoveControl(m_panel);
  m_panel = nullptr;
  Create(form, size);
}

void MainWindowClothSelector::Update(int width) {
  m_panel->setVisible(*Selection2::GetCharacter() != L'\0' && Selection2::GetCloth() == nullptr);
  DisplayCloth(width);
}

void MainWindowClothSelector::DisplayCloth(int width) {
  LogInfo(L"display cloth previews...");
  QWidget* old = m_panel->Clear();
  DestroyTogether(old, std::move(m_elements));
  m_elements.clear();
  AddPreviews();
  UpdateWidth(width);
}

void MainWindowClothSelector::AddPreviews() {
  const CharacterData* character = Data2::GetCharacter(Selection2::GetCharacter());
  if (character == nullptr) return;
  FileStamps files;
  int x = 2;
  for (int i = 0; i < character->GetCount(CLOTH); ++i) {
    const DataContainer* cloth = character->GetContainerElement(CLOTH, i);
    auto preview = std::make_unique<MainWindowClothPreview>();
    if (cloth == nullptr || !preview->Create(m_panel->GetContent(), x, cloth, character, files)) continue;
    x += 112;
    Insert(std::move(preview));
  }
}

void MainWindowClothSelector::Insert(std::unique_ptr<MainWindowClothPreview> preview) {
  const auto isMissing = [](const std::unique_ptr<MainWindowClothPreview>& one) { return !one->isAvailable(); };
  const auto place =
      preview->isAvailable() ? std::find_if(m_elements.begin(), m_elements.end(), isMissing) : m_elements.end();
  m_elements.insert(place, std::move(preview));
}

void MainWindowClothSelector::UpdateWidth(int width) {
  const QPoint position = m_panel->GetScrollPosition();
  m_panel->SetScrollPosition(QPoint(0, 0));
  const int limit = width - 250;
  int x = 15;
  int y = 15;
  for (const auto& preview : m_elements) {
    preview->Place(x, y);
    x += 125;
    if (x + 100 >= limit) {
      x = 15;
      y += 345;
    }
  }
  m_panel->FitContent();
  m_panel->SetScrollPosition(position);
}

void MainWindowClothSelector::MouseMove() { m_parent->SetActiveControl(m_panel); }

}  // namespace ZORVEL
