#include "ui/DarkPalette.h"

namespace ZORVEL {

QPalette DarkPalette(const QPalette& base) {
  const QColor background(68, 68, 68);
  QPalette palette = base;
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base}) palette.setColor(role, background);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text}) palette.setColor(role, Qt::white);
  return palette;
}

}  // namespace ZORVEL
