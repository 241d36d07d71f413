#pragma once

#include <QWidget>

#include "ui/AnchorLayout.h"

namespace ZORVEL {

/// A top-level window of the plug-in: modeless, floating above the host's main window and destroyed with it, with
/// controls at fixed places. While it has the keyboard the host's accelerators are off. User-interface thread only.
///
/// A form's width and height are logical pixels and include a frame of the size that Windows draws, whatever this
/// desktop draws: 16 across, 39 down. Places of controls count from the corner inside the frame.
class MaxForm : public QWidget {
  Q_OBJECT

 public:
  MaxForm();
  ~MaxForm() override;
  MaxForm(const MaxForm&) = delete;
  MaxForm& operator=(const MaxForm&) = delete;

  /// False without a window toolkit that is running; a form cannot be made then.
  static bool CanBeMade();
  /// Destroys every form there is. The module's code must not be left behind by its windows.
  static void DeleteAll();

  void ShowModeless();
  void Activate();

  int GetWidth() const { return width() + FRAME_WIDTH; }
  int GetHeight() const { return height() + FRAME_HEIGHT; }
  void SetSize(int width, int height);
  void SetMinimum(int width, int height);
  /// Neither resizable nor with buttons in its caption.
  void SetFixedDialog();

  /// The form owns the control from now on.
  void AddControl(QWidget* control, const QRect& place, int anchors = ANCHOR_TOP | ANCHOR_LEFT);
  void MoveControl(QWidget* control, const QRect& place);
  /// Gone at once for the user, destroyed once the control's own events are through. Null does nothing.
  void RemoveControl(QWidget* control);
  /// Until EndLayout, controls are added to a form of this size; then all are fitted to the size that it really has.
  void BeginLayoutAt(int width, int height);
  void EndLayout();

  /// Which control the keyboard goes to; null when none.
  QWidget* GetActiveControl() const { return focusWidget(); }
  void SetActiveControl(QWidget* control);

 protected:
  virtual void ResizeEvent() {}
  /// The window is about to close.
  virtual void CloseEvent() {}

  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  static const int FRAME_WIDTH = 16;
  static const int FRAME_HEIGHT = 39;

  void HoldAccelerators(bool off);

  AnchorLayout m_layout;
  bool m_layoutIsElsewhere = false;
  bool m_acceleratorsOff = false;
};

}  // namespace ZORVEL
