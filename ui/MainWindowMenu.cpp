#include "ui/MainWindowMenu.h"

#include <QShortcut>

#include "plugin/Commands.h"
#include "ui/WebAddress.h"

namespace ZORVEL {

namespace {

const int HEIGHT = 24;

}  // namespace

void MainWindowMenu::Create(MaxForm& form) {
  m_menu = new QMenuBar;
  m_menu->setNativeMenuBar(false);
  m_menu_zorvel = m_menu->addMenu(QStringLiteral("ZORVEL"));
  QAction* shop = m_menu_zorvel->addAction(QStringLiteral("Visit Shop"),
                                           [] { WebAddress::Open(QStringLiteral(ZORVEL_SHOP_ADDRESS)); });
  shop->setEnabled(WebAddress::IsAllowed(QStringLiteral(ZORVEL_SHOP_ADDRESS)));
  m_menu_repo = m_menu->addMenu(QStringLiteral("Repository"));
  m_menu_repo->addAction(QStringLiteral("Reload"), [] { Commands::ReloadRepository(); });
  m_menu_repo->addAction(QStringLiteral("Set Repository"), [] { Commands::ResetRepository(); });
  // The captions have no mnemonics to get here by.
  const auto* toMenu = new QShortcut(Qt::Key_F10, &form);
  QObject::connect(toMenu, &QShortcut::activated, m_menu,
                   [this] { m_menu->setActiveAction(m_menu_zorvel->menuAction()); });
  form.AddControl(m_menu, QRect(0, 0, form.width(), HEIGHT), ANCHOR_TOP | ANCHOR_LEFT | ANCHOR_RIGHT);
}

}  // namespace ZORVEL
