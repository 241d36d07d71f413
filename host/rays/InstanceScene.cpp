#include "host/rays/InstanceScene.h"

#include "host/rays/RayDevice.h"

namespace host {

InstanceScene::InstanceScene() : scene_(newRayScene()) { commit(); }

InstanceScene::~InstanceScene() {
  if (scene_ != nullptr) rtcReleaseScene(scene_);
}

bool InstanceScene::place(unsigned number, const std::shared_ptr<const RayMesh>& mesh, const Matrix3& toWorld) {
  if (scene_ == nullptr || mesh->scene() == nullptr) return false;
  Instance& instance = instances_[number];
  instance.mesh = instance.mesh ? instance.mesh : mesh;
  if (instance.geometry == nullptr && !attach(instance, number)) {
    instances_.erase(number);
    return false;
  }
  // The rows of row vectors are the columns of column vectors.
  float columns[12];
  for (int row = 0; row < 4; ++row) {
    for (int axis = 0; axis < 3; ++axis) columns[row * 3 + axis] = toWorld.GetRow(row)[axis];
  }
  rtcSetGeometryTransform(instance.geometry, 0, RTC_FORMAT_FLOAT3X4_COLUMN_MAJOR, columns);
  rtcCommitGeometry(instance.geometry);
  return true;
}

bool InstanceScene::attach(Instance& instance, unsigned number) {
  instance.geometry = rtcNewGeometry(rayDevice(), RTC_GEOMETRY_TYPE_INSTANCE);
  if (instance.geometry == nullptr) return false;
  rtcSetGeometryInstancedScene(instance.geometry, instance.mesh->scene());
  instance.id = rtcAttachGeometry(scene_, instance.geometry);
  rtcReleaseGeometry(instance.geometry);
  if (instance.id == RTC_INVALID_GEOMETRY_ID) return false;
  if (instance.id >= numbers_.size()) numbers_.resize(instance.id + 1);
  numbers_[instance.id] = number;
  return true;
}

void InstanceScene::remove(unsigned number) {
  const auto instance = instances_.find(number);
  if (instance == instances_.end()) return;
  rtcDetachGeometry(scene_, instance->second.id);
  instances_.erase(instance);
}

bool InstanceScene::commit() {
  usable_ = commitRayScene(scene_);
  return usable_;
}

}  // namespace host
