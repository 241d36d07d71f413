#include "host/application/Application.h"

#include <notify.h>

#include "host/application/ClassRegistry.h"
#include "host/application/HostInterface.h"
#include "host/application/Listener.h"
#include "host/application/Notifications.h"
#include "host/application/Prompts.h"
#include "host/application/Units.h"
#include "host/materials/AssetManager.h"
#include "host/scene/Scene.h"
#include "host/scripting/ScriptRunner.h"
#include "host/undo/UndoStack.h"

namespace host {

/// In the order in which they are made; what is further down may use what is further up.
struct Application::Parts {
  Listener listener;
  Notifications notifications;
  Units units;
  Prompts prompts;
  ScriptRunner scripts;
  AssetManager assets;
  ClassRegistry classes;
  Scene scene;
  UndoStack undo;
  HostInterface interface;
};

Application::Application() : parts_(std::make_unique<Parts>()) {}

Application::~Application() = default;

Application& Application::instance() {
  static Application application;
  return application;
}

AssetManager& Application::assets() { return parts_->assets; }
ClassRegistry& Application::classes() { return parts_->classes; }
HostInterface& Application::interface() { return parts_->interface; }
Listener& Application::listener() { return parts_->listener; }
Notifications& Application::notifications() { return parts_->notifications; }
Prompts& Application::prompts() { return parts_->prompts; }
Scene& Application::scene() { return parts_->scene; }
ScriptRunner& Application::scripts() { return parts_->scripts; }
UndoStack& Application::undo() { return parts_->undo; }
Units& Application::units() { return parts_->units; }

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
