#pragma once

#include <cmdmode.h>

namespace host {

/// The host's own mode: a click selects the node under the pointer, with MOUSE_CTRL in addition to the others; a click
/// on nothing selects nothing.
class StandardMode final : public CommandMode, private MouseCallBack {
 public:
  int Class() override { return SELECT_COMMAND; }
  int ID() override { return CID_OBJSELECT; }
  MouseCallBack* MouseProc(int* numPoints) override;
  ChangeForegroundCallback* ChangeFGProc() override { return nullptr; }
  BOOL ChangeFG(CommandMode* /*oldMode*/) override { return FALSE; }
  void EnterMode() override {}
  void ExitMode() override {}

 private:
  static constexpr int SELECT_COMMAND = 7;
  static constexpr int CID_OBJSELECT = 6;

  int proc(HWND window, int msg, int point, int flags, IPoint2 m) override;
};

}  // namespace host
