#include "host/rays/InstanceScene.h"

#include "host/rays/RayDevice.h"

namespace host {

InstanceScene::InstanceScene() : scene_(rtcNewScene(rayDevice())) {
  rtcSetSceneFlags(scene_, RTC_SCENE_FLAG_ROBUST | RTC_SCENE_FLAG_CONTEXT_FILTER_FUNCTION);
  rtcCommitScene(scene_);
}

InstanceScene::~InstanceScene() { rtcReleaseScene(scene_); }

void InstanceScene::place(unsigned number, const std::shared_ptr<const RayMesh>& mesh, const Matrix3& toWorld) {
  Instance& instance = instances_[number];
  if (!instance.mesh) {
    instance = {mesh, rtcNewGeometry(rayDevice(), RTC_GEOMETRY_TYPE_INSTANCE), 0};
    rtcSetGeometryInstancedScene(instance.geometry, mesh->scene());
    instance.id = rtcAttachGeometry(scene_, instance.geometry);
    rtcReleaseGeometry(instance.geometry);
    if (instance.id >= numbers_.size()) numbers_.resize(instance.id + 1);
    numbers_[instance.id] = number;
  }
  // The rows of row vectors are the columns of column vectors.
  float columns[12];
  for (int row = 0; row < 4; ++row) {
    for (int axis = 0; axis < 3; ++axis) columns[row * 3 + axis] = toWorld.GetRow(row)[axis];
  }
  rtcSetGeometryTransform(instance.geometry, 0, RTC_FORMAT_FLOAT3X4_COLUMN_MAJOR, columns);
  rtcCommitGeometry(instance.geometry);
}

void InstanceScene::remove(unsigned number) {
  const auto instance = instances_.find(number);
  if (instance == instances_.end()) return;
  rtcDetachGeometry(scene_, instance->second.id);
  instances_.erase(instance);
}

void InstanceScene::commit() { rtcCommitScene(scene_); }

}  // namespace host
