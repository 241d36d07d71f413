#include "ui/MainWindowGeneralPage.h"

#include <algorithm>

#include "model/Data2.h"
#include "model/Selection2.h"
#include "ui/ClothInPose.h"
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
  if (m_isShown) layOut();
}

void MainWindowGeneralPage::Show() {
  if (m_isShown) return;
  m_isShown = true;
  // Controls that are made in a hidden parent are shown all at once with it.
  m_page->GetContent()->hide();
  for (const ElementPtr& element : m_elements) element->MakeControls(m_page->GetContent());
  layOut();
  m_page->GetContent()->show();
}

void MainWindowGeneralPage::layOut() {
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

void MainWindowGeneralPage::InsertByAvailability(ElementPtr element) {
  const auto isMissing = [](const ElementPtr& one) { return !one->isAvailable(); };
  const auto place =
      element->isAvailable() ? std::find_if(m_elements.begin(), m_elements.end(), isMissing) : m_elements.end();
  m_elements.insert(place, std::move(element));
}

void MainWindowGeneralPage::ChooseFirst(MainWindowElementBase& element, Command command) {
  if (m_lastSelected != 0 || !element.isAvailable()) return;
  m_lastSelected = element.GetUnique();
  command(static_cast<unsigned int>(m_lastSelected), false);
  element.SetSelected(true);
}

MainWindowElementBase::Content MainWindowGeneralPage::Describe(int unique, const std::wstring& text,
                                                               const std::wstring& picturePath,
                                                               const ClothInPose& worn) {
  MainWindowElementBase::Content content;
  content.unique = unique;
  content.picturePath = picturePath;
  content.text = text;
  content.missingFile = worn.GetMeshPath();
  content.available = m_files.Exists(content.missingFile);
  content.url = worn.GetUrl();
  return content;
}

void MainWindowGeneralPage::MouseMove() {
  const QWidget* active = m_form.GetActiveControl();
  if (active == nullptr || !m_page->isAncestorOf(active)) m_form.SetActiveControl(GetFirstControl());
}

}  // namespace ZORVEL
