#pragma once

#include <QPushButton>

#include "ui/MaxForm.h"

namespace ZORVEL {

/// The button that builds the chosen character, there while a clothing is chosen.
class MainWindowPlacementWidget {
 public:
  void Create(MaxForm& form);
  void Update();

  QPushButton* GetControl() const { return m_button; }

 private:
  static void clicked();

  QPushButton* m_button = nullptr;
};

}  // namespace ZORVEL
