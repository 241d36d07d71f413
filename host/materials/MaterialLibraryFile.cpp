#include "host/materials/MaterialLibraryFile.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

#include "host/files/Paths.h"
#include "host/materials/BitmapTexture.h"
#include "host/materials/MaterialClasses.h"
#include "host/materials/TextureMap.h"

namespace host {

namespace {

using Json = nlohmann::json;

constexpr int FORMAT_VERSION = 1;
constexpr int MAXIMUM_DEPTH = 32;
constexpr std::uintmax_t MAXIMUM_BYTES = 64U << 20U;
constexpr std::size_t MAXIMUM_SLOTS = 1000;

/// What is wrong with the file, in words for its author; never leaves this file.
class Unreadable : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

MSTR text(const Json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end()) return {};
  return toWide(found->get<std::string>()).c_str();
}

Class_ID classOf(const Json& object) {
  const Json& value = object.at("class");
  if (value.is_array()) return {value.at(0).get<std::uint32_t>(), value.at(1).get<std::uint32_t>()};
  const auto name = value.get<std::string>();
  if (name == "standard") return STANDARD_MATERIAL;
  if (name == "multi") return MULTI_MATERIAL;
  if (name == "scaled") return SCALED_MATERIAL;
  if (name == "bitmap") return BITMAP_TEXTURE;
  throw Unreadable("unknown class \"" + name + "\"");
}

class Reader {
 public:
  Ref<Mtl> material(const Json& object) {
    const Deeper deeper(depth_);
    if (object.is_null()) return {};
    Material::Content content;
    content.blocks = blocks(object);
    content.subMaterials = list<Mtl>(object, "subMaterials", [this](const Json& one) { return material(one); });
    content.subTextures = list<Texmap>(object, "subTextures", [this](const Json& one) { return map(one); });
    const Ref<Mtl> result(new Material(classOf(object), std::move(content)));
    result->SetName(text(object, "name"));
    return result;
  }

 private:
  /// Counts how deep materials and maps hold each other.
  class Deeper {
   public:
    explicit Deeper(int& depth) : depth_(depth) {
      if (++depth_ > MAXIMUM_DEPTH) throw Unreadable("materials hold each other too deeply");
    }
    ~Deeper() { --depth_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

   private:
    int& depth_;
  };

  template <class T, class Read>
  static std::vector<Ref<T>> list(const Json& object, const char* key, Read read) {
    std::vector<Ref<T>> result;
    const auto found = object.find(key);
    if (found == object.end()) return result;
    if (!found->is_array() || found->size() > MAXIMUM_SLOTS) throw Unreadable(std::string("bad list \"") + key + "\"");
    for (const Json& one : *found) result.push_back(read(one));
    return result;
  }

  Ref<Texmap> map(const Json& object) {
    const Deeper deeper(depth_);
    if (object.is_null()) return {};
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

  std::vector<Ref<ParameterBlock>> blocks(const Json& object) {
    BlockID next = 0;
    return list<ParameterBlock>(object, "blocks", [&](const Json& one) {
      std::vector<ParameterBlock::Parameter> parameters;
      for (const Json& entry : one) parameters.push_back(parameter(entry));
      return Ref<ParameterBlock>(new ParameterBlock(next++, std::move(parameters)));
    });
  }

  ParameterBlock::Parameter parameter(const Json& entry) {
    const auto id = entry.at("id").get<ParamID>();
    const auto type = entry.at("type").get<std::string>();
    const Json& value = entry.at("value");
    if (type == "float") return {id, TYPE_FLOAT, value.get<float>()};
    if (type == "int") return {id, TYPE_INT, value.get<int>()};
    if (type == "color") {
      return {id, TYPE_RGBA, Color(value.at(0).get<float>(), value.at(1).get<float>(), value.at(2).get<float>())};
    }
    if (type == "text") return {id, TYPE_STRING, toWide(value.get<std::string>())};
    if (type == "material") return {id, TYPE_MTL, material(value)};
    if (type == "texmap") return {id, TYPE_TEXMAP, map(value)};
    throw Unreadable("unknown parameter type \"" + type + "\"");
  }

  int depth_ = 0;
};

std::string contentOf(const std::filesystem::path& file) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) throw Unreadable("cannot be read (" + error.message() + ")");
  if (size > MAXIMUM_BYTES) throw Unreadable("is too large for a material library");
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream content;
  content << stream.rdbuf();
  if (!stream) throw Unreadable("cannot be read");
  return content.str();
}

std::vector<Ref<Mtl>> read(const std::filesystem::path& file) {
  const Json document = Json::parse(contentOf(file), nullptr, false);
  if (!document.is_object() || document.value("format", "") != "zorvel-material-library") {
    throw Unreadable("is no material library that this host reads");
  }
  if (document.value("version", 0) != FORMAT_VERSION) throw Unreadable("has a version that this host does not read");
  std::vector<Ref<Mtl>> result;
  for (const Json& entry : document.at("materials")) {
    if (entry.is_object()) result.push_back(Reader().material(entry));
  }
  return result;
}

}  // namespace

MaterialLibraryContent readMaterialLibrary(const std::wstring& path) {
  MaterialLibraryContent content;
  try {
    const std::filesystem::path file = resolvePath(path);
    std::error_code error;
    content.missing = !std::filesystem::exists(file, error);
    if (content.missing) {
      content.error = "does not exist";
    } else {
      content.materials = read(file);
    }
  } catch (const Json::exception& problem) {
    content.error = std::string("is damaged: ") + problem.what();
  } catch (const std::exception& problem) {
    content.error = problem.what();
  }
  return content;
}

}  // namespace host
