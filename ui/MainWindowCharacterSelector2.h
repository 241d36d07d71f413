#pragma once

#include <unordered_map>

#include "ui/CharacterTree.h"
#include "ui/MaxForm.h"

namespace ZORVEL {

class CharacterData;

/// The tree of usable characters with their usable clothing. It does not follow the selection.
class MainWindowCharacterSelector2 {
 public:
  void CreateSelektor(MaxForm& form);
  void Rebuild(MaxForm& form);

  CharacterTree* GetControl() const { return m_treeView; }

 private:
  void InitSelector();
  void CreateClothNodes(QTreeWidgetItem* node, const CharacterData* character);
  void AterSelect();
  void OnClick();
  void MouseMove();
  const QTreeWidgetItem* SelectedNode() const;
  /// 0 for a node that is not in the map.
  using Uniques = std::unordered_map<const QTreeWidgetItem*, int>;
  static unsigned int Find(const Uniques& uniques, const QTreeWidgetItem* node);

  CharacterTree* m_treeView = nullptr;
  Uniques m_characterUniques;
  Uniques m_clothUniques;
  MaxForm* m_parent = nullptr;
};

}  // namespace ZORVEL
