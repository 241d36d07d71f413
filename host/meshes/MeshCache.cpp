#include "host/meshes/MeshCache.h"

namespace host {

MeshCache& sharedMeshes() {
  static MeshCache cache(readMeshFile);
  return cache;
}

}  // namespace host
