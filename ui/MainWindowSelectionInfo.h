#pragma once

#include <QLabel>
#include <string>

#include "ui/MaxForm.h"

namespace ZORVEL {

class CharacterData;

/// What is chosen, in up to three lines.
class MainWindowSelectionInfo {
 public:
  void CreateInfo(MaxForm& form);
  void UpdateInfo();

  const QLabel* GetControl() const { return m_label; }

 private:
  static std::wstring Describe(const CharacterData& character);
  static std::wstring DescribeAssets(const CharacterData& character);
  void Show(const std::wstring& text);

  QLabel* m_label = nullptr;
};

}  // namespace ZORVEL
