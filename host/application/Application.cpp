#include "host/application/Application.h"

#include <notify.h>

#include "host/actions/ActionManager.h"
#include "host/actions/IconFolders.h"
#include "host/actions/QuickAccessBar.h"
#include "host/application/ClassRegistry.h"
#include "host/application/HostInterface.h"
#include "host/materials/AssetManager.h"
#include "host/modes/CommandModes.h"
#include "host/plugins/ModuleLoader.h"
#include "host/scene/Scene.h"
#include "host/scripting/ScriptRunner.h"
#include "host/services/Accelerators.h"
#include "host/services/FileDialog.h"
#include "host/services/Listener.h"
#include "host/services/LookChanges.h"
#include "host/services/Notifications.h"
#include "host/services/Prompts.h"
#include "host/services/UndoStack.h"
#include "host/services/Units.h"
#include "host/view/SceneView.h"
#include "host/view/Viewports.h"

namespace host {

/// In the order in which they are made; what is further down may use what is further up.
struct Application::Parts {
  Accelerators accelerators;
  Notifications notifications;
  Units units;
  Prompts prompts;
  AssetManager assets;
  ClassRegistry classes;
  Scene scene;
  UndoStack undo;
  HostInterface interface;
  SceneView sceneView{scene};
  Viewports viewports;
  CommandModes modes;
  FileDialog fileDialog;
  IconFolders icons;
  ActionManager actions;
  QuickAccessBar quickAccess{actions};
  ScriptRunner scripts{actions, quickAccess, interface};
  ModuleLoader modules{actions, modes, undo};
};

Application::Application() : parts_(std::make_unique<Parts>()) {
  // Made before the application is complete, so that it lives as long as any part.
  Listener::instance();
  LookChanges::instance().listener = [this] { scene().touchAppearance(); };
  actions().changed = [this] { quickAccess().followTables(); };
}

Application::~Application() { LookChanges::instance().listener = nullptr; }

Application& Application::instance() {
  static Application application;
  return application;
}

Accelerators& Application::accelerators() { return parts_->accelerators; }
ActionManager& Application::actions() { return parts_->actions; }
AssetManager& Application::assets() { return parts_->assets; }
ClassRegistry& Application::classes() { return parts_->classes; }
FileDialog& Application::fileDialog() { return parts_->fileDialog; }
IconFolders& Application::icons() { return parts_->icons; }
HostInterface& Application::interface() { return parts_->interface; }
Listener& Application::listener() { return Listener::instance(); }
CommandModes& Application::modes() { return parts_->modes; }
ModuleLoader& Application::modules() { return parts_->modules; }
Notifications& Application::notifications() { return parts_->notifications; }
Prompts& Application::prompts() { return parts_->prompts; }
QuickAccessBar& Application::quickAccess() { return parts_->quickAccess; }
Scene& Application::scene() { return parts_->scene; }
SceneView& Application::sceneView() { return parts_->sceneView; }
ScriptRunner& Application::scripts() { return parts_->scripts; }
UndoStack& Application::undo() { return parts_->undo; }
Units& Application::units() { return parts_->units; }
Viewports& Application::viewports() { return parts_->viewports; }

void Application::newScene() {
  BroadcastNotification(NOTIFY_SYSTEM_PRE_NEW);
  undo().clear();
  scene().clear();
  interface().clearMaterials();
  BroadcastNotification(NOTIFY_SYSTEM_POST_NEW);
}

void Application::reset() {
  BroadcastNotification(NOTIFY_SYSTEM_PRE_RESET);
  units() = Units();
  newScene();
  BroadcastNotification(NOTIFY_SYSTEM_POST_RESET);
}

}  // namespace host
