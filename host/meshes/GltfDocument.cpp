#include "host/meshes/GltfDocument.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "host/files/JsonBounds.h"
#include "host/meshes/UnreadableMesh.h"

namespace host {

namespace {

constexpr std::uint32_t JSON_CHUNK = 0x4E4F534A;
constexpr std::uint32_t BINARY_CHUNK = 0x004E4942;
constexpr const char* QUANTIZATION = "KHR_mesh_quantization";
constexpr std::size_t HEADER_SIZE = 12;
constexpr std::size_t CHUNK_HEADER_SIZE = 8;
// Parsed JSON takes many times the room of its text.
constexpr std::size_t LONGEST_JSON = std::size_t(64) << 20U;

enum ComponentType : unsigned { BYTE = 5120, UNSIGNED_BYTE, SHORT, UNSIGNED_SHORT, UNSIGNED_INT = 5125, FLOAT };

template <class Value>
Value valueAt(const unsigned char* bytes) {
  Value value;
  std::memcpy(&value, bytes, sizeof value);
  return value;
}

std::uint32_t wordAt(std::string_view bytes, std::size_t offset) {
  if (offset + 4 > bytes.size()) throw UnreadableMesh("the glTF file is cut short");
  std::uint32_t word;
  std::memcpy(&word, bytes.data() + offset, sizeof word);
  return word;
}

struct Chunk {
  std::uint32_t type;
  std::string_view bytes;
};

/// Nothing at the end of the file; moves `offset` on.
std::optional<Chunk> nextChunk(std::string_view glb, std::size_t& offset) {
  if (offset + CHUNK_HEADER_SIZE > glb.size()) return std::nullopt;
  const std::size_t length = wordAt(glb, offset);
  const std::uint32_t type = wordAt(glb, offset + 4);
  offset += CHUNK_HEADER_SIZE;
  if (length > glb.size() - offset) throw UnreadableMesh("the glTF file is cut short");
  const Chunk chunk{type, glb.substr(offset, length)};
  offset += (length + 3) / 4 * 4;
  return chunk;
}

std::size_t componentSize(unsigned componentType) {
  switch (componentType) {
    case BYTE:
    case UNSIGNED_BYTE:
      return 1;
    case SHORT:
    case UNSIGNED_SHORT:
      return 2;
    case UNSIGNED_INT:
    case FLOAT:
      return 4;
    default:
      throw UnreadableMesh("the glTF file has numbers of an unknown type");
  }
}

std::uint32_t wholeNumber(const unsigned char* bytes, unsigned componentType) {
  switch (componentType) {
    case UNSIGNED_BYTE:
      return *bytes;
    case UNSIGNED_SHORT:
      return valueAt<std::uint16_t>(bytes);
    case UNSIGNED_INT:
      return valueAt<std::uint32_t>(bytes);
    default:
      throw UnreadableMesh("the glTF file has vertex indices that are no whole numbers");
  }
}

/// What a component says: a float, a whole number, or when `normalized` a whole number's share of its highest.
float componentAt(const unsigned char* bytes, unsigned componentType, bool normalized) {
  const auto number = [normalized](int value, float highest) {
    return normalized ? std::max(static_cast<float>(value) / highest, -1.0F) : static_cast<float>(value);
  };
  switch (componentType) {
    case FLOAT:
      return valueAt<float>(bytes);
    case BYTE:
      return number(valueAt<std::int8_t>(bytes), 127.0F);
    case UNSIGNED_BYTE:
      return number(*bytes, 255.0F);
    case SHORT:
      return number(valueAt<std::int16_t>(bytes), 32767.0F);
    case UNSIGNED_SHORT:
      return number(valueAt<std::uint16_t>(bytes), 65535.0F);
    default:
      throw UnreadableMesh("the glTF file has vertices of an unknown type");
  }
}

bool isUnderstood(const std::string& extension) {
  return extension.rfind("KHR_materials_", 0) == 0 || extension == "KHR_lights_punctual" || extension == QUANTIZATION;
}

std::size_t requiredIndex(const GltfDocument::Json& object, const char* key) {
  const std::optional<std::size_t> index = GltfDocument::optionalIndex(object, key);
  if (!index) throw UnreadableMesh(std::string("the glTF file lacks \"") + key + "\" where it is needed");
  return *index;
}

}  // namespace

GltfDocument::GltfDocument(std::string_view glb) {
  if (wordAt(glb, 4) != 2) throw UnreadableMesh("only glTF version 2 is read");
  std::size_t offset = HEADER_SIZE;
  const std::optional<Chunk> json = nextChunk(glb, offset);
  if (!json || json->type != JSON_CHUNK) throw UnreadableMesh("the glTF file is cut short");
  if (json->bytes.size() > LONGEST_JSON || !isWithinBounds(json->bytes))
    throw UnreadableMesh("the glTF file describes too much");
  root_ = Json::parse(json->bytes.begin(), json->bytes.end(), nullptr, false);
  if (!root_.is_object()) throw UnreadableMesh("the glTF file's description is not valid JSON");
  const std::optional<Chunk> binary = nextChunk(glb, offset);
  if (binary && binary->type == BINARY_CHUNK) binary_ = binary->bytes;
  readExtensions();
}

void GltfDocument::readExtensions() {
  for (const Json& extension : list(root_, "extensionsRequired")) {
    const std::string name = extension.is_string() ? extension.get<std::string>() : std::string("?");
    isQuantized_ = isQuantized_ || name == QUANTIZATION;
    if (!isUnderstood(name)) throw UnreadableMesh("the glTF file needs the extension " + name + ", which is not read");
  }
}

std::optional<std::size_t> GltfDocument::optionalIndex(const Json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end()) return std::nullopt;
  if (!found->is_number_unsigned()) throw UnreadableMesh(std::string("the glTF file has a bad \"") + key + "\"");
  return found->get<std::size_t>();
}

const GltfDocument::Json& GltfDocument::list(const Json& object, const char* key) {
  static const Json none = Json::array();
  const auto found = object.find(key);
  if (found == object.end()) return none;
  if (!found->is_array()) throw UnreadableMesh(std::string("the glTF file has a bad \"") + key + "\"");
  return *found;
}

const GltfDocument::Json& GltfDocument::item(const char* name, std::size_t index) const {
  const Json& items = list(root_, name);
  if (index >= items.size() || !items[index].is_object()) {
    throw UnreadableMesh("the glTF file names one of its \"" + std::string(name) + "\" that is not there");
  }
  return items[index];
}

std::string_view GltfDocument::view(std::size_t index) const {
  const Json& description = item("bufferViews", index);
  const std::size_t buffer = requiredIndex(description, "buffer");
  const bool elsewhere = buffer != 0 || item("buffers", buffer).contains("uri");
  if (elsewhere) throw UnreadableMesh("the glTF file keeps its vertices in another file");
  const std::size_t offset = optionalIndex(description, "byteOffset").value_or(0);
  const std::size_t length = requiredIndex(description, "byteLength");
  if (offset > binary_.size() || length > binary_.size() - offset) {
    throw UnreadableMesh("the glTF file describes more data than it holds");
  }
  return binary_.substr(offset, length);
}

GltfDocument::Elements GltfDocument::elements(std::size_t accessor, const char* type, std::size_t components) const {
  const Json& description = item("accessors", accessor);
  if (description.contains("sparse")) throw UnreadableMesh("sparse glTF data is not read");
  const auto foundType = description.find("type");
  if (foundType == description.end() || *foundType != type) {
    throw UnreadableMesh(std::string("the glTF file has data that is not ") + type + " where it has to be");
  }
  const std::size_t viewIndex = requiredIndex(description, "bufferView");
  const std::string_view bytes = view(viewIndex);
  const std::size_t component = requiredIndex(description, "componentType");
  const std::size_t size = components * componentSize(static_cast<unsigned>(std::min<std::size_t>(component, 0xFFFF)));
  const std::size_t stride = optionalIndex(item("bufferViews", viewIndex), "byteStride").value_or(size);
  const std::size_t offset = optionalIndex(description, "byteOffset").value_or(0);
  const std::size_t count = requiredIndex(description, "count");
  if (stride < size) throw UnreadableMesh("the glTF file has overlapping vertices");
  const bool fits = count == 0 || (offset <= bytes.size() && size <= bytes.size() - offset &&
                                   count - 1 <= (bytes.size() - offset - size) / stride);
  if (!fits) throw UnreadableMesh("the glTF file describes more data than it holds");
  const auto normalized = description.find("normalized");
  return {reinterpret_cast<const unsigned char*>(bytes.data()) + (count == 0 ? 0 : offset), stride, count,
          static_cast<unsigned>(component), normalized != description.end() && *normalized == true};
}

std::size_t GltfDocument::count(std::size_t accessor) const {
  return std::min(requiredIndex(item("accessors", accessor), "count"), binary_.size());
}

std::vector<Point3> GltfDocument::points(std::size_t accessor) const {
  const Elements all = elements(accessor, "VEC3", 3);
  if (all.componentType != FLOAT && !isQuantized_) {
    throw UnreadableMesh("the glTF file has positions or normals that are not floats");
  }
  const std::size_t size = componentSize(all.componentType);
  std::vector<Point3> points(all.count);
  for (std::size_t i = 0; i < all.count; ++i) {
    const unsigned char* bytes = all.first + i * all.stride;
    const auto at = [&](std::size_t axis) {
      return componentAt(bytes + axis * size, all.componentType, all.normalized);
    };
    points[i] = Point3(at(0), at(1), at(2));
  }
  return points;
}

std::vector<TexCoord> GltfDocument::texCoords(std::size_t accessor) const {
  const Elements all = elements(accessor, "VEC2", 2);
  const std::size_t size = componentSize(all.componentType);
  std::vector<TexCoord> coords(all.count);
  for (std::size_t i = 0; i < all.count; ++i) {
    const unsigned char* bytes = all.first + i * all.stride;
    coords[i] = {componentAt(bytes, all.componentType, all.normalized),
                 componentAt(bytes + size, all.componentType, all.normalized)};
  }
  return coords;
}

std::vector<std::uint32_t> GltfDocument::indices(std::size_t accessor) const {
  const Elements all = elements(accessor, "SCALAR", 1);
  std::vector<std::uint32_t> indices(all.count);
  for (std::size_t i = 0; i < all.count; ++i) indices[i] = wholeNumber(all.first + i * all.stride, all.componentType);
  return indices;
}

}  // namespace host
