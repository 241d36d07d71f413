#include "host/application/HostInterface.h"

#include <algorithm>
#include <utility>

#include "host/actions/ActionManager.h"
#include "host/application/Application.h"
#include "host/application/ClassRegistry.h"
#include "host/files/Paths.h"
#include "host/formats/MaterialLibraryFile.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/services/Prompts.h"
#include "host/services/UndoStack.h"
#include "host/view/SceneView.h"
#include "host/view/Viewports.h"

namespace host {

namespace {

/// Each piece of a build reads its libraries anew; those of a stranger may be large, and many.
constexpr std::size_t MOST_LIBRARY_BYTES = std::size_t{512} << 20U;

Application& application() { return Application::instance(); }

Scene& scene() { return application().scene(); }

std::wstring textOf(const MCHAR* text) { return text != nullptr ? text : L""; }

}  // namespace

HostInterface::HostInterface() : sceneMaterials_(new MaterialLibrary), library_(new MaterialLibrary) {}

void HostInterface::SetTime(TimeValue t, BOOL redraw) {
  time_ = t;
  if (redraw != FALSE) RedrawViews(t);
}

void HostInterface::PushPrompt(const MCHAR* text) { application().prompts().push(textOf(text)); }

void HostInterface::PopPrompt() { application().prompts().pop(); }

void HostInterface::DisplayTempPrompt(const MCHAR* text, int msec) {
  application().prompts().showTemporary(textOf(text), Prompts::Milliseconds(msec));
}

void HostInterface::RedrawViews(TimeValue /*t*/, DWORD /*flags*/, ReferenceTarget* /*change*/) {
  if (application().redraw) application().redraw();
}

ViewExp& HostInterface::GetViewExp(HWND window) { return application().viewports().view(window); }

INode* HostInterface::PickNode(HWND window, IPoint2 point, PickNodeCallback* filter) {
  Viewport* viewport = application().viewports().find(window);
  if (viewport == nullptr) return nullptr;
  Ray ray;
  viewport->MapScreenToWorldRay(static_cast<float>(point.x), static_cast<float>(point.y), ray);
  RayScene::Accept accept;
  if (filter != nullptr) accept = [filter](INode* node) { return filter->Filter(node) != FALSE; };
  return application().sceneView().pick(ray, accept);
}

void HostInterface::PushCommandMode(CommandMode* mode) { application().modes().push(mode); }

void HostInterface::SetCommandMode(CommandMode* mode) { application().modes().set(mode); }

void HostInterface::PopCommandMode() { application().modes().pop(); }

CommandMode* HostInterface::GetCommandMode() { return &application().modes().current(); }

void HostInterface::DeleteMode(CommandMode* mode) { application().modes().remove(mode); }

void HostInterface::ExecuteMAXCommand(int id) { application().modes().execute(id); }

IActionManager* HostInterface::GetActionManager() { return &application().actions(); }

INode* HostInterface::GetRootNode() { return &scene().root(); }

void* HostInterface::CreateInstance(SClass_ID superID, Class_ID classID) {
  return application().classes().create(superID, classID);
}

INode* HostInterface::CreateObjectNode(Object* object) { return scene().create(object); }

unsigned int HostInterface::DeleteNode(INode* node, BOOL redraw, BOOL /*overrideSlaves*/) {
  if (node == nullptr) return 0;
  const unsigned int count = scene().remove(static_cast<Node&>(*node));
  if (redraw != FALSE) RedrawViews(time_);
  return count;
}

INode* HostInterface::GetINodeByName(const MCHAR* name) { return scene().find(textOf(name)); }

void HostInterface::SelectNode(INode* node, int clearSel) {
  if (node != nullptr) scene().select(static_cast<Node&>(*node), clearSel != 0);
}

void HostInterface::ClearNodeSelection(BOOL redraw) {
  scene().clearSelection();
  if (redraw != FALSE) RedrawViews(time_);
}

int HostInterface::GetSelNodeCount() { return static_cast<int>(scene().selection().size()); }

INode* HostInterface::GetSelNode(int i) {
  if (i < 0 || i >= GetSelNodeCount()) return nullptr;
  return scene().selection()[static_cast<std::size_t>(i)].get();
}

INode* HostInterface::GroupNodes(INodeTab* nodes, MSTR* name, BOOL selGroup) {
  std::vector<Node*> members;
  if (nodes == nullptr) {
    for (const Ref<Node>& node : scene().selection()) members.push_back(node.get());
  } else {
    for (int i = 0; i < nodes->Count(); ++i) {
      if ((*nodes)[i] != nullptr) members.push_back(static_cast<Node*>((*nodes)[i]));
    }
  }
  Node* head = scene().group(members, name != nullptr ? *name : MSTR(L"Group"));
  if (head != nullptr && selGroup != FALSE) scene().select(*head, true);
  return head;
}

MtlBaseLib* HostInterface::GetSceneMtls() {
  if (sceneMaterialsRevision_ == scene().revision()) return sceneMaterials_.get();
  sceneMaterialsRevision_ = scene().revision();
  std::vector<const Mtl*> known;
  sceneMaterials_->DeleteAll();
  for (Node* node : scene().nodes()) {
    Mtl* material = node->GetMtl();
    if (material == nullptr || std::find(known.begin(), known.end(), material) != known.end()) continue;
    known.push_back(material);
    sceneMaterials_->Add(material);
  }
  return sceneMaterials_.get();
}

int HostInterface::LoadMaterialLib(const MCHAR* name, MtlBaseLib* library) {
  const std::wstring path = textOf(name);
  const std::size_t recording = Application::instance().undo().recordingCount();
  if (std::exchange(librariesRecording_, recording) != recording) libraryBytes_ = 0;
  const MaterialLibraryContent content = readMaterialLibrary(path, MOST_LIBRARY_BYTES - libraryBytes_);
  libraryBytes_ += content.size;
  if (!content.error.empty()) {
    if (!content.missing) Listener::instance().report("Material library " + toUtf8(path) + " " + content.error + ".");
    return 0;
  }
  MtlBaseLib& target = library != nullptr ? *library : *library_;
  target.DeleteAll();
  for (const Ref<Mtl>& material : content.materials) target.Add(material.get());
  return 1;
}

ILayerManager* HostInterface::GetLayerManager() { return &scene().layers(); }

void HostInterface::clearMaterials() {
  sceneMaterials_->DeleteAll();
  library_->DeleteAll();
}

}  // namespace host
