#pragma once

#include <imtl.h>

#include <map>
#include <nlohmann/json.hpp>
#include <string>

#include "host/services/ParameterBlock.h"
#include "host/services/Ref.h"

namespace host {

/// Reads the materials of one file, as MaterialWriter writes them and people do by hand. One that names itself with
/// "id" can be meant again with "ref" further down. What it answers can be walked without remembering: each material
/// has a bounded depth, and a number of parts, counted as often as a walk meets them, in proportion to the file. Throws
/// Unreadable or what the JSON library throws.
class MaterialReader {
 public:
  using Json = nlohmann::ordered_json;

  /// Null for null.
  Ref<Mtl> material(const Json& object);

 private:
  class Deeper;

  /// Of a material or map with all that it holds.
  struct Extent {
    std::size_t meetings = 1;
    int depth = 1;
  };

  template <class T>
  struct Known {
    Ref<T> part;
    Extent extent;
  };

  template <class T, class Make>
  Ref<T> sharedOrNew(std::map<int, Known<T>>& known, const Json& object, Make make);
  template <class T, class Make>
  Known<T> knownOrNew(std::map<int, Known<T>>& known, const Json& object, Make make);

  template <class T, class Read>
  static std::vector<Ref<T>> list(const Json& object, const char* key, Read read);

  void add(const Extent& below);
  Ref<Mtl> heldMaterial(const Json& object);
  Ref<Mtl> newMaterial(const Json& object);
  Ref<Texmap> map(const Json& object);
  Ref<Texmap> newMap(const Json& object);
  std::vector<Ref<ParameterBlock>> blocks(const Json& object);
  ParameterBlock::Parameter parameter(const Json& entry);

  std::map<int, Known<Mtl>> materials_;
  std::map<int, Known<Texmap>> maps_;
  int depth_ = 0;
  /// Of what is being read.
  Extent extent_;
  std::size_t made_ = 0;
};

}  // namespace host
