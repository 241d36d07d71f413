#include "ui/MainWindowClothSelector.h"

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/PageOffers.h"
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
  PageOffer page = PageOffers(*character, files).GetClothing();
  for (std::size_t i = 0; i < page.hidden.size(); ++i) LogInfo(L"preview image not found");
  m_elements.reserve(page.shown.size());
  int x = 2;
  for (OfferedElement& offered : page.shown) {
    m_elements.push_back(std::make_unique<MainWindowClothPreview>());
    m_elements.back()->Create(m_panel->GetContent(), x, std::move(offered), Data2::GetUnique(character), files);
    x += 112;
  }
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
