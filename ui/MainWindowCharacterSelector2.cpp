#include "ui/MainWindowCharacterSelector2.h"

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "plugin/Commands.h"
#include "ui/Log.h"
#include "ui/Texts.h"

namespace ZORVEL {

namespace {

QString ShownName(const DataContainer* element) {
  return Texts::OneLine(Texts::FromWide(Fields::TextOrEmpty(element, RepositoryFormat::FIELD_NAME)));
}

}  // namespace

void MainWindowCharacterSelector2::CreateSelektor(MaxForm& form) {
  m_parent = &form;
  m_treeView = new CharacterTree;
  m_treeView->setAccessibleName(QObject::tr("Characters and their clothing"));
  QObject::connect(m_treeView, &QTreeWidget::itemSelectionChanged, m_treeView, [this] { AterSelect(); });
  QObject::connect(m_treeView, &QTreeWidget::itemClicked, m_treeView, [this] { OnClick(); });
  QObject::connect(m_treeView, &CharacterTree::MouseMoved, m_treeView, [this] { MouseMove(); });
  form.AddControl(m_treeView, QRect(12, 95, 155, 520), ANCHOR_TOP | ANCHOR_BOTTOM | ANCHOR_LEFT);
  InitSelector();
}

void MainWindowCharacterSelector2::InitSelector() {
  m_treeView->clear();
  const int count = Data2::GetCharacterCount();
  if (count == 0) return;
  LogInfo(L"create character nodes...");
  QList<QTreeWidgetItem*> nodes;
  for (int i = 0; i < count; ++i) {
    const CharacterData* character = Data2::GetCharacter(i);
    if (character == nullptr || !character->GetFastFlag(FLAG_VALID)) continue;
    auto* node = new QTreeWidgetItem(QStringList(ShownName(character)));
    m_characterUniques[node] = Data2::GetUnique(character);
    CreateClothNodes(node, character);
    nodes.append(node);
  }
  m_treeView->addTopLevelItems(nodes);
}

void MainWindowCharacterSelector2::CreateClothNodes(QTreeWidgetItem* node, const CharacterData* character) {
  if (node == nullptr || character == nullptr) return;
  LogInfo(L"create cloth nodes...");
  for (int i = 0; i < character->GetCount(CLOTH); ++i) {
    const DataContainer* cloth = character->GetContainerElement(CLOTH, i);
    if (cloth == nullptr || !cloth->GetFastFlag(FLAG_VALID)) continue;
    const auto* child = new QTreeWidgetItem(node, QStringList(ShownName(cloth)));
    m_clothUniques[child] = Data2::GetUnique(cloth);
  }
}

void MainWindowCharacterSelector2::Rebuild(MaxForm& form) {
  form.RemoveControl(m_treeView);
  m_treeView = nullptr;
  m_characterUniques.clear();
  m_clothUniques.clear();
  CreateSelektor(form);
}

const QTreeWidgetItem* MainWindowCharacterSelector2::SelectedNode() const {
  const QList<QTreeWidgetItem*> selected = m_treeView->selectedItems();
  return selected.isEmpty() ? nullptr : selected.front();
}

unsigned int MainWindowCharacterSelector2::Find(const Uniques& uniques, const QTreeWidgetItem* node) {
  const auto found = uniques.find(node);
  return found != uniques.end() ? static_cast<unsigned int>(found->second) : 0;
}

void MainWindowCharacterSelector2::AterSelect() {
  LogInfo(L"Click on TreeView...");
  const QTreeWidgetItem* node = SelectedNode();
  if (node == nullptr) return;
  const bool byKeyboard = m_treeView->IsHandlingKey();
  if (node->parent() != nullptr) {
    Commands::SetSelectedClothUnique(Find(m_characterUniques, node->parent()), Find(m_clothUniques, node), true);
  } else {
    Commands::SetSelectedCharacterUnique(Find(m_characterUniques, node), true);
  }
  // The pages take the keyboard when they appear; who walks through the tree by keys goes on walking.
  if (byKeyboard) m_parent->SetActiveControl(m_treeView);
}

void MainWindowCharacterSelector2::OnClick() {
  const QTreeWidgetItem* node = SelectedNode();
  if (node == nullptr || node->parent() != nullptr) return;
  LogInfo(L"Select Character...");
  Commands::SetSelectedCharacterUnique(Find(m_characterUniques, node), true);
}

void MainWindowCharacterSelector2::MouseMove() { m_parent->SetActiveControl(m_treeView); }

}  // namespace ZORVEL
