#pragma once

#include <imtl.h>

#include <map>
#include <nlohmann/json.hpp>

#include "host/services/ParameterBlock.h"

namespace host {

/// Writes the materials of one file, each whole the first time it is met, with an "id" that later ones refer to as
/// "ref". Readers that only look find name, class and texture files with every one.
class MaterialWriter {
 public:
  using Json = nlohmann::ordered_json;

  /// Throws std::length_error where all together name more textures than a file can hold.
  Json material(Mtl* mtl);

 private:
  Json map(Texmap* map);
  Json blocks(Animatable& owner);
  Json parameter(const ParameterBlock::Parameter& parameter);
  /// Notes the id, or the reference to a known one; true for a known one.
  bool isKnown(MtlBase& one, Json& json);

  std::map<const MtlBase*, int> ids_;
  std::size_t textures_ = 0;
};

}  // namespace host
