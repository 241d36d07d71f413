#include "ui/MaxForm.h"

#include <maxapi.h>

#include <Qt/QmaxMainWindow.h>

#include <QApplication>
#include <QCloseEvent>
#include <algorithm>
#include <vector>

namespace ZORVEL {

namespace {

const int FONT_PIXELS = 11;

std::vector<MaxForm*>& OpenForms() {
  static std::vector<MaxForm*> all;
  return all;
}

QWidget* HostWindow() {
  Interface* core = GetCOREInterface();
  return core != nullptr ? core->GetQmaxMainWindow() : nullptr;
}

}  // namespace

// A dialog floats above its parent on every desktop, other windows only on Windows.
MaxForm::MaxForm()
    : QWidget(HostWindow(), Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint) {
  // Places and sizes are given for this size of text.
  QFont small = font();
  small.setPixelSize(FONT_PIXELS);
  setFont(small);
  OpenForms().push_back(this);
}

MaxForm::~MaxForm() {
  HoldAccelerators(false);
  OpenForms().erase(std::remove(OpenForms().begin(), OpenForms().end(), this), OpenForms().end());
}

bool MaxForm::CanBeMade() { return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr; }

void MaxForm::DeleteAll() {
  while (!OpenForms().empty()) delete OpenForms().back();
}

void MaxForm::ShowModeless() { show(); }

void MaxForm::Activate() {
  raise();
  activateWindow();
}

void MaxForm::SetSize(int width, int height) {
  resize(width - FRAME_WIDTH, height - FRAME_HEIGHT);
  if (!m_layoutIsElsewhere) m_layout.SetSize(size());
}

void MaxForm::SetMinimum(int width, int height) { setMinimumSize(width - FRAME_WIDTH, height - FRAME_HEIGHT); }

void MaxForm::SetFixedDialog() {
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  setFixedSize(size());
}

void MaxForm::AddControl(QWidget* control, const QRect& place, int anchors) {
  control->setParent(this);
  m_layout.Add(control, place, anchors);
  control->show();
}

void MaxForm::MoveControl(QWidget* control, const QRect& place) { m_layout.Move(control, place); }

void MaxForm::RemoveControl(QWidget* control) {
  if (control == nullptr) return;
  m_layout.Remove(control);
  control->blockSignals(true);
  control->hide();
  control->deleteLater();
}

void MaxForm::BeginLayoutAt(int width, int height) {
  m_layoutIsElsewhere = true;
  m_layout.SetSize(QSize(width - FRAME_WIDTH, height - FRAME_HEIGHT));
}

void MaxForm::EndLayout() {
  m_layoutIsElsewhere = false;
  m_layout.SetSize(size());
}

void MaxForm::SetActiveControl(QWidget* control) {
  if (control != nullptr && control != focusWidget()) control->setFocus(Qt::OtherFocusReason);
}

void MaxForm::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!m_layoutIsElsewhere) m_layout.SetSize(size());
  ResizeEvent();
}

void MaxForm::closeEvent(QCloseEvent* event) {
  CloseEvent();
  event->accept();
}

void MaxForm::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange) HoldAccelerators(isActiveWindow());
}

void MaxForm::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  HoldAccelerators(false);
}

void MaxForm::HoldAccelerators(bool off) {
  if (m_acceleratorsOff == off) return;
  m_acceleratorsOff = off;
  if (off) return DisableAccelerators();
  EnableAccelerators();
}

}  // namespace ZORVEL
