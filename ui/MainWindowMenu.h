#pragma once

#include <QMenuBar>

#include "ui/MaxForm.h"

namespace ZORVEL {

/// The menu bar: the shop, and the commands about the repository.
class MainWindowMenu {
 public:
  void Create(MaxForm& form);

  QMenuBar* GetControl() const { return m_menu; }

 private:
  QMenuBar* m_menu = nullptr;
  QMenu* m_menu_zorvel = nullptr;
  QMenu* m_menu_repo = nullptr;
};

}  // namespace ZORVEL
