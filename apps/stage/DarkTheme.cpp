#include "apps/stage/DarkTheme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

namespace stage {

void applyDarkTheme(QApplication& application) {
  application.setStyle(QStyleFactory::create("Fusion"));
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(68, 68, 68));
  palette.setColor(QPalette::WindowText, QColor(221, 221, 221));
  palette.setColor(QPalette::Base, QColor(50, 50, 50));
  palette.setColor(QPalette::AlternateBase, QColor(56, 56, 56));
  palette.setColor(QPalette::Text, QColor(221, 221, 221));
  palette.setColor(QPalette::PlaceholderText, QColor(130, 130, 130));
  palette.setColor(QPalette::Button, QColor(78, 78, 78));
  palette.setColor(QPalette::ButtonText, QColor(221, 221, 221));
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(72, 118, 158));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(120, 176, 224));
  palette.setColor(QPalette::ToolTipBase, QColor(36, 36, 36));
  palette.setColor(QPalette::ToolTipText, QColor(228, 228, 228));
  palette.setColor(QPalette::Light, QColor(96, 96, 96));
  palette.setColor(QPalette::Midlight, QColor(84, 84, 84));
  palette.setColor(QPalette::Mid, QColor(54, 54, 54));
  palette.setColor(QPalette::Dark, QColor(42, 42, 42));
  palette.setColor(QPalette::Shadow, QColor(24, 24, 24));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(124, 124, 124));
  }
  application.setPalette(palette);
  QToolTip::setPalette(palette);
}

}  // namespace stage
