#include "ui/MainWindowClothPreview.h"

#include "model/PictureSize.h"
#include "model/RepositoryPaths.h"
#include "plugin/Commands.h"
#include "ui/Texts.h"

namespace ZORVEL {

void MainWindowClothPreview::Create(QWidget* panel, int x, OfferedElement cloth, int character, FileStamps& files) {
  m_charUnique = character;
  m_cloth = std::move(cloth);
  PictureSource source;
  source.path = m_cloth.picturePath;
  source.stamp = files.Get(source.path);
  const PictureSize box = PictureSize::OfBox(PageKind::Clothing);
  source.box = QSize(box.width, box.height);
  if (!isAvailable()) {
    source.overlay = RepositoryPaths::ClothOverlay(RepositoryPaths::Root());
    source.overlayStamp = files.Get(source.overlay);
  }
  m_preview = new PictureBox(panel);
  m_preview->setGeometry(QRect(QPoint(x + 10, 70), source.box));
  m_preview->hide();
  m_preview->SetSource(source);
  const QString description = Describe();
  m_preview->setToolTip(Texts::ToolTip(description));
  m_preview->setAccessibleName(Texts::OneLine(Texts::FromWide(m_cloth.text)));
  m_preview->setAccessibleDescription(Texts::OneLine(description));
  QObject::connect(m_preview, &PictureBox::clicked, m_preview, [this] { clicked(); });
}

QString MainWindowClothPreview::Describe() const {
  QString text = Texts::FromWide(m_cloth.text);
  if (isAvailable()) return text;
  const QString folder = Texts::FromWide(m_cloth.refusal.concerned);
  return text + QObject::tr("\nNot available, this folder is missing: %1").arg(folder);
}

void MainWindowClothPreview::Place(int x, int y) {
  if (m_preview == nullptr) return;
  m_preview->move(x, y);
  m_preview->show();
}

void MainWindowClothPreview::clicked() {
  Commands::SetSelectedClothUnique(static_cast<unsigned int>(m_charUnique), static_cast<unsigned int>(m_cloth.unique),
                                   true);
}

}  // namespace ZORVEL
