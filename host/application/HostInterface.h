#pragma once

#include <maxapi.h>

#include <cstdint>

#include "host/materials/MaterialLibrary.h"
#include "host/services/Ref.h"

namespace host {

/// What a plug-in gets from GetCOREInterface: hands each request to the part of the host that it belongs to.
class HostInterface final : public Interface13 {
 public:
  HostInterface();

  MaxSDK::QmaxMainWindow* GetQmaxMainWindow() override { return mainWindow_; }

  TimeValue GetTime() override { return time_; }
  void SetTime(TimeValue t, BOOL redraw) override;
  void PushPrompt(const MCHAR* text) override;
  void PopPrompt() override;
  void DisplayTempPrompt(const MCHAR* text, int msec) override;
  void RedrawViews(TimeValue t, DWORD flags = REDRAW_NORMAL, ReferenceTarget* change = nullptr) override;
  void SetAnimateButtonState(BOOL on) override { animate_ = on; }
  BOOL IsAnimateEnabled() override { return animate_; }

  ViewExp& GetViewExp(HWND window) override;
  INode* PickNode(HWND window, IPoint2 point, PickNodeCallback* filter = nullptr) override;

  void PushCommandMode(CommandMode* mode) override;
  void SetCommandMode(CommandMode* mode) override;
  void PopCommandMode() override;
  CommandMode* GetCommandMode() override;
  void DeleteMode(CommandMode* mode) override;
  void ExecuteMAXCommand(int id) override;
  IActionManager* GetActionManager() override;

  INode* GetRootNode() override;
  void* CreateInstance(SClass_ID superID, Class_ID classID) override;
  INode* CreateObjectNode(Object* object) override;
  unsigned int DeleteNode(INode* node, BOOL redraw, BOOL overrideSlaves) override;
  INode* GetINodeByName(const MCHAR* name) override;
  void SelectNode(INode* node, int clearSel) override;
  void ClearNodeSelection(BOOL redraw) override;
  int GetSelNodeCount() override;
  INode* GetSelNode(int i) override;
  INode* GroupNodes(INodeTab* nodes, MSTR* name, BOOL selGroup) override;

  MtlBaseLib* GetSceneMtls() override;
  MtlBaseLib& GetMaterialLibrary() override { return *library_; }
  int LoadMaterialLib(const MCHAR* name, MtlBaseLib* library) override;

  ILayerManager* GetLayerManager() override;

  /// The window that plug-ins get as parent of theirs; whoever sets it takes it back (null) before it goes.
  void setMainWindow(MaxSDK::QmaxMainWindow* window) { mainWindow_ = window; }
  /// Empties the list of scene materials and the current library.
  void clearMaterials();

 private:
  Ref<MaterialLibrary> sceneMaterials_;
  Ref<MaterialLibrary> library_;
  std::uint64_t sceneMaterialsRevision_ = 0;
  /// Of the libraries that were read while the last recording was open, or since.
  std::size_t libraryBytes_ = 0;
  std::size_t librariesRecording_ = 0;
  MaxSDK::QmaxMainWindow* mainWindow_ = nullptr;
  TimeValue time_ = 0;
  BOOL animate_ = FALSE;
};

}  // namespace host
