#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "host/scene/ProxyObject.h"
#include "host/scene/Scene.h"

namespace support {

/// What the register of proxy objects must hold after any sequence of steps: who builds adds a use, every node that
/// leaves takes one away, and a node that comes back by undo or redo adds none. A new or opened scene empties it.
class ExpectedProxies {
 public:
  /// Compares the scene with what it was the last time.
  void follow(host::Scene& scene, bool builds);
  void clear();
  /// One line for each mesh file whose count is another, and for each object that no node shows; empty when all is
  /// well.
  std::string differences(host::Scene& scene) const;

 private:
  struct Entry {
    const Object* object;
    int uses;
  };

  void enter(const host::ProxyObject& proxy);
  void leave(const Object* object);

  std::map<std::wstring, Entry> entries_;
  std::set<std::wstring> filesSeen_;
  /// Kept alive, so that no other object is made at the address of one that is gone.
  std::vector<host::Ref<host::Node>> nodes_;
};

/// What is wrong with the scene itself: layers, groups, parents, the selection; empty when all is well.
std::string inconsistency(host::Scene& scene);

/// The scene as it would be saved, without what every opening numbers anew.
nlohmann::ordered_json sceneNow();
/// Without what no step records: the places that the mouse gave, and what is selected.
nlohmann::ordered_json recordedPart(nlohmann::ordered_json scene);

}  // namespace support
