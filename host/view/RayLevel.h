#pragma once

#include <embree3/rtcore.h>
#include <matrix3.h>

#include <map>
#include <memory>

#include "host/view/RayMesh.h"

namespace host {

/// A top-level scene of the ray caster: instances of prepared meshes, each under the number that hits report.
class RayLevel {
 public:
  RayLevel();
  ~RayLevel();
  RayLevel(const RayLevel&) = delete;
  RayLevel& operator=(const RayLevel&) = delete;

  RTCScene scene() const { return scene_; }
  bool empty() const { return instances_.empty(); }
  bool holds(unsigned number) const { return instances_.count(number) != 0; }

  // Changes show once committed.
  void place(unsigned number, const std::shared_ptr<const RayMesh>& mesh, const Matrix3& toWorld);
  void remove(unsigned number);
  void commit();

 private:
  struct Instance {
    std::shared_ptr<const RayMesh> mesh;
    RTCGeometry geometry;
  };

  RTCScene scene_;
  std::map<unsigned, Instance> instances_;
};

}  // namespace host
