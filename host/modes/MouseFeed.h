#pragma once

#include <ipoint2.h>
#include <maxtypes.h>

#include <cstdint>

namespace host {

class CommandModes;

/// Tells the current command mode what the mouse does in one viewport. `keys` are MOUSE_SHIFT, MOUSE_CTRL and
/// MOUSE_ALT, `button` is MOUSE_LBUTTON or another button's flag, pixels count from the upper left corner. A mode may
/// end, or be ended, in the middle of any of these calls. Give it what belongs to the modes only, not the buttons that
/// move the camera.
class MouseFeed {
 public:
  MouseFeed(CommandModes& modes, HWND window) : modes_(modes), window_(window) {}

  /// A point with the button's flag.
  void press(int button, int keys, IPoint2 pixel);
  /// The next point, without the button's flag; for nobody when the mode that got the press has ended.
  void release(int button, int keys, IPoint2 pixel);
  /// MOUSE_MOVE while a button is down, else MOUSE_FREEMOVE; always for the mode that is current now.
  void move(int keys, IPoint2 pixel);
  /// MOUSE_PROPCLICK; the run of points starts again.
  void rightClick(int keys, IPoint2 pixel);
  /// The user broke off, or the window lost the mouse: MOUSE_ABORT, no button is down any more and the run starts
  /// again.
  void abort();

  bool buttonDown() const { return buttons_ != 0; }

 private:
  void followMode();
  void point(int flags, IPoint2 pixel);
  /// False when the mode has had enough points.
  bool tell(int message, int number, int flags, IPoint2 pixel);

  CommandModes& modes_;
  HWND window_;
  int buttons_ = 0;
  int nextPoint_ = 0;
  /// The mode that the points so far went to, and the one that got the press.
  std::uint64_t generation_ = 0;
  std::uint64_t pressed_ = 0;
};

}  // namespace host
