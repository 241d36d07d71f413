#pragma once

#include <imtl.h>

#include <vector>

#include "host/services/ParameterBlock.h"
#include "host/services/Ref.h"

namespace host {

/// A texture map of any class but the bitmap's: it holds other maps in its parameters and slots.
class TextureMap final : public Texmap {
 public:
  TextureMap(Class_ID id, std::vector<Ref<ParameterBlock>> blocks, std::vector<Ref<Texmap>> subTextures)
      : id_(id), blocks_(std::move(blocks)), subTextures_(std::move(subTextures)) {}

  Class_ID ClassID() override { return id_; }
  int NumParamBlocks() override { return static_cast<int>(blocks_.size()); }
  IParamBlock2* GetParamBlock(int index) override;
  int NumSubTexmaps() override { return static_cast<int>(subTextures_.size()); }
  Texmap* GetSubTexmap(int slot) override;
  void SetSubTexmap(int slot, Texmap* map) override;

 private:
  Class_ID id_;
  std::vector<Ref<ParameterBlock>> blocks_;
  std::vector<Ref<Texmap>> subTextures_;
};

}  // namespace host
