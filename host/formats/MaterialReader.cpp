#include "host/formats/MaterialReader.h"

#include <algorithm>
#include <utility>

#include "host/files/Paths.h"
#include "host/formats/JsonValues.h"
#include "host/formats/Unreadable.h"
#include "host/materials/BitmapTexture.h"
#include "host/materials/MaterialClasses.h"
#include "host/materials/TextureMap.h"

namespace host {

namespace {

using Json = nlohmann::ordered_json;

constexpr int MAXIMUM_DEPTH = 32;
constexpr std::size_t MAXIMUM_SLOTS = 1000;
constexpr std::size_t LONGEST_TEXT = 100'000;
/// Parts of a material, parameters too, counted as often as they are met on a walk through it: two references on each
/// of 28 levels make a thousand million of twenty lines. Some are met often, but all together stay in proportion to
/// what was read. The plug-in's own walk ends after as many steps.
constexpr std::size_t MOST_MEETINGS = 100'000;
constexpr std::size_t ALWAYS_MET = 1000;
constexpr std::size_t MEETINGS_OF_ONE = 10;

/// A name or a path, which are far shorter.
std::wstring shortText(const Json& value) {
  const auto& text = value.get_ref<const std::string&>();
  if (text.size() > LONGEST_TEXT) throw Unreadable("a text is too long");
  return toWide(text);
}

MSTR text(const Json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end()) return {};
  return shortText(*found).c_str();
}

Class_ID classOf(const Json& object) {
  const Json& value = object.at("class");
  if (value.is_array()) return {integerFrom<std::uint32_t>(value.at(0)), integerFrom<std::uint32_t>(value.at(1))};
  const auto name = value.get<std::string>();
  if (name == "standard") return STANDARD_MATERIAL;
  if (name == "multi") return MULTI_MATERIAL;
  if (name == "scaled") return SCALED_MATERIAL;
  if (name == "bitmap") return BITMAP_TEXTURE;
  throw Unreadable("unknown class \"" + name + "\"");
}

}  // namespace

/// Counts how deep the text nests, before the stack is used up.
class MaterialReader::Deeper {
 public:
  explicit Deeper(int& depth) : depth_(depth) {
    if (depth_ == MAXIMUM_DEPTH) throw Unreadable("materials hold each other too deeply");
    ++depth_;
  }
  ~Deeper() { --depth_; }
  Deeper(const Deeper&) = delete;
  Deeper& operator=(const Deeper&) = delete;

 private:
  int& depth_;
};

void MaterialReader::add(const Extent& below) {
  extent_.meetings += below.meetings;
  extent_.depth = std::max(extent_.depth, below.depth + 1);
  if (extent_.depth > MAXIMUM_DEPTH) throw Unreadable("materials hold each other too deeply");
  const std::size_t most = std::min(MOST_MEETINGS, ALWAYS_MET + MEETINGS_OF_ONE * made_);
  if (extent_.meetings > most) throw Unreadable("a material holds too many parts");
}

template <class T, class Make>
Ref<T> MaterialReader::sharedOrNew(std::map<int, Known<T>>& known, const Json& object, Make make) {
  const Known<T> one = knownOrNew(known, object, make);
  add(one.extent);
  return one.part;
}

/// The one that a reference means, or a new one, remembered when it has an id.
template <class T, class Make>
MaterialReader::Known<T> MaterialReader::knownOrNew(std::map<int, Known<T>>& known, const Json& object, Make make) {
  const auto reference = object.find("ref");
  if (reference != object.end()) {
    const auto found = known.find(integerFrom<int>(*reference));
    if (found == known.end()) throw Unreadable("a reference leads nowhere");
    return found->second;
  }
  ++made_;
  const Extent around = std::exchange(extent_, Extent());
  const Ref<T> part = make(object);
  const Known<T> made{part, std::exchange(extent_, around)};
  const auto id = object.find("id");
  if (id != object.end()) known[integerFrom<int>(*id)] = made;
  return made;
}

template <class T, class Read>
std::vector<Ref<T>> MaterialReader::list(const Json& object, const char* key, Read read) {
  std::vector<Ref<T>> result;
  const auto found = object.find(key);
  if (found == object.end()) return result;
  if (!found->is_array() || found->size() > MAXIMUM_SLOTS) throw Unreadable(std::string("bad list \"") + key + "\"");
  for (const Json& one : *found) result.push_back(read(one));
  return result;
}

Ref<Mtl> MaterialReader::material(const Json& object) {
  extent_ = Extent();
  return heldMaterial(object);
}

Ref<Mtl> MaterialReader::heldMaterial(const Json& object) {
  const Deeper deeper(depth_);
  if (object.is_null()) return {};
  return sharedOrNew<Mtl>(materials_, object, [this](const Json& one) { return newMaterial(one); });
}

Ref<Mtl> MaterialReader::newMaterial(const Json& object) {
  Material::Content content;
  content.blocks = blocks(object);
  content.subMaterials = list<Mtl>(object, "subMaterials", [this](const Json& one) { return heldMaterial(one); });
  content.subTextures = list<Texmap>(object, "subTextures", [this](const Json& one) { return map(one); });
  const Ref<Mtl> result(new Material(classOf(object), std::move(content)));
  result->SetName(text(object, "name"));
  return result;
}

Ref<Texmap> MaterialReader::map(const Json& object) {
  const Deeper deeper(depth_);
  if (object.is_null()) return {};
  return sharedOrNew<Texmap>(maps_, object, [this](const Json& one) { return newMap(one); });
}

Ref<Texmap> MaterialReader::newMap(const Json& object) {
  const Class_ID id = classOf(object);
  Ref<Texmap> result;
  if (id == BITMAP_TEXTURE) {
    result = Ref<Texmap>(new BitmapTexture(text(object, "file")));
  } else {
    auto slots = list<Texmap>(object, "subTextures", [this](const Json& one) { return map(one); });
    result = Ref<Texmap>(new TextureMap(id, blocks(object), std::move(slots)));
  }
  result->SetName(text(object, "name"));
  return result;
}

std::vector<Ref<ParameterBlock>> MaterialReader::blocks(const Json& object) {
  BlockID next = 0;
  return list<ParameterBlock>(object, "blocks", [&](const Json& one) {
    if (one.size() > MAXIMUM_SLOTS) throw Unreadable("a block has too many parameters");
    std::vector<ParameterBlock::Parameter> parameters;
    made_ += one.size();
    extent_.meetings += one.size();
    for (const Json& entry : one) parameters.push_back(parameter(entry));
    return Ref<ParameterBlock>(new ParameterBlock(next++, std::move(parameters)));
  });
}

ParameterBlock::Parameter MaterialReader::parameter(const Json& entry) {
  const auto id = integerFrom<ParamID>(entry.at("id"));
  const auto type = entry.at("type").get<std::string>();
  const Json& value = entry.at("value");
  if (type == "float") return {id, TYPE_FLOAT, floatFrom(value)};
  if (type == "int") return {id, TYPE_INT, integerFrom<int>(value)};
  if (type == "color")
    return {id, TYPE_RGBA, Color(floatFrom(value.at(0)), floatFrom(value.at(1)), floatFrom(value.at(2)))};
  if (type == "text") return {id, TYPE_STRING, shortText(value)};
  if (type == "material") return {id, TYPE_MTL, heldMaterial(value)};
  if (type == "texmap") return {id, TYPE_TEXMAP, map(value)};
  throw Unreadable("unknown parameter type \"" + type + "\"");
}

}  // namespace host
