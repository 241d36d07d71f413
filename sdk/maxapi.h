#pragma once

#include <MtlLib.h>
#include <actiontable.h>
#include <cmdmode.h>
#include <ilayermanager.h>
#include <inode.h>
#include <ipoint2.h>

namespace MaxSDK {
class QmaxMainWindow;
}

constexpr DWORD REDRAW_NORMAL = 8;

/// A view of the scene in a window.
class ViewExp : public InterfaceServer {
 public:
  /// From pixels of the window, origin top left, to a ray in the world whose direction has unit length.
  virtual void MapScreenToWorldRay(float sx, float sy, Ray& ray) = 0;
  virtual HWND GetHWnd() = 0;
  /// False for what stands in for the view of a window that has none.
  virtual bool IsAlive() = 0;
};

/// Answers which nodes may be picked; must be cheap and free of side effects.
class PickNodeCallback {
 public:
  virtual ~PickNodeCallback() = default;
  virtual BOOL Filter(INode* node) = 0;
};

/// The host as a plug-in sees it. Main thread only; pointers are borrowed.
class Interface {
 public:
  virtual ~Interface() = default;

  /// <Qt/QmaxMainWindow.h> has the class. Null in a host without a window.
  virtual MaxSDK::QmaxMainWindow* GetQmaxMainWindow() = 0;

  virtual TimeValue GetTime() = 0;
  virtual void SetTime(TimeValue t, BOOL redraw = TRUE) = 0;
  virtual void PushPrompt(const MCHAR* text) = 0;
  virtual void PopPrompt() = 0;
  /// Shown for so many milliseconds; the stack of prompts stays as it is.
  virtual void DisplayTempPrompt(const MCHAR* text, int msec = 1000) = 0;
  virtual void RedrawViews(TimeValue t, DWORD flags = REDRAW_NORMAL, ReferenceTarget* change = nullptr) = 0;
  virtual void SetAnimateButtonState(BOOL on) = 0;
  virtual BOOL IsAnimateEnabled() = 0;

  virtual ViewExp& GetViewExp(HWND window) = 0;
  /// The node nearest to the eye at the pixel that the filter accepts (null: every node), or null.
  virtual INode* PickNode(HWND window, IPoint2 point, PickNodeCallback* filter = nullptr) = 0;

  // The stack of command modes; the top one is current. Modes stay their owner's.
  virtual void PushCommandMode(CommandMode* mode) = 0;
  /// Replaces the mode on top; the one that is current already is left alone.
  virtual void SetCommandMode(CommandMode* mode) = 0;
  virtual void PopCommandMode() = 0;
  virtual CommandMode* GetCommandMode() = 0;
  /// Takes a mode out of the stack wherever it stands; call it before a mode ends.
  virtual void DeleteMode(CommandMode* mode) = 0;
  /// Runs a built-in command; one that names a mode makes the host's own mode current.
  virtual void ExecuteMAXCommand(int id) = 0;
  virtual IActionManager* GetActionManager() = 0;

  virtual INode* GetRootNode() = 0;
  /// The class named by the two ids, null when there is none. The caller attaches the result or ends it.
  virtual void* CreateInstance(SClass_ID superID, Class_ID classID) = 0;
  /// A node under the root with a default name; the same object may be given to several nodes. Null for null.
  virtual INode* CreateObjectNode(Object* object) = 0;
  /// Children move up to the node's parent. Returns how many nodes went.
  virtual unsigned int DeleteNode(INode* node, BOOL redraw = TRUE, BOOL overrideSlaves = FALSE) = 0;
  virtual INode* GetINodeByName(const MCHAR* name) = 0;
  virtual void SelectNode(INode* node, int clearSel = 1) = 0;
  virtual void ClearNodeSelection(BOOL redraw = TRUE) = 0;
  virtual int GetSelNodeCount() = 0;
  virtual INode* GetSelNode(int i) = 0;
  /// The new group's head, a helper under the root; null when there is nothing to group. A null table takes the
  /// selection.
  virtual INode* GroupNodes(INodeTab* nodes = nullptr, MSTR* name = nullptr, BOOL selGroup = TRUE) = 0;

  /// Materials of the nodes that are in the scene.
  virtual MtlBaseLib* GetSceneMtls() = 0;
  virtual MtlBaseLib& GetMaterialLibrary() = 0;
  /// Fills `library`, or with null replaces the host's current library. 0, and nothing changed, when the file is no
  /// library.
  virtual int LoadMaterialLib(const MCHAR* name, MtlBaseLib* library = nullptr) = 0;
};

class Interface13 : public Interface {
 public:
  virtual ILayerManager* GetLayerManager() = 0;
};

/// While a window of a plug-in takes typed text, the host's one-key shortcuts must not act. Calls are counted, so each
/// "disable" is followed by one "enable"; further ones are ignored.
void DisableAccelerators();
void EnableAccelerators();
BOOL AcceleratorsEnabled();

Interface* GetCOREInterface();
Interface13* GetCOREInterface13();
