#include "host/materials/MaterialClasses.h"

namespace host {

namespace {

std::vector<ParameterBlock::Parameter> surfaceParameters() {
  return {
      {DIFFUSE_COLOR, TYPE_RGBA, Color(0.6F, 0.6F, 0.6F)}, {ROUGHNESS, TYPE_FLOAT, 0.6F}, {OPACITY, TYPE_FLOAT, 1.0F}};
}

Ref<ParameterBlock> block(std::vector<ParameterBlock::Parameter> parameters) {
  return Ref<ParameterBlock>(new ParameterBlock(0, std::move(parameters)));
}

}  // namespace

Mtl* createMaterial(Class_ID id) {
  Material::Content content;
  std::vector<ParameterBlock::Parameter> parameters = surfaceParameters();
  if (id == STANDARD_MATERIAL) {
    content.blocks = {block(std::move(parameters))};
    content.subTextures.resize(12);
  } else if (id == SCALED_MATERIAL) {
    parameters.push_back({SCALED_DIFFUSE_MAP, TYPE_TEXMAP, Ref<Texmap>()});
    parameters.push_back({SCALED_LENGTH, TYPE_FLOAT, 1.0F});
    content.blocks = {block(std::move(parameters))};
  } else if (id == MULTI_MATERIAL) {
    content.subMaterials.resize(10);
  } else {
    return nullptr;
  }
  return new Material(id, std::move(content));
}

}  // namespace host
