#pragma once

#include "ui/MaxForm.h"

class QPlainTextEdit;

namespace ZORVEL {

/// A window of read-only text, for messages. Of its lines the last 100,000 are kept.
class DebugWindowClass : public MaxForm {
 public:
  DebugWindowClass();
  ~DebugWindowClass() override;

  /// Appends the text as one line; null counts as empty, and of a text longer than any path or message only the
  /// beginning is shown. What is read further up stays in view.
  void AddText(const wchar_t* text);

  /// The window that was created last, open or closed; null when there is none or it was destroyed.
  static DebugWindowClass* window;

 private:
  void Append(const QString& text);

  QPlainTextEdit* m_textBox;
};

}  // namespace ZORVEL
