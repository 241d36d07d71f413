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
  explicit MeshStore(const MeshStore& other) : m_meshes(other.m_meshes) {}
  MeshStore& operator=(const MeshStore&) = delete;

  void put(const std::string& path, host::Mesh mesh) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_meshes[path] = std::make_shared<const host::Mesh>(std::move(mesh));
  }
  /// Null when there is none.
  std::shared_ptr<const host::Mesh> find(const std::string& path) const {
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_meshes.find(path);
    return found == m_meshes.end() ? nullptr : found->second;
  }

 private:
  mutable std::mutex m_mutex;
  std::map<std::string, std::shared_ptr<const host::Mesh>> m_meshes;
};

}  // namespace samples
