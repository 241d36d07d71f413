#pragma once

#include <ipoint2.h>
#include <maxtypes.h>

constexpr int MOUSE_ABORT = 0;
constexpr int MOUSE_POINT = 1;
constexpr int MOUSE_MOVE = 2;
constexpr int MOUSE_DBLCLICK = 3;
constexpr int MOUSE_INIT = 4;
constexpr int MOUSE_UNINIT = 5;
constexpr int MOUSE_FREEMOVE = 6;
constexpr int MOUSE_KEYBOARD = 7;
constexpr int MOUSE_PROPCLICK = 8;

constexpr int MOUSE_SHIFT = 1;
constexpr int MOUSE_CTRL = 2;
constexpr int MOUSE_ALT = 4;
constexpr int MOUSE_LBUTTON = 8;
constexpr int MOUSE_MBUTTON = 16;
constexpr int MOUSE_RBUTTON = 32;

/// Takes what the mouse does in a viewport while its mode is current.
class MouseCallBack {
 public:
  virtual ~MouseCallBack() = default;
  /// `point` counts the clicks of one run, `flags` are the keys and buttons held, `m` is in pixels of the window. TRUE
  /// to go on. A press delivers MOUSE_POINT with the button's flag, the release another one without.
  virtual int proc(HWND window, int msg, int point, int flags, IPoint2 m) = 0;
};
