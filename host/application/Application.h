#pragma once

#include <functional>
#include <memory>
#include <string>

namespace host {

class Accelerators;
class ActionManager;
class AssetManager;
class ClassRegistry;
class CommandModes;
class FileDialog;
class HostInterface;
class IconFolders;
class Listener;
class ModuleLoader;
class Notifications;
class Prompts;
class QuickAccessBar;
class Scene;
class SceneView;
class ScriptRunner;
class UndoStack;
class Units;
class Viewports;

/// The running host: one for the process, made when it is first asked for. Main thread only.
class Application {
 public:
  static Application& instance();

  Accelerators& accelerators();
  ActionManager& actions();
  AssetManager& assets();
  ClassRegistry& classes();
  FileDialog& fileDialog();
  IconFolders& icons();
  HostInterface& interface();
  Listener& listener();
  CommandModes& modes();
  /// Whoever loads modules shuts them down before the process ends.
  ModuleLoader& modules();
  Notifications& notifications();
  Prompts& prompts();
  QuickAccessBar& quickAccess();
  Scene& scene();
  /// What the viewports show and picks hit.
  SceneView& sceneView();
  ScriptRunner& scripts();
  UndoStack& undo();
  Units& units();
  Viewports& viewports();

  /// Drops nodes, layers, materials and the undo list, and says so before and after.
  void newScene();
  /// As a new scene, with the system unit as it is at start.
  void reset();

  /// Called when a plug-in asks for a redraw; none to begin with.
  std::function<void()> redraw;

  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

 private:
  Application();
  ~Application();

  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace host
