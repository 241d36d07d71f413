#include "ui/Texts.h"

#include <QTextDocument>
#include <algorithm>

#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace ZORVEL {

namespace {

const int LONGEST_LINE = 256;
const int LONGEST_TOOL_TIP = 2000;

QString Cut(const QString& text, int longest) {
  return text.size() <= longest ? text : text.left(longest) + QChar(0x2026);
}

bool IsLineBreak(QChar c) {
  const ushort unit = c.unicode();
  return (unit >= '\n' && unit <= '\r') || unit == 0x85 || unit == QChar::LineSeparator ||
         unit == QChar::ParagraphSeparator;
}

}  // namespace

QString Texts::FromWide(const wchar_t* text) { return text != nullptr ? QString::fromWCharArray(text) : QString(); }

std::wstring Texts::Name(const DataContainer* record) {
  return Cut(FromWide(Fields::OptionalText(record, RepositoryFormat::FIELD_NAME)), LONGEST_LINE).toStdWString();
}

QString Texts::OneLine(const QString& text) {
  QString line = Cut(text, LONGEST_LINE);
  std::replace_if(line.begin(), line.end(), IsLineBreak, QChar(' '));
  return line;
}

QString Texts::Caption(const QString& text) { return OneLine(text).replace('&', "&&"); }

QString Texts::ToolTip(const QString& text) {
  return Qt::convertFromPlainText(Cut(text, LONGEST_TOOL_TIP), Qt::WhiteSpaceNormal);
}

}  // namespace ZORVEL
