#pragma once

#include <imtl.h>

#include <map>
#include <nlohmann/json.hpp>
#include <string>

#include "host/services/ParameterBlock.h"
#include "host/services/Ref.h"

namespace host {

/// Reads the materials of one file, as MaterialWriter writes them and people do by hand. One that names itself with
/// "id" can be meant again with "ref" further down. Throws Unreadable or what the JSON library throws.
class MaterialReader {
 public:
  using Json = nlohmann::ordered_json;

  /// Null for null.
  Ref<Mtl> material(const Json& object);

 private:
  class Deeper;

  template <class T, class Read>
  static std::vector<Ref<T>> list(const Json& object, const char* key, Read read);

  Ref<Mtl> newMaterial(const Json& object);
  Ref<Texmap> map(const Json& object);
  Ref<Texmap> newMap(const Json& object);
  std::vector<Ref<ParameterBlock>> blocks(const Json& object);
  ParameterBlock::Parameter parameter(const Json& entry);

  std::map<int, Ref<Mtl>> materials_;
  std::map<int, Ref<Texmap>> maps_;
  int depth_ = 0;
};

}  // namespace host
