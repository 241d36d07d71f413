#include "apps/stage/panels/PromptLine.h"

#include "apps/stage/ShownText.h"

namespace stage {

namespace {

const QColor QUIET(165, 165, 165);
const QColor WARNING(232, 178, 112);

}  // namespace

PromptLine::PromptLine(QWidget* parent)
    : QStatusBar(parent), prompt_(new QLabel), message_(new QLabel), progress_(new QProgressBar), unit_(new QLabel) {
  prompt_->setToolTip(tr("What the current mode waits for"));
  prompt_->setAccessibleName(tr("Prompt"));
  prompt_->setContentsMargins(6, 0, 6, 0);
  // Texts from files may be long; they must not widen the window.
  prompt_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  message_->setTextFormat(Qt::PlainText);
  prompt_->setTextFormat(Qt::PlainText);
  unit_->setToolTip(tr("System unit: what one unit of the scene is"));
  progress_->setMaximumWidth(140);
  progress_->hide();
  addWidget(prompt_, 1);
  addWidget(message_, 2);
  addPermanentWidget(progress_);
  addPermanentWidget(unit_);
}

void PromptLine::setPrompt(const QString& prompt) {
  prompt_->setText(prompt.isEmpty() ? tr("Ready") : shownText(prompt));
}

void PromptLine::say(const QString& message) { showMessageIn(QUIET, message); }

void PromptLine::warn(const QString& message) { showMessageIn(WARNING, message); }

void PromptLine::showMessageIn(const QColor& color, const QString& message) {
  QPalette palette = message_->palette();
  palette.setColor(QPalette::WindowText, color);
  message_->setPalette(palette);
  message_->setText(shownText(message));
  message_->setToolTip(shownToolTip(message));
}

void PromptLine::setUnit(const QString& unit) { unit_->setText(unit); }

void PromptLine::setProgress(int percent) {
  progress_->setValue(percent);
  progress_->setVisible(percent < 100);
}

}  // namespace stage
