#pragma once

#include <object.h>

#include <memory>
#include <string>

#include "host/scene/Geometry.h"
#include "host/services/ParameterBlock.h"
#include "host/services/Ref.h"

namespace host {

constexpr Class_ID PROXY_OBJECT(0x6CF53873, 0x1FF85498);

/// A mesh that stays in its file until somebody measures, hits or draws it. Block 0: parameter 0 is the file, parameter
/// 2 a float that is kept and not applied, because nothing open says what the renderer does with it.
class ProxyObject final : public GeomObject, public Geometry {
 public:
  static constexpr ParamID FILE_NAME = 0;
  static constexpr ParamID SCALE = 2;

  ProxyObject();

  Class_ID ClassID() override { return PROXY_OBJECT; }
  int NumParamBlocks() override { return 1; }
  IParamBlock2* GetParamBlock(int index) override { return index == 0 ? block_.get() : nullptr; }
  IParamBlock2* GetParamBlockByID(BlockID id) override { return GetParamBlock(id); }
  using BaseObject::GetParamBlock;

  int IntersectRay(TimeValue t, Ray& ray, float& at, Point3& norm) override;

  Box3 bounds() const override;
  /// The file's mesh, or a box the size of a person in its stead when the file cannot be read.
  std::shared_ptr<const Mesh> mesh() const override;

  /// Windows-shaped, as it was set.
  std::wstring fileName() const;
  /// Why the file cannot be read, in one line; empty when it can.
  std::string problem() const;

 private:
  /// Outlives the proxy where an undo step still holds the parameter block.
  struct Loaded {
    std::shared_ptr<const Mesh> mesh;
    std::string problem;
  };

  void load() const;

  std::shared_ptr<Loaded> loaded_;
  Ref<ParameterBlock> block_;
};

}  // namespace host
