#include "ui/Logo.h"

#include <QPainter>

/// The pictures that the module carries; to be called outside of any namespace.
static void InitPictures() { Q_INIT_RESOURCE(zorvel); }

namespace ZORVEL {

Logo::Logo(QWidget* parent) : QWidget(parent) {
  InitPictures();
  m_plain.load(QStringLiteral(":/zorvel/logo.bmp"));
  m_fine.load(QStringLiteral(":/zorvel/logo@2x.bmp"));
}

void Logo::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(rect(), devicePixelRatioF() > 1 ? m_fine : m_plain);
}

}  // namespace ZORVEL
