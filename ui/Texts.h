#pragma once

#include <QString>
#include <string>

namespace ZORVEL {

class DataContainer;

/// Names out of a repository on their way to the screen. They may hold anything: line breaks, markup, a megabyte.
class Texts {
 public:
  static QString FromWide(const wchar_t* text);
  static QString FromWide(const std::wstring& text) { return QString::fromStdWString(text); }

  /// A name with all its blanks and line breaks, no longer than a control could show.
  static std::wstring Name(const DataContainer* record);
  /// In one line and no longer than a control could show: a blank for each line break. Other blanks stay as they are.
  static QString OneLine(const QString& text);
  /// One line whose ampersands stand for themselves where a control takes them for mnemonics.
  static QString Caption(const QString& text);
  /// Shown as it stands, never taken for markup.
  static QString ToolTip(const QString& text);
};

}  // namespace ZORVEL
