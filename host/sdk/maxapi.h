#pragma once

#include <MtlLib.h>
#include <ilayermanager.h>
#include <inode.h>

constexpr DWORD REDRAW_NORMAL = 8;

/// The host as a plug-in sees it. Main thread only; pointers are borrowed.
class Interface {
 public:
  virtual ~Interface() = default;

  virtual TimeValue GetTime() = 0;
  virtual void SetTime(TimeValue t, BOOL redraw = TRUE) = 0;
  virtual void PushPrompt(const MCHAR* text) = 0;
  virtual void PopPrompt() = 0;
  /// Changes the prompt on top in place.
  virtual void ReplacePrompt(const MCHAR* text) = 0;
  virtual void RedrawViews(TimeValue t, DWORD flags = REDRAW_NORMAL, ReferenceTarget* change = nullptr) = 0;
  virtual void SetAnimateButtonState(BOOL on) = 0;
  virtual BOOL IsAnimateEnabled() = 0;

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

Interface* GetCOREInterface();
Interface13* GetCOREInterface13();
