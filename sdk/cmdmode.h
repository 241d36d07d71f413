#pragma once

#include <mouseman.h>
#include <ref.h>

class INode;

constexpr int MODIFY_COMMAND = 10;

/// Flags the nodes that a mode draws in the foreground.
class ChangeForegroundCallback {
 public:
  virtual ~ChangeForegroundCallback() = default;
  virtual void callback(TimeValue t, INode* node) = 0;
};

/// Flags what depends on an object; with a null object, nothing.
class ChangeFGObject : public ChangeForegroundCallback {
 public:
  explicit ChangeFGObject(ReferenceTarget* object) : obj(object) {}
  void callback(TimeValue /*t*/, INode* /*node*/) override {}

  BOOL valid = TRUE;
  ReferenceTarget* obj;
};

/// What the mouse does in the viewports while it is current.
class CommandMode {
 public:
  virtual ~CommandMode() = default;
  virtual int Class() = 0;
  virtual int SuperClass() { return 0; }
  virtual int ID() = 0;
  /// How many points one run takes goes to `numPoints`. The callback stays the mode's.
  virtual MouseCallBack* MouseProc(int* numPoints) = 0;
  virtual ChangeForegroundCallback* ChangeFGProc() = 0;
  virtual BOOL ChangeFG(CommandMode* oldMode) = 0;
  virtual void EnterMode() = 0;
  virtual void ExitMode() = 0;
};
