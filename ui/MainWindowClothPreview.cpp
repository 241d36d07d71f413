#include "ui/MainWindowClothPreview.h"

#include "plugin/Commands.h"
#include "core/Settings.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "ui/Log.h"
#include "ui/Texts.h"

namespace ZORVEL {

bool MainWindowClothPreview::Create(QWidget* panel, int x, const DataContainer* clothElement,
                                    const CharacterData* character, FileStamps& files) {
  if (panel == nullptr || clothElement == nullptr || character == nullptr) return false;
  m_charUnique = Data2::GetUnique(character);
  m_clothUnique = Data2::GetUnique(clothElement);
  m_available = Fields::Equals(clothElement, L"available", L"available");
  m_url = Texts::Field(clothElement, L"url");
  PictureSource source;
  source.path =
      Texts::Field(character, L"folder") + L"\\previews\\preview_" + Texts::Field(clothElement, L"id") + L".png";
  source.stamp = files.Get(source.path);
  if (!source.stamp.exists) {
    LogInfo(L"preview image not found");
    return false;
  }
  source.box = QSize(110, 330);
  if (!m_available) {
    source.overlay = Settings::GetPath() + std::wstring(L"\\overlay110x330.png");
    source.overlayStamp = files.Get(source.overlay);
  }
  m_preview = new PictureBox(panel);
  m_preview->setGeometry(QRect(QPoint(x + 10, 70), source.box));
  m_preview->hide();
  m_preview->SetSource(source);
  const QString description = describe(clothElement, character);
  m_preview->setToolTip(Texts::ToolTip(description));
  m_preview->setAccessibleName(Texts::OneLine(Texts::FromWide(Texts::Field(clothElement, L"name"))));
  m_preview->setAccessibleDescription(Texts::OneLine(description));
  QObject::connect(m_preview, &PictureBox::clicked, m_preview, [this] { clicked(); });
  return true;
}

QString MainWindowClothPreview::describe(const DataContainer* clothElement, const CharacterData* character) const {
  QString text = Texts::FromWide(Texts::Field(clothElement, L"name"));
  if (m_available) return text;
  const std::wstring folder = Texts::Field(character, L"folder") + L"\\" + Texts::Field(clothElement, L"folder");
  return text + QObject::tr("\nNot available, this folder is missing: %1").arg(Texts::FromWide(folder));
}

void MainWindowClothPreview::Place(int x, int y) {
  if (m_preview == nullptr) return;
  m_preview->move(x, y);
  m_preview->show();
}

void MainWindowClothPreview::clicked() {
  Commands::SetSelectedClothUnique(static_cast<unsigned int>(m_charUnique), static_cast<unsigned int>(m_clothUnique),
                                   true);
}

}  // namespace ZORVEL
