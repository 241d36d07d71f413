#include "ui/MainWindowGeneralPage.h"

#include <algorithm>

#include "model/Data2.h"
#include "model/Selection2.h"
#include "plugin/InitialChoice.h"
#include "ui/Texts.h"

namespace ZORVEL {

void MainWindowGeneralPage::Create(QTabWidget* tabControl, int width, const std::wstring& title) {
  m_page = new ScrollPanel;
  const QString name = Texts::FromWide(title);
  m_page->setAccessibleName(Texts::OneLine(name));
  SetWidth(width);
  QObject::connect(m_page, &ScrollPanel::MouseMoved, m_page, [this] { MouseMove(); });
  const int index = tabControl->addTab(m_page, Texts::Caption(name));
  tabControl->setTabToolTip(index, Texts::ToolTip(name));
}

void MainWindowGeneralPage::SetSize(int w, int h) {
  m_w = w;
  m_h = h;
}

void MainWindowGeneralPage::SetWidth(int width) {
  // A page narrower than one picture still has one column.
  m_step = std::max(0, (width - 250) / (m_w + 15) - 1);
  m_page->SetScrollPosition(QPoint(0, 0));
  if (m_isShown) LayOut();
}

void MainWindowGeneralPage::Show() {
  if (m_isShown) return;
  m_isShown = true;
  // Controls that are made in a hidden parent are shown all at once with it.
  m_page->GetContent()->hide();
  for (const ElementPtr& element : m_elements) element->MakeControls(m_page->GetContent());
  LayOut();
  m_page->GetContent()->show();
}

void MainWindowGeneralPage::LayOut() {
  int row = 0;
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const int column = static_cast<int>(i) % (m_step + 1);
    m_elements[i]->Place(GetX(column), GetY(row));
    if (column == m_step) ++row;
  }
  m_page->FitContent();
}

void MainWindowGeneralPage::SelectOnlyUnique(int unique) {
  for (const ElementPtr& element : m_elements) element->SelectThisUnique(unique);
}

void MainWindowGeneralPage::ShowChosen(const DataContainer* element) {
  m_lastSelected = element != nullptr ? Data2::GetUnique(element) : 0;
  SelectOnlyUnique(m_lastSelected);
}

void MainWindowGeneralPage::SelectElement(int unique) {
  for (const ElementPtr& element : m_elements) element->SelectThisInCase(unique);
}

void MainWindowGeneralPage::UpdateSelection() {
  for (const ElementPtr& element : m_elements)
    element->SetSelected(Selection2::CheckSelectedAsset(element->GetUnique()));
}

QWidget* MainWindowGeneralPage::GetFirstControl() const {
  auto* first = m_page->GetContent()->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  return first != nullptr ? first : m_page;
}

void MainWindowGeneralPage::BeginWith(const PageOffer& page) {
  for (const int unique : page.choice) {
    m_lastSelected = unique;
    SelectElement(unique);
  }
  InitialChoice::Make(page);
}

void MainWindowGeneralPage::MouseMove() {
  const QWidget* active = m_form.GetActiveControl();
  if (active == nullptr || !m_page->isAncestorOf(active)) m_form.SetActiveControl(GetFirstControl());
}

}  // namespace ZORVEL
