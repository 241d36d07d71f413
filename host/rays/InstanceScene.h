#pragma once

#include <embree3/rtcore.h>
#include <matrix3.h>

#include <map>
#include <memory>
#include <vector>

#include "host/rays/RayMesh.h"

namespace host {

/// A top-level scene of the ray caster: instances of prepared meshes, each under a number of the caller's.
class InstanceScene {
 public:
  InstanceScene();
  ~InstanceScene();
  InstanceScene(const InstanceScene&) = delete;
  InstanceScene& operator=(const InstanceScene&) = delete;

  /// Null when there was not enough memory for it.
  RTCScene scene() const { return usable_ ? scene_ : nullptr; }
  bool empty() const { return instances_.empty(); }
  bool holds(unsigned number) const { return instances_.count(number) != 0; }
  /// The number of the instance that a hit names.
  unsigned numberOf(const RTCHit& hit) const { return numbers_[hit.instID[0]]; }

  // Changes show once committed. False where there is not enough memory: then the instance is not there, or none is.
  bool place(unsigned number, const std::shared_ptr<const RayMesh>& mesh, const Matrix3& toWorld);
  void remove(unsigned number);
  bool commit();

 private:
  struct Instance {
    std::shared_ptr<const RayMesh> mesh;
    RTCGeometry geometry = nullptr;
    unsigned id = 0;
  };

  bool attach(Instance& instance, unsigned number);

  RTCScene scene_;
  bool usable_ = false;
  // By the ray caster's own ids, which stay small: what a commit costs grows with the largest of them.
  std::vector<unsigned> numbers_;
  std::map<unsigned, Instance> instances_;
};

}  // namespace host
