#include "host/rays/RayScene.h"

#include <algorithm>
#include <cmath>

#include "host/geometry/Bounds.h"
#include "host/rays/InstanceScene.h"
#include "host/rays/RayDevice.h"
#include "host/rays/Visibility.h"

namespace host {

namespace {

/// The volume that the axes span; negative for a mirroring transform.
float determinant(const Matrix3& m) { return (m.GetRow(0) ^ m.GetRow(1)) % m.GetRow(2); }

bool isShown(const ViewItem& item) { return visibilityOf(item) == Visibility::Shown; }

/// Normals are carried by the cofactors, which stay right under uneven scaling; the sign keeps them outside when
/// mirrored.
Point3 normalToWorld(const Matrix3& m, const Point3& n) {
  const Point3 carried =
      (m.GetRow(1) ^ m.GetRow(2)) * n.x + (m.GetRow(2) ^ m.GetRow(0)) * n.y + (m.GetRow(0) ^ m.GetRow(1)) * n.z;
  const float largest = std::max({std::abs(carried.x), std::abs(carried.y), std::abs(carried.z)});
  if (!(largest > 0.0F)) return n;
  return (carried / largest).Normalize() * (determinant(m) < 0.0F ? -1.0F : 1.0F);
}

bool isTranslucent(const ViewItem& item) {
  return std::any_of(item.surfaces.begin(), item.surfaces.end(), [](const Surface& s) { return s.opacity < 1.0F; });
}

/// Whether the ray comes through a box that is a little larger; what rounding would decide counts as through.
bool reaches(const RTCRay& ray, const Box3& box) {
  const float origin[3] = {ray.org_x, ray.org_y, ray.org_z};
  const float direction[3] = {ray.dir_x, ray.dir_y, ray.dir_z};
  float enter = 0.0F;
  float leave = ray.tfar;
  for (int axis = 0; axis < 3; ++axis) {
    const float inverse = 1.0F / direction[axis];
    const float low = (box.pmin[axis] - origin[axis]) * inverse;
    const float high = (box.pmax[axis] - origin[axis]) * inverse;
    // A ray along a face of the widened box may count either way.
    enter = std::max(enter, std::min(low, high));
    leave = std::min(leave, std::max(low, high));
  }
  return !(enter > leave);
}

/// The box around an item, widened against rounding.
Box3 reachOf(const ViewItem& item) {
  Box3 box = transformed(item.mesh->bounds, item.toWorld);
  const float margin = 1e-4F * (box.Width().Length() + box.pmin.Length() + box.pmax.Length());
  box.pmin -= Point3(margin, margin, margin);
  box.pmax += Point3(margin, margin, margin);
  return box;
}

RTCRayHit queryFrom(const CasterRay& caster) {
  RTCRayHit query{};
  query.ray = caster.ray;
  query.hit.geomID = RTC_INVALID_GEOMETRY_ID;
  query.hit.instID[0] = RTC_INVALID_GEOMETRY_ID;
  return query;
}

}  // namespace

/// What a filter needs to know; the ray caster hands it on as the context that it begins with.
struct RayScene::Passing {
  RTCIntersectContext context;
  const RayScene* scene;
  const Accept* accept;
  float opacity;
  /// The one that the ray is in.
  const InstanceScene* level;

  static const Passing& of(const RTCFilterFunctionNArguments* arguments) {
    return *reinterpret_cast<const Passing*>(arguments->context);
  }
  unsigned item(const RTCHit& hit) const { return level->numberOf(hit); }
};

RayScene::RayScene() : resting_(std::make_unique<InstanceScene>()), moving_(std::make_unique<InstanceScene>()) {}

RayScene::~RayScene() = default;

const Surface& RayScene::surface(std::size_t item, std::uint16_t materialId) const {
  static const Surface clay;
  const std::vector<Surface>& surfaces = items_[item].surfaces;
  return surfaces.empty() ? clay : surfaces[materialId % surfaces.size()];
}

Box3 RayScene::bounds() const {
  Box3 box;
  for (const ViewItem& item : items_) {
    if (isShown(item)) box += transformed(item.mesh->bounds, item.toWorld);
  }
  return box;
}

void RayScene::setItems(std::vector<ViewItem> items) {
  items_ = std::move(items);
  translucent_ = std::any_of(items_.begin(), items_.end(), isTranslucent);
  resting_ = std::make_unique<InstanceScene>();
  moving_ = std::make_unique<InstanceScene>();
  complete_ = true;
  reach_.Init();
  for (std::size_t i = 0; i < items_.size(); ++i) {
    const ViewItem& item = items_[i];
    if (!isShown(item)) continue;
    complete_ = resting_->place(static_cast<unsigned>(i), RayMesh::of(item.mesh), item.toWorld) && complete_;
    reach_ += reachOf(item);
  }
  complete_ = resting_->commit() && complete_;
}

void RayScene::moveItems(const std::vector<Move>& moves) {
  if (moves.empty()) return;
  bool restingChanged = false;
  for (const Move& move : moves) restingChanged = place(move) || restingChanged;
  if (restingChanged) complete_ = resting_->commit() && complete_;
  complete_ = moving_->commit() && complete_;
}

bool RayScene::place(const Move& move) {
  const auto number = static_cast<unsigned>(move.item);
  ViewItem& item = items_[move.item];
  item.toWorld = move.toWorld;
  const bool rested = resting_->holds(number);
  if (rested) resting_->remove(number);
  if (isShown(item)) {
    complete_ = moving_->place(number, RayMesh::of(item.mesh), move.toWorld) && complete_;
    reach_ += reachOf(item);
  } else {
    moving_->remove(number);
  }
  return rested;
}

void RayScene::lookThroughRefused(const RTCFilterFunctionNArguments* arguments) {
  const Passing& passing = Passing::of(arguments);
  const RTCHit hit = rtcGetHitFromHitN(arguments->hit, arguments->N, 0);
  if (!(*passing.accept)(passing.scene->items_[passing.item(hit)].node)) arguments->valid[0] = 0;
}

void RayScene::lookThroughTranslucent(const RTCFilterFunctionNArguments* arguments) {
  const Passing& passing = Passing::of(arguments);
  const RTCHit hit = rtcGetHitFromHitN(arguments->hit, arguments->N, 0);
  const unsigned item = passing.item(hit);
  const std::uint16_t material = passing.scene->items_[item].mesh->materialId(hit.primID);
  if (passing.scene->surface(item, material).opacity < passing.opacity) arguments->valid[0] = 0;
}

std::optional<SceneHit> RayScene::intersect(const Ray& ray, const Accept& accept, float upTo) const {
  const std::optional<CasterRay> caster = casterRay(ray, upTo);
  if (!caster || !reaches(caster->ray, reach_)) return std::nullopt;
  Passing passing{{}, this, &accept, 0.0F, resting_.get()};
  rtcInitIntersectContext(&passing.context);
  if (accept) passing.context.filter = lookThroughRefused;
  RTCRayHit query = queryFrom(*caster);
  std::optional<unsigned> item;
  for (const InstanceScene* level : {resting_.get(), moving_.get()}) {
    if (level->empty() || level->scene() == nullptr) continue;
    // A hit of the second level is nearer than that of the first, or it is none.
    const RTCHit before = query.hit;
    query.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    passing.level = level;
    rtcIntersect1(level->scene(), &passing.context, &query);
    if (query.hit.geomID != RTC_INVALID_GEOMETRY_ID) {
      item = level->numberOf(query.hit);
    } else {
      query.hit = before;
    }
  }
  if (!item) return std::nullopt;
  SceneHit hit = describe(*item, query.hit.primID, query.hit.u, query.hit.v);
  hit.distance = query.ray.tfar / caster->unit;
  return hit;
}

bool RayScene::occluded(const Ray& ray, float upTo, float opacity) const {
  std::optional<CasterRay> caster = casterRay(ray, upTo);
  if (!caster || !reaches(caster->ray, reach_)) return false;
  Passing passing{{}, this, nullptr, opacity, resting_.get()};
  rtcInitIntersectContext(&passing.context);
  if (translucent_ && opacity > 0.0F) passing.context.filter = lookThroughTranslucent;
  for (const InstanceScene* level : {resting_.get(), moving_.get()}) {
    if (level->empty() || level->scene() == nullptr || caster->ray.tfar < 0.0F) continue;
    passing.level = level;
    rtcOccluded1(level->scene(), &passing.context, &caster->ray);
  }
  return caster->ray.tfar < 0.0F;
}

SceneHit RayScene::describe(std::size_t index, std::uint32_t triangle, float second, float third) const {
  const ViewItem& item = items_[index];
  const Mesh& mesh = *item.mesh;
  const Mesh::Triangle& corners = mesh.triangles[triangle];
  const float weights[3] = {1.0F - second - third, second, third};

  SceneHit hit;
  hit.item = index;
  hit.materialId = mesh.materialId(triangle);
  Point3 places[3];
  for (int i = 0; i < 3; ++i) {
    places[i] = item.toWorld.PointTransform(mesh.positions[corners[static_cast<std::size_t>(i)]]);
    hit.position += places[i] * weights[i];
  }
  const Point3 a = mesh.positions[corners[0]];
  hit.faceNormal = normalToWorld(item.toWorld, (mesh.positions[corners[1]] - a) ^ (mesh.positions[corners[2]] - a));
  hit.normal = normalToWorld(item.toWorld, normalAt(mesh, triangle, second, third));

  Point3 lifted;
  for (int i = 0; i < 3; ++i) {
    const Point3 n = normalToWorld(item.toWorld, mesh.normals[corners[static_cast<std::size_t>(i)]]);
    // Onto the plane through the corner, never below the triangle.
    lifted += (hit.position - n * std::min(0.0F, (hit.position - places[i]) % n)) * weights[i];
    if (!mesh.texCoords.empty()) {
      const TexCoord& coord = mesh.texCoords[corners[static_cast<std::size_t>(i)]];
      hit.texCoord = {hit.texCoord.u + coord.u * weights[i], hit.texCoord.v + coord.v * weights[i]};
    }
  }
  hit.smoothPosition = lifted;
  return hit;
}

}  // namespace host
