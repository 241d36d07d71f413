#include "host/modes/MouseFeed.h"

#include <mouseman.h>

#include "host/modes/CommandModes.h"

namespace host {

void MouseFeed::followMode() {
  if (generation_ == modes_.generation()) return;
  generation_ = modes_.generation();
  nextPoint_ = 0;
}

bool MouseFeed::tell(int message, int number, int flags, IPoint2 pixel) {
  int wanted = 1;
  MouseCallBack* callback = modes_.current().MouseProc(&wanted);
  const bool goesOn = callback == nullptr || callback->proc(window_, message, number, flags, pixel) != FALSE;
  // From here on the mode may be gone: only what was read before may be used.
  return goesOn && number + 1 < wanted;
}

void MouseFeed::point(int flags, IPoint2 pixel) {
  followMode();
  const int number = nextPoint_++;
  if (!tell(MOUSE_POINT, number, flags, pixel)) nextPoint_ = 0;
}

void MouseFeed::press(int button, int keys, IPoint2 pixel) {
  buttons_ |= button;
  pressed_ = modes_.generation();
  point(keys | buttons_, pixel);
}

void MouseFeed::release(int button, int keys, IPoint2 pixel) {
  if ((buttons_ & button) == 0) return;
  buttons_ &= ~button;
  if (pressed_ == modes_.generation()) point(keys | buttons_, pixel);
}

void MouseFeed::move(int keys, IPoint2 pixel) {
  followMode();
  tell(buttonDown() ? MOUSE_MOVE : MOUSE_FREEMOVE, nextPoint_, keys | buttons_, pixel);
}

void MouseFeed::rightClick(int keys, IPoint2 pixel) {
  followMode();
  nextPoint_ = 0;
  tell(MOUSE_PROPCLICK, 0, keys, pixel);
}

void MouseFeed::abort() {
  followMode();
  nextPoint_ = 0;
  buttons_ = 0;
  tell(MOUSE_ABORT, 0, 0, IPoint2());
}

}  // namespace host
