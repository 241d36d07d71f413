#pragma once

#include <ray.h>

#include <memory>
#include <optional>

#include "host/meshes/Mesh.h"

struct RTCSceneTy;

namespace host {

/// Where a ray meets a mesh, in the mesh's own space.
struct MeshHit {
  /// A parameter of the ray as given, whatever the length of its direction.
  float distance;
  std::uint32_t triangle;
  /// Weights of the triangle's second and third corner.
  float second;
  float third;
  /// Smooth and of unit length, on the side that the mesh calls outside.
  Point3 normal;
};

/// A mesh prepared for rays. Keeps no hold of the mesh; whoever asks has the mesh anyway.
class RayMesh {
 public:
  /// Prepared once for as long as the mesh lives. May be called from several threads.
  static std::shared_ptr<const RayMesh> of(const std::shared_ptr<const Mesh>& mesh);

  explicit RayMesh(const Mesh& mesh);
  ~RayMesh();
  RayMesh(const RayMesh&) = delete;
  RayMesh& operator=(const RayMesh&) = delete;

  /// Null when there was not enough memory for it.
  RTCSceneTy* scene() const { return usable_ ? scene_ : nullptr; }

 private:
  RTCSceneTy* scene_;
  bool usable_ = false;
};

/// The nearest hit on either side of the surface, ahead of the ray's start; nothing for a ray without direction.
std::optional<MeshHit> intersect(const std::shared_ptr<const Mesh>& mesh, const Ray& ray);

/// The smooth normal within a triangle; unit length.
Point3 normalAt(const Mesh& mesh, std::uint32_t triangle, float second, float third);

}  // namespace host
