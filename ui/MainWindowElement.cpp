#include "ui/MainWindowElement.h"

#include <utility>

#include "model/RepositoryPaths.h"
#include "ui/Log.h"
#include "ui/MainWindowGeneralPage.h"
#include "ui/Texts.h"
#include "ui/WebAddress.h"

namespace ZORVEL {

namespace {

const int CHECK_BOX_HEIGHT = 50;

}  // namespace

void MainWindowElement::Create(OfferedElement content, MainWindowGeneralPage* host) {
  m_content = std::move(content);
  m_host = host;
}

void MainWindowElement::MakeControls(QWidget* parent) {
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

void MainWindowElement::MakeCheckBox(QWidget* parent) {
  m_checkBox = new WrappingCheckBox(parent);
  m_checkBox->resize(m_host->GetPictureSize().width(), CHECK_BOX_HEIGHT);
  m_checkBox->setChecked(m_selected);
  QObject::connect(m_checkBox, &QCheckBox::clicked, m_checkBox, [this] { AfterSelect(); });
}

void MainWindowElement::MakePicture(QWidget* parent) {
  PictureSource source;
  source.path = m_content.picturePath;
  source.stamp = m_host->GetFiles().Get(source.path);
  source.box = m_host->GetPictureSize();
  if (!isAvailable()) {
    source.overlay = RepositoryPaths::ElementOverlay(RepositoryPaths::Root());
    source.overlayStamp = m_host->GetFiles().Get(source.overlay);
  }
  m_logo = new PictureBox(parent);
  m_logo->resize(source.box);
  m_logo->SetSource(source);
  QObject::connect(m_logo, &PictureBox::clicked, m_logo, [this] { AfterSelectImage(); });
}

QString MainWindowElement::Describe() const {
  QString text = Texts::FromWide(m_content.text);
  if (isAvailable()) return text;
  text += QObject::tr("\nNot available, this file is missing: %1").arg(Texts::FromWide(m_content.refusal.concerned));
  const QString url = Texts::FromWide(m_content.url);
  if (WebAddress::IsAllowed(url)) text += QObject::tr("\nA click opens %1").arg(url);
  return text;
}

void MainWindowElement::Place(int x, int y) {
  if (m_checkBox != nullptr) m_checkBox->move(x, y);
  if (m_logo != nullptr) m_logo->move(x, y - m_logo->height());
}

void MainWindowElement::SetSelected(bool selected) {
  m_selected = selected;
  if (m_checkBox != nullptr) m_checkBox->setChecked(selected);
}

void MainWindowElement::SelectThisInCase(int unique) {
  if (GetUnique() == unique) SetSelected(true);
}

void MainWindowElement::Focus() {
  if (m_checkBox != nullptr) m_checkBox->setFocus();
}

void MainWindowElement::AfterSelect() {
  m_selected = m_checkBox->isChecked();
  TellHost(m_selected);
}

void MainWindowElement::AfterSelectImage() {
  if (isAvailable()) return TellHost(!m_selected);
  WebAddress::Open(Texts::FromWide(m_content.url));
}

void MainWindowElement::TellHost(bool selected) {
  LogInfo(selected ? L"select..." : L"unselect...");
  if (selected) return m_host->SelectedElement(GetUnique());
  m_host->UnselectElement(GetUnique());
}

}  // namespace ZORVEL
