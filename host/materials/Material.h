#pragma once

#include <imtl.h>

#include <vector>

#include "host/services/ParameterBlock.h"
#include "host/services/Ref.h"

namespace host {

/// A material of any class: parameter blocks, sub-materials and sub-texture slots as its file or its class gives them.
class Material final : public Mtl {
 public:
  struct Content {
    std::vector<Ref<ParameterBlock>> blocks;
    std::vector<Ref<Mtl>> subMaterials;
    std::vector<Ref<Texmap>> subTextures;
  };

  Material(Class_ID id, Content content) : id_(id), content_(std::move(content)) {}

  Class_ID ClassID() override { return id_; }
  int NumParamBlocks() override { return static_cast<int>(content_.blocks.size()); }
  IParamBlock2* GetParamBlock(int index) override;
  int NumSubMtls() override { return static_cast<int>(content_.subMaterials.size()); }
  Mtl* GetSubMtl(int slot) override;
  void SetSubMtl(int slot, Mtl* material) override;
  int NumSubTexmaps() override { return static_cast<int>(content_.subTextures.size()); }
  Texmap* GetSubTexmap(int slot) override;
  void SetSubTexmap(int slot, Texmap* map) override;

 private:
  Class_ID id_;
  Content content_;
};

}  // namespace host
