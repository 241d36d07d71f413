#include "host/view/RayLevel.h"

#include "host/view/RayDevice.h"

namespace host {

RayLevel::RayLevel() : scene_(rtcNewScene(rayDevice())) {
  rtcSetSceneFlags(scene_, RTC_SCENE_FLAG_ROBUST | RTC_SCENE_FLAG_CONTEXT_FILTER_FUNCTION);
  rtcCommitScene(scene_);
}

RayLevel::~RayLevel() { rtcReleaseScene(scene_); }

void RayLevel::place(unsigned number, const std::shared_ptr<const RayMesh>& mesh, const Matrix3& toWorld) {
  Instance& instance = instances_[number];
  if (!instance.mesh) {
    instance = {mesh, rtcNewGeometry(rayDevice(), RTC_GEOMETRY_TYPE_INSTANCE)};
    rtcSetGeometryInstancedScene(instance.geometry, mesh->scene());
    rtcAttachGeometryByID(scene_, instance.geometry, number);
    rtcReleaseGeometry(instance.geometry);
  }
  // The rows of row vectors are the columns of column vectors.
  float columns[12];
  for (int row = 0; row < 4; ++row) {
    for (int axis = 0; axis < 3; ++axis) columns[row * 3 + axis] = toWorld.GetRow(row)[axis];
  }
  rtcSetGeometryTransform(instance.geometry, 0, RTC_FORMAT_FLOAT3X4_COLUMN_MAJOR, columns);
  rtcCommitGeometry(instance.geometry);
}

void RayLevel::remove(unsigned number) {
  if (instances_.erase(number) != 0) rtcDetachGeometry(scene_, number);
}

void RayLevel::commit() { rtcCommitScene(scene_); }

}  // namespace host
