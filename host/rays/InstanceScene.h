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

  RTCScene scene() const { return scene_; }
  bool empty() const { return instances_.empty(); }
  bool holds(unsigned number) const { return instances_.count(number) != 0; }
  /// The number of the instance that a hit names.
  unsigned numberOf(const RTCHit& hit) const { return numbers_[hit.instID[0]]; }

  // Changes show once committed.
  void place(unsigned number, const std::shared_ptr<const RayMesh>& mesh, const Matrix3& toWorld);
  void remove(unsigned number);
  void commit();

 private:
  struct Instance {
    std::shared_ptr<const RayMesh> mesh;
    RTCGeometry geometry;
    unsigned id;
  };

  RTCScene scene_;
  // By the ray caster's own ids, which stay small: what a commit costs grows with the largest of them.
  std::vector<unsigned> numbers_;
  std::map<unsigned, Instance> instances_;
};

}  // namespace host
