#pragma once

#include <memory>
#include <vector>

#include "ui/MainWindowClothPreview.h"
#include "ui/MaxForm.h"
#include "ui/ScrollPanel.h"

namespace ZORVEL {

/// The strip of clothing pictures of the chosen character, shown until a clothing is chosen. Sizes are those of the
/// form.
class MainWindowClothSelector {
 public:
  void Create(MaxForm& form, int size);
  void Rebuild(MaxForm& form, int size);
  void Update(int width);
  /// Lays the pictures out in rows.
  void UpdateWidth(int width);

  ScrollPanel* GetControl() const { return m_panel; }
  /// In the order shown: available ones first.
  const std::vector<std::unique_ptr<MainWindowClothPreview>>& GetElements() const { return m_elements; }

 private:
  void DisplayCloth(int width);
  void AddPreviews();
  void MouseMove();

  ScrollPanel* m_panel = nullptr;
  std::vector<std::unique_ptr<MainWindowClothPreview>> m_elements;
  MaxForm* m_parent = nullptr;
};

}  // namespace ZORVEL
