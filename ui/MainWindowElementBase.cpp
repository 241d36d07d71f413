#include "ui/MainWindowElementBase.h"

#include <utility>
#include "model/PictureSize.h"

#include "model/RepositoryPaths.h"
#include "ui/Log.h"
#include "ui/MainWindowGeneralPage.h"
#include "ui/Texts.h"
#include "ui/WebAddress.h"

namespace ZORVEL {

QSize MainWindowElementBase::BoxOf(PageKind page) {
  const PictureSize size = PictureSize::OfBox(page);
  return QSize(size.width, size.height);
}

void MainWindowElementBase::Create(OfferedElement content, MainWindowGeneralPage* host) {
  m_content = std::move(content);
  m_host = host;
}

void MainWindowElementBase::MakeControls(QWidget* parent) {
  const QString name = Texts::FromWide(m_content.text);
  const QString description = Describe();
  const QString toolTip = Texts::ToolTip(description);
  if (isAvailable()) {
    MakeCheckBox(parent);
    m_checkBox->setText(Texts::Caption(name));
    m_checkBox->setToolTip(toolTip);
  }
  if (!m_host->GetFiles().Exists(m_content.picturePath)) return;
  MakePicture(parent);
  m_logo->setToolTip(toolTip);
  m_logo->setAccessibleName(Texts::OneLine(name));
  m_logo->setAccessibleDescription(Texts::OneLine(description));
}

void MainWindowElementBase::MakeCheckBox(QWidget* parent) {
  m_checkBox = new WrappingCheckBox(parent);
  m_checkBox->resize(GetCheckBoxSize());
  m_checkBox->setChecked(m_selected);
  QObject::connect(m_checkBox, &QCheckBox::clicked, m_checkBox, [this] { AfterSelect(); });
}

void MainWindowElementBase::MakePicture(QWidget* parent) {
  PictureSource source;
  source.path = m_content.picturePath;
  source.stamp = m_host->GetFiles().Get(source.path);
  source.box = GetPictureSize();
  if (!isAvailable()) {
    source.overlay = RepositoryPaths::ElementOverlay(RepositoryPaths::Root());
    source.overlayStamp = m_host->GetFiles().Get(source.overlay);
  }
  m_logo = new PictureBox(parent);
  m_logo->resize(GetPictureSize());
  m_logo->SetSource(source);
  QObject::connect(m_logo, &PictureBox::clicked, m_logo, [this] { AfterSelectImage(); });
}

QString MainWindowElementBase::Describe() const {
  QString text = Texts::FromWide(m_content.text);
  if (isAvailable()) return text;
  text += QObject::tr("\nNot available, this file is missing: %1").arg(Texts::FromWide(m_content.refusal.concerned));
  const QString url = Texts::FromWide(m_content.url);
  if (WebAddress::IsAllowed(url)) text += QObject::tr("\nA click opens %1").arg(url);
  return text;
}

void MainWindowElementBase::Place(int x, int y) {
  if (m_checkBox != nullptr) m_checkBox->move(x, y);
  if (m_logo != nullptr) m_logo->move(x, y - m_logo->height());
}

void MainWindowElementBase::SetSelected(bool selected) {
  m_selected = selected;
  if (m_checkBox != nullptr) m_checkBox->setChecked(selected);
}

void MainWindowElementBase::SelectThisInCase(int unique) {
  if (GetUnique() == unique) SetSelected(true);
}

void MainWindowElementBase::Focus() {
  if (m_checkBox != nullptr) m_checkBox->setFocus();
}

void MainWindowElementBase::AfterSelect() {
  m_selected = m_checkBox->isChecked();
  TellHost(m_selected);
}

void MainWindowElementBase::AfterSelectImage() {
  if (isAvailable()) return TellHost(!m_selected);
  WebAddress::Open(Texts::FromWide(m_content.url));
}

void MainWindowElementBase::TellHost(bool selected) {
  LogInfo(selected ? L"select..." : L"unselect...");
  if (selected) return m_host->SelectedElement(GetUnique());
  m_host->UnselectElement(GetUnique());
}

}  // namespace ZORVEL
