#pragma once

#include <functional>
#include <memory>
#include <string>

namespace host {

class AssetManager;
class ClassRegistry;
class HostInterface;
class Listener;
class Notifications;
class Prompts;
class Scene;
class ScriptRunner;
class UndoStack;
class Units;

/// The running host: one for the process, made when it is first asked for. Main thread only.
class Application {
 public:
  static Application& instance();

  AssetManager& assets();
  ClassRegistry& classes();
  HostInterface& interface();
  Listener& listener();
  Notifications& notifications();
  Prompts& prompts();
  Scene& scene();
  ScriptRunner& scripts();
  UndoStack& undo();
  Units& units();

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
