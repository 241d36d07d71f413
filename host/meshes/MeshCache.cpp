#include "host/meshes/MeshCache.h"

namespace host {

namespace {

/// What a scene's meshes take once they are ready for rays, as measured; the rest of 512 MiB is for everything else.
constexpr std::size_t MOST_BYTES = std::size_t{380} << 20U;
constexpr std::size_t BYTES_OF_A_MESH = 8192;
constexpr std::size_t BYTES_OF_A_VERTEX = 44;
constexpr std::size_t BYTES_OF_A_TRIANGLE = 120;

std::size_t bytesOf(const Mesh& mesh) {
  return BYTES_OF_A_MESH + BYTES_OF_A_VERTEX * mesh.positions.size() + BYTES_OF_A_TRIANGLE * mesh.triangles.size();
}

struct HousedMesh {
  std::shared_ptr<const Mesh> mesh;
  Room::Share share;
};

MeshResult readIntoRoom(const std::filesystem::path& file) {
  MeshResult result = readMeshFile(file);
  if (result.mesh == nullptr) return result;
  auto housed = std::make_shared<HousedMesh>();
  housed->share = roomForMeshes().take(bytesOf(*result.mesh));
  if (housed->share == nullptr)
    return {nullptr, "the scene has no room for it: its meshes are too large together", true};
  housed->mesh = std::move(result.mesh);
  const Mesh* mesh = housed->mesh.get();
  return {std::shared_ptr<const Mesh>(std::move(housed), mesh), {}, false};
}

}  // namespace

Room& roomForMeshes() {
  static Room room(MOST_BYTES);
  return room;
}

MeshCache& sharedMeshes() {
  static MeshCache cache(readIntoRoom);
  return cache;
}

}  // namespace host
