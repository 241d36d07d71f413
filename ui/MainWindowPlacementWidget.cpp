#include "ui/MainWindowPlacementWidget.h"

#include "model/Selection2.h"
#include "plugin/Commands.h"

namespace ZORVEL {

void MainWindowPlacementWidget::Create(MaxForm& form) {
  m_button = new QPushButton(QStringLiteral("Create"));
  m_button->setToolTip(QObject::tr("Builds the character; two clicks in the scene then place and turn it"));
  // Outside of a dialog the button would take no Enter key.
  m_button->setAutoDefault(true);
  QObject::connect(m_button, &QPushButton::clicked, m_button, [] { clicked(); });
  form.AddControl(m_button, QRect(785, 37, 132, 50), ANCHOR_TOP | ANCHOR_RIGHT);
}

void MainWindowPlacementWidget::Update() { m_button->setVisible(Selection2::GetCloth() != nullptr); }

void MainWindowPlacementWidget::clicked() { Commands::CreateCharacter(); }

}  // namespace ZORVEL
