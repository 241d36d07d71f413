#pragma once

#include "model/PageOffer.h"
#include "ui/PictureBox.h"
#include "ui/WrappingCheckBox.h"

namespace ZORVEL {

class MainWindowGeneralPage;

/// One element of a page: a picture with a check box underneath. One that is not available has no box, and a click on
/// its picture opens the web page where it can be had.
class MainWindowElementBase {
 public:
  virtual ~MainWindowElementBase() = default;
  MainWindowElementBase(const MainWindowElementBase&) = delete;
  MainWindowElementBase& operator=(const MainWindowElementBase&) = delete;

  /// What the element is; it can be chosen from now on.
  void Create(OfferedElement content, MainWindowGeneralPage* host);
  /// Makes the controls, children of `parent`, which destroys them. The element must live as long as they do.
  void MakeControls(QWidget* parent);
  /// `y` is where the picture ends and the box begins.
  void Place(int x, int y);

  int GetUnique() const { return m_content.unique; }
  bool isAvailable() const { return m_content.IsAvailable(); }
  bool GetSelected() const { return m_selected; }
  /// Tells nobody.
  void SetSelected(bool selected);
  void SelectThisUnique(int unique) { SetSelected(GetUnique() == unique); }
  void SelectThisInCase(int unique);
  void Focus();

  /// Null when there is none, and before the controls are made.
  const QCheckBox* GetCheckBox() const { return m_checkBox; }
  const PictureBox* GetPicture() const { return m_logo; }

 protected:
  MainWindowElementBase() = default;
  /// In pixels.
  static QSize BoxOf(PageKind page);

 private:
  virtual QSize GetPictureSize() const = 0;
  virtual QSize GetCheckBoxSize() const = 0;

  void MakeCheckBox(QWidget* parent);
  void MakePicture(QWidget* parent);
  QString Describe() const;
  void AfterSelect();
  void AfterSelectImage();
  void TellHost(bool selected);

  OfferedElement m_content;
  bool m_selected = false;
  WrappingCheckBox* m_checkBox = nullptr;
  PictureBox* m_logo = nullptr;
  MainWindowGeneralPage* m_host = nullptr;
};

}  // namespace ZORVEL
