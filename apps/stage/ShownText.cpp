#include "apps/stage/ShownText.h"

#include <QTextDocument>

#include "host/files/PrintableText.h"

namespace stage {

QString shownText(const QString& text) { return QString::fromStdString(host::printable(text.toStdString())); }

QString shownToolTip(const QString& text) {
  return text.isEmpty() ? QString() : Qt::convertFromPlainText(shownText(text), Qt::WhiteSpaceNormal);
}

}  // namespace stage
