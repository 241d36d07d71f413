#include "plugin/DebugWindowClass.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <algorithm>
#include <cwchar>

namespace ZORVEL {

namespace {

const int MOST_LINES = 100000;
const std::size_t LONGEST_TEXT = 10000;

QString Shortened(const wchar_t* text) {
  if (text == nullptr) return QString();
  const wchar_t* const end = std::wmemchr(text, L'\0', LONGEST_TEXT);
  if (end != nullptr) return QString::fromWCharArray(text, static_cast<int>(end - text));
  return QString::fromWCharArray(text, static_cast<int>(LONGEST_TEXT)) + QChar(0x2026);
}

/// A name may hold what would begin a line of its own.
QString OneLine(QString text) {
  const auto breaksLine = [](QChar c) {
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
  };
  std::replace_if(text.begin(), text.end(), breaksLine, QChar(QChar::ReplacementCharacter));
  return text;
}

}  // namespace

DebugWindowClass* DebugWindowClass::window = nullptr;

DebugWindowClass::DebugWindowClass() : m_textBox(new QPlainTextEdit(this)) {
  setWindowTitle("ZORVEL Info Window");
  SetSize(400, 800);
  SetFixedDialog();
  m_textBox->setReadOnly(true);
  m_textBox->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_textBox->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  m_textBox->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  m_textBox->setMaximumBlockCount(MOST_LINES);
  m_textBox->setAccessibleName("Messages");
  Append("ZORVEL Info Window...\r\n04.04.2014\r\n");
  Append("base Setting: Max 2013\r\n");
  AddControl(m_textBox, QRect(0, 0, 385, 765));
}

DebugWindowClass::~DebugWindowClass() {
  if (window == this) window = nullptr;
}

void DebugWindowClass::AddText(const wchar_t* text) { Append(OneLine(Shortened(text)) + "\r\n"); }

void DebugWindowClass::Append(const QString& text) {
  QScrollBar* const bar = m_textBox->verticalScrollBar();
  const bool atEnd = bar->value() == bar->maximum();
  QTextCursor end(m_textBox->document());
  end.movePosition(QTextCursor::End);
  end.insertText(text);
  if (atEnd) bar->setValue(bar->maximum());
}

}  // namespace ZORVEL
