#pragma once

#include <object.h>

#include <memory>
#include <string>

#include "host/scene/Geometry.h"

namespace host {

constexpr Class_ID SURROUNDINGS_OBJECT(0x51A7E3C4, 0x2B90D6F1);

/// What a character can be put on or among: a mesh made by the program, or read from a file that the object names.
class SurroundingsObject final : public GeomObject, public Geometry {
 public:
  /// A mesh that a scene file keeps whole; complete, never null.
  explicit SurroundingsObject(std::shared_ptr<const Mesh> mesh) : mesh_(std::move(mesh)) {}
  /// Reads glTF binary or OBJ now. One that cannot be read leaves a box in its stead and a line for the listener.
  explicit SurroundingsObject(const std::wstring& file);

  Class_ID ClassID() override { return SURROUNDINGS_OBJECT; }
  int IntersectRay(TimeValue t, Ray& ray, float& at, Point3& norm) override;

  Box3 bounds() const override;
  std::shared_ptr<const Mesh> mesh() const override { return mesh_; }

  /// Windows-shaped; empty for a mesh that was made.
  const std::wstring& fileName() const { return file_; }
  /// Why the file cannot be read, in one line; empty when it can.
  const std::string& problem() const { return problem_; }

 private:
  std::shared_ptr<const Mesh> mesh_;
  std::wstring file_;
  std::string problem_;
};

}  // namespace host
