#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "host/meshes/Mesh.h"

namespace samples {

/// Finished meshes by their path below the repository; filled by several threads.
class MeshStore {
 public:
  MeshStore() = default;
  /// Begins with the meshes of another, which nobody may be filling meanwhile.
  explicit MeshStore(const MeshStore& other) : meshes_(other.meshes_) {}
  MeshStore& operator=(const MeshStore&) = delete;

  void put(const std::string& path, host::Mesh mesh) {
    const std::lock_guard<std::mutex> lock(mutex_);
    meshes_[path] = std::make_shared<const host::Mesh>(std::move(mesh));
  }
  /// Null when there is none.
  std::shared_ptr<const host::Mesh> find(const std::string& path) const {
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto found = meshes_.find(path);
    return found == meshes_.end() ? nullptr : found->second;
  }

 private:
  mutable std::mutex mutex_;
  std::map<std::string, std::shared_ptr<const host::Mesh>> meshes_;
};

}  // namespace samples
