#pragma once

#include "model/PageOffer.h"
#include "ui/PictureBox.h"

namespace ZORVEL {

/// One picture of the clothing strip.
class MainWindowClothPreview {
 public:
  MainWindowClothPreview() = default;
  MainWindowClothPreview(const MainWindowClothPreview&) = delete;
  MainWindowClothPreview& operator=(const MainWindowClothPreview&) = delete;

  /// Makes the picture, hidden, as a child of the panel, which destroys it. The preview must live as long as the
  /// picture does. `character` is the unique id of the one whose clothing it is.
  void Create(QWidget* panel, int x, OfferedElement cloth, int character, FileStamps& files);
  void Place(int x, int y);
  bool isAvailable() const { return m_cloth.IsAvailable(); }
  const PictureBox* GetPicture() const { return m_preview; }

 private:
  QString Describe() const;
  void clicked();

  PictureBox* m_preview = nullptr;
  int m_charUnique = 0;
  OfferedElement m_cloth;
};

}  // namespace ZORVEL
