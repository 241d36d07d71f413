#pragma once

#include <box3.h>
#include <ray.h>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "host/rays/ViewItem.h"

struct RTCFilterFunctionNArguments;

namespace host {

class InstanceScene;

/// Where a ray meets the scene, in the world.
struct SceneHit {
  /// A parameter of the ray as given, whatever the length of its direction.
  float distance = 0.0F;
  std::size_t item = 0;
  std::uint16_t materialId = 0;
  Point3 position;
  /// The smooth surface that the triangle stands for: where light is gathered, so that coarse meshes show no facets in
  /// shadow.
  Point3 smoothPosition;
  /// Unit length, on the side that the mesh calls outside, mirrored items too; the first smooth, the second of the
  /// triangle.
  Point3 normal;
  Point3 faceNormal;
  /// Zero for a mesh without texture coordinates.
  TexCoord texCoord;
};

/// Everything that can be seen, prepared for rays: one prepared mesh for all its instances. What is drawn is what is
/// hit. Queries may be made from several threads while nothing is changed.
class RayScene {
 public:
  /// Answers whether a node may be hit; one that may not is looked through.
  using Accept = std::function<bool(INode*)>;

  RayScene();
  ~RayScene();
  RayScene(const RayScene&) = delete;
  RayScene& operator=(const RayScene&) = delete;

  const std::vector<ViewItem>& items() const { return items_; }
  /// The surface that a material id of an item shows.
  const Surface& surface(std::size_t item, std::uint16_t materialId) const;
  /// Around everything that can be hit, in the world; empty for an empty scene.
  Box3 bounds() const;
  bool hasTranslucent() const { return translucent_; }
  /// False when there was not enough memory for everything that can be seen; what there was not enough for is not hit.
  bool complete() const { return complete_; }

  /// The nearest hit ahead of the ray's start, on either side of a surface, no farther than `upTo`.
  std::optional<SceneHit> intersect(const Ray& ray, const Accept& accept = {},
                                    float upTo = std::numeric_limits<float>::infinity()) const;
  /// Whether anything stands in the way up to that parameter; surfaces of less than `opacity` are passed through.
  bool occluded(const Ray& ray, float upTo = std::numeric_limits<float>::infinity(), float opacity = 0.0F) const;

  void setItems(std::vector<ViewItem> items);
  /// Cheap from the second time on, however large the scene: what moves is kept apart from what rests.
  void moveItem(std::size_t item, const Matrix3& toWorld) { moveItems({{item, toWorld}}); }
  struct Move {
    std::size_t item;
    Matrix3 toWorld;
  };
  /// Dearer by little than moving one of them.
  void moveItems(const std::vector<Move>& moves);

 private:
  struct Passing;

  /// Whether what rests has changed by it.
  bool place(const Move& move);
  static void lookThroughRefused(const RTCFilterFunctionNArguments* arguments);
  static void lookThroughTranslucent(const RTCFilterFunctionNArguments* arguments);
  SceneHit describe(std::size_t item, std::uint32_t triangle, float second, float third) const;

  std::vector<ViewItem> items_;
  std::unique_ptr<InstanceScene> resting_;
  std::unique_ptr<InstanceScene> moving_;
  /// Around everything that is or was here; most rays of a picture miss it and need no more than that.
  Box3 reach_;
  bool translucent_ = false;
  bool complete_ = true;
};

}  // namespace host
