#include "ui/MainWindowGeneralSelector.h"

#include <QSignalBlocker>

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/PageOffers.h"
#include "model/PictureSize.h"
#include "model/Selection2.h"
#include "ui/DestroyTogether.h"
#include "ui/Log.h"

namespace ZORVEL {

namespace {

const CharacterData* ChosenCharacter() { return Data2::GetCharacter(Selection2::GetCharacter()); }

}  // namespace

void MainWindowGeneralSelector::CreateWidget(MaxForm& form) {
  m_parent = &form;
  m_control = new TabControl;
  m_control->setAccessibleName(QObject::tr("Elements to choose from"));
  form.AddControl(m_control, QRect(185, 95, 735, 525), ANCHOR_TOP | ANCHOR_BOTTOM | ANCHOR_LEFT | ANCHOR_RIGHT);
  QObject::connect(m_control, &QTabWidget::currentChanged, m_control, [this](int index) { SelectTabControl(index); });
}

void MainWindowGeneralSelector::Rebuild(MaxForm& form) {
  RemovePages(0);
  form.RemoveControl(m_control);
  m_control = nullptr;
  CreateWidget(form);
}

void MainWindowGeneralSelector::UpdateWidget(int width, int height) {
  const bool isShown = *Selection2::GetCharacter() != L'\0' && Selection2::GetCloth() != nullptr;
  m_control->setVisible(isShown);
  if (!isShown) return;
  LogInfo(L"Show general selector...");
  const QSignalBlocker quiet(m_control);
  m_files.Clear();
  RemovePages(0);
  m_parent->MoveControl(m_control, QRect(m_control->pos(), QSize(width - 217, height - 146)));
  if (const CharacterData* character = ChosenCharacter()) {
    PageOffers(*character, m_files).VisitAll([this, width](PageOffer page) { AddPage(std::move(page), width); });
    UpdateWidth(width);
    UpdateSelection();
  }
  m_control->setCurrentIndex(0);
  ShowCurrentPage();
  if (!m_pages.empty()) m_parent->SetActiveControl(m_pages.front()->GetFirstControl());
}

void MainWindowGeneralSelector::RebuildExeptPoses(int width) {
  const QSignalBlocker quiet(m_control);
  m_files.Clear();
  RemovePages(1);
  const CharacterData* character = ChosenCharacter();
  if (character == nullptr) return;
  BuildPages(*character, width);
  UpdateWidthExeptPoses(width);
  UpdateSelection();
  ShowCurrentPage();
}

void MainWindowGeneralSelector::BuildPages(const CharacterData& character, int width) {
  PageOffers(character, m_files).VisitExceptPoses([this, width](PageOffer page) { AddPage(std::move(page), width); });
}

void MainWindowGeneralSelector::AddPage(PageOffer page, int width) {
  switch (page.kind) {
    case PageKind::Clothing:
      return;
    case PageKind::Poses:
      posesTab = MakePage<MainWindowPosesTab>(page, width);
      return posesTab->FillPoses(std::move(page));
    case PageKind::Skins:
      skinTab = MakePage<MainWindowSkinTab>(page, width);
      return skinTab->FillSkins(std::move(page));
    case PageKind::Styles:
      clothMaterialTab = MakePage<MainWindowClothMaterialsTab>(page, width);
      return clothMaterialTab->FillMaterials(std::move(page));
    case PageKind::Assets:
      if (!page.hasTab) return;
      auto* tab = MakePage<MainWindowGenericTab>(page, width);
      return tab->FillAssets(std::move(page));
  }
}

template <class Page>
Page* MainWindowGeneralSelector::MakePage(const PageOffer& offer, int width) {
  auto page = std::make_unique<Page>(*m_parent, m_files);
  Page* added = page.get();
  m_pages.push_back(std::move(page));
  const PictureSize size = PictureSize::OfBox(offer.kind);
  added->SetSize(size.width, size.height);
  added->Create(m_control, width, offer.title);
  return added;
}

void MainWindowGeneralSelector::UpdateWidth(int width) {
  LogInfo(L"update width...");
  for (const auto& page : m_pages) page->SetWidth(width);
}

void MainWindowGeneralSelector::UpdateWidthExeptPoses(int width) {
  for (std::size_t i = 1; i < m_pages.size(); ++i) m_pages[i]->SetWidth(width);
}

void MainWindowGeneralSelector::UpdateSelection() {
  UpdatePoseSelection();
  UpdateSkinSelection();
  UpdateStyleSelection();
  for (const auto& page : m_pages) {
    if (page.get() != posesTab && page.get() != skinTab && page.get() != clothMaterialTab) page->UpdateSelection();
  }
}

void MainWindowGeneralSelector::UpdatePoseSelection() {
  const CharacterData* character = ChosenCharacter();
  const wchar_t* pose = Selection2::GetPose();
  if (posesTab != nullptr && character != nullptr && pose != nullptr) posesTab->ShowChosen(character->GetPose(pose));
}

void MainWindowGeneralSelector::UpdateSkinSelection() {
  const CharacterData* character = ChosenCharacter();
  const wchar_t* skin = Selection2::GetSkin();
  if (skinTab != nullptr && character != nullptr && skin != nullptr) skinTab->ShowChosen(character->GetSkin(skin));
}

void MainWindowGeneralSelector::UpdateStyleSelection() {
  const CharacterData* character = ChosenCharacter();
  const wchar_t* style = Selection2::GetStyle();
  if (clothMaterialTab == nullptr || character == nullptr || style == nullptr) return;
  clothMaterialTab->ShowChosen(character->GetStyle(Selection2::GetCloth(), style));
}

void MainWindowGeneralSelector::SelectTabControl(int index) {
  if (m_pages.empty() || index == -1) return;
  ShowCurrentPage();
  m_parent->SetActiveControl(m_pages[static_cast<std::size_t>(index)]->GetFirstControl());
}

void MainWindowGeneralSelector::ShowCurrentPage() {
  const auto index = static_cast<std::size_t>(m_control->currentIndex());
  if (index < m_pages.size()) m_pages[index]->Show();
}

void MainWindowGeneralSelector::RemovePages(std::size_t first) {
  if (first == 0) posesTab = nullptr;
  skinTab = nullptr;
  clothMaterialTab = nullptr;
  // From the back, so that no page in between becomes current for a moment.
  while (m_pages.size() > first) {
    ScrollPanel* control = m_pages.back()->GetControl();
    m_control->removeTab(m_control->indexOf(control));
    DestroyTogether(control, std::move(m_pages.back()));
    m_pages.pop_back();
    control->deleteLater();
  }
}

}  // namespace ZORVEL
