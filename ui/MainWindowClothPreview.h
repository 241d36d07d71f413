#pragma once

#include <string>

#include "ui/PictureBox.h"

namespace ZORVEL {

class CharacterData;
class DataContainer;

/// One picture of the clothing strip.
class MainWindowClothPreview {
 public:
  MainWindowClothPreview() = default;
  MainWindowClothPreview(const MainWindowClothPreview&) = delete;
  MainWindowClothPreview& operator=(const MainWindowClothPreview&) = delete;

  /// Makes the picture, hidden, as a child of the panel, which destroys it. False when there is no file to show, or an
  /// argument is null. The preview must live as long as the picture does.
  bool Create(QWidget* panel, int x, const DataContainer* clothElement, const CharacterData* character,
              FileStamps& files);
  void Place(int x, int y);
  bool isAvailable() const { return m_available; }
  const PictureBox* GetPicture() const { return m_preview; }

 private:
  QString describe(const DataContainer* clothElement, const CharacterData* character) const;
  void clicked();

  PictureBox* m_preview = nullptr;
  int m_charUnique = 0;
  int m_clothUnique = 0;
  std::wstring m_url;
  bool m_available = false;
};

}  // namespace ZORVEL
