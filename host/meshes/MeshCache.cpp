#include "host/meshes/MeshCache.h"

namespace host {

MeshCache& MeshCache::instance() {
  static MeshCache cache;
  return cache;
}

MeshReading MeshCache::get(const std::filesystem::path& file) {
  const auto reading = files_.get(file, [](const std::filesystem::path& path) -> SharedFiles<Mesh>::Reading {
    MeshReading fresh = readMeshFile(path);
    return {std::move(fresh.mesh), std::move(fresh.error)};
  });
  return {reading.value, reading.error};
}

}  // namespace host
