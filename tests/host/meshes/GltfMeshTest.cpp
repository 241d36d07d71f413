#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <nlohmann/json.hpp>

#include "host/meshes/MeshFile.h"
#include "host/meshes/MeshFileWriter.h"
#include "tests/host/meshes/Shapes.h"

using host::Mesh;
using host::MeshResult;
using host::readMesh;
using nlohmann::json;
using shapes::expectNear;

namespace {

void appendWord(std::string& bytes, std::uint32_t word) { bytes.append(reinterpret_cast<const char*>(&word), 4); }

std::string glb(const std::string& text, std::string binary) {
  std::string padded = text;
  padded.resize((padded.size() + 3) / 4 * 4, ' ');
  binary.resize((binary.size() + 3) / 4 * 4);
  std::string bytes = "glTF";
  appendWord(bytes, 2);
  appendWord(bytes, static_cast<std::uint32_t>(28 + padded.size() + binary.size()));
  appendWord(bytes, static_cast<std::uint32_t>(padded.size()));
  bytes += "JSON" + padded;
  appendWord(bytes, static_cast<std::uint32_t>(binary.size()));
  return bytes + std::string("BIN\0", 4) + binary;
}

/// A glTF of one triangle strip of four vertices, without normals: (0,0,0) (1,0,0) (0,1,0) (1,1,0), metres and Y up.
struct Strip {
  std::vector<float> positions = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0};
  std::vector<std::uint16_t> indices = {0, 1, 2, 3};
  json document = json::parse(R"({
    "asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}], "nodes": [{"mesh": 0}],
    "meshes": [{"primitives": [{"attributes": {"POSITION": 0}, "indices": 1, "mode": 5}]}],
    "accessors": [{"bufferView": 0, "componentType": 5126, "count": 4, "type": "VEC3"},
                  {"bufferView": 1, "componentType": 5123, "count": 4, "type": "SCALAR"}],
    "bufferViews": [{"buffer": 0, "byteLength": 48}, {"buffer": 0, "byteOffset": 48, "byteLength": 8}],
    "buffers": [{"byteLength": 56}]})");

  std::string bytes() const {
    std::string binary(reinterpret_cast<const char*>(positions.data()), positions.size() * sizeof(float));
    binary.append(reinterpret_cast<const char*>(indices.data()), indices.size() * sizeof(std::uint16_t));
    return glb(document.dump(), binary);
  }
  MeshResult read() const { return readMesh(bytes()); }
};

TEST(GltfMesh, WritingAndReadingKeepsEverythingAMeshHas) {
  Mesh mesh = shapes::square();
  mesh.positions[2] = {1, 1, 0.5F};
  mesh.materialIds = {3, 1};
  completeMesh(mesh);
  const MeshResult reading = readMesh(host::glbBytes(mesh));
  ASSERT_TRUE(reading.mesh) << reading.error;
  // Each primitive brings its own vertices back, so corners are compared, in the order of the material ids.
  EXPECT_EQ(reading.mesh->materialIds, (std::vector<std::uint16_t>{1, 3}));
  for (const std::size_t t : {0U, 1U}) {
    for (std::size_t corner = 0; corner < 3; ++corner) {
      const std::size_t before = mesh.triangles[1 - t][corner];
      const std::size_t after = reading.mesh->triangles[t][corner];
      expectNear(reading.mesh->positions[after], mesh.positions[before]);
      expectNear(reading.mesh->normals[after], mesh.normals[before]);
      EXPECT_NEAR(reading.mesh->texCoords[after].u, mesh.texCoords[before].u, 1e-6F);
      EXPECT_NEAR(reading.mesh->texCoords[after].v, mesh.texCoords[before].v, 1e-6F);
    }
  }
}

TEST(GltfMesh, WritingCompactlyKeepsShapeAndMaterialsInALittleMoreThanHalfTheRoom) {
  Mesh mesh = *shapes::sphere(90, {300, -40, 90}, 40);
  for (const Point3& n : mesh.normals) mesh.texCoords.push_back({0.5F + 0.5F * n.x, 0.5F + 0.5F * n.z});
  const std::size_t half = mesh.triangles.size() / 2;
  for (std::size_t i = 0; i < 2 * half; ++i) mesh.materialIds.push_back(i < half ? 4 : 0);
  const std::string bytes = host::glbBytes(mesh, host::VertexPrecision::Compact);
  EXPECT_LT(bytes.size(), host::glbBytes(mesh).size() * 6 / 10);
  const MeshResult reading = readMesh(bytes);
  ASSERT_TRUE(reading.mesh) << reading.error;
  ASSERT_EQ(reading.mesh->triangles.size(), mesh.triangles.size());
  for (std::size_t i = 0; i < 2 * half; ++i) {
    // Those of material id 0 come first.
    const std::size_t j = i < half ? half + i : i - half;
    EXPECT_EQ(reading.mesh->materialId(j), mesh.materialId(i));
    for (std::size_t corner = 0; corner < 3; ++corner) {
      const std::size_t before = mesh.triangles[i][corner];
      const std::size_t after = reading.mesh->triangles[j][corner];
      expectNear(reading.mesh->positions[after], mesh.positions[before], 180.0F / 65535);
      expectNear(reading.mesh->normals[after], mesh.normals[before], 0.008F);
      EXPECT_NEAR(reading.mesh->texCoords[after].u, mesh.texCoords[before].u, 1e-5F);
      EXPECT_NEAR(reading.mesh->texCoords[after].v, mesh.texCoords[before].v, 1e-5F);
    }
  }
  mesh.texCoords.front() = {7.5F, -3};
  const MeshResult tiled = readMesh(host::glbBytes(mesh, host::VertexPrecision::Compact));
  ASSERT_TRUE(tiled.mesh) << tiled.error;
  const auto isTiled = [](const host::TexCoord& coord) { return coord.u == 7.5F && coord.v == -3.0F; };
  EXPECT_TRUE(std::any_of(tiled.mesh->texCoords.begin(), tiled.mesh->texCoords.end(), isTiled));
}

TEST(GltfMesh, ReadsSignedWholeNumbersOnlyWhereTheFileSaysSo) {
  Strip strip;
  const std::array<std::int16_t, 24> places = {0, 0, 0, 7, 2, 0, 0, 7, 0, -2, 0, 7, 2, -2, 0, 7};
  std::memcpy(strip.positions.data(), places.data(), 32);
  strip.document["accessors"][0]["componentType"] = 5122;
  strip.document["bufferViews"][0]["byteStride"] = 8;
  EXPECT_NE(strip.read().error.find("not floats"), std::string::npos);
  strip.document["extensionsRequired"] = {"KHR_mesh_quantization"};
  MeshResult reading = strip.read();
  ASSERT_TRUE(reading.mesh) << reading.error;
  expectNear(reading.mesh->positions[3], {200, 0, -200});
  strip.document["accessors"][0]["normalized"] = true;
  reading = strip.read();
  ASSERT_TRUE(reading.mesh) << reading.error;
  expectNear(reading.mesh->positions[3], {200.0F / 32767, 0, -200.0F / 32767});
}

TEST(GltfMesh, WritesMetresWithYUpAndVDownward) {
  Mesh mesh = shapes::square();
  mesh.positions[0] = {-100, -200, 300};
  const std::string bytes = host::glbBytes(mesh);
  std::uint32_t length = 0;
  std::memcpy(&length, bytes.data() + 12, 4);
  const json document = json::parse(bytes.substr(20, length));
  const std::string binary = bytes.substr(28 + length);
  const auto floats = [&](const char* attribute) {
    const int accessor = document["meshes"][0]["primitives"][0]["attributes"][attribute];
    const json& view = document["bufferViews"][document["accessors"][accessor]["bufferView"].get<std::size_t>()];
    float values[3];
    std::memcpy(values, binary.data() + view.value("byteOffset", 0), sizeof values);
    return Point3(values[0], values[1], values[2]);
  };
  expectNear(floats("POSITION"), {-1, 3, 2});
  EXPECT_FLOAT_EQ(floats("TEXCOORD_0").y, 1.0F);
}

TEST(GltfMesh, ReadsStripsAndTurnsMetresYUpIntoCentimetresZUp) {
  const MeshResult reading = Strip().read();
  ASSERT_TRUE(reading.mesh) << reading.error;
  ASSERT_EQ(reading.mesh->triangles.size(), 2U);
  expectNear(reading.mesh->bounds.pmax, {100, 0, 100});
  for (const Point3& normal : reading.mesh->normals) expectNear(normal, {0, -1, 0});
}

TEST(GltfMesh, AppliesTransformsOfAllNodesAboveAndKeepsMirroredFacesOutward) {
  Strip strip;
  strip.document["scenes"][0]["nodes"] = {1};
  strip.document["nodes"] = json::parse(
      R"([{"mesh": 0, "scale": [-2, 1, 1]}, {"children": [0], "matrix": [1,0,0,0, 0,1,0,0, 0,0,1,0, 10,0,0,1]}])");
  const MeshResult reading = strip.read();
  ASSERT_TRUE(reading.mesh) << reading.error;
  expectNear(reading.mesh->bounds.pmin, {800, 0, 0});
  expectNear(reading.mesh->bounds.pmax, {1000, 0, 100});
  for (const Point3& normal : reading.mesh->normals) expectNear(normal, {0, -1, 0});
}

TEST(GltfMesh, ReadsOnlyTheDefaultScene) {
  Strip strip;
  strip.document["nodes"] = json::parse(R"([{"mesh": 0}, {"mesh": 0, "translation": [5, 0, 0]}])");
  strip.document["scenes"] = json::parse(R"([{"nodes": [0]}, {"nodes": [1]}])");
  strip.document["scene"] = 1;
  const MeshResult reading = strip.read();
  ASSERT_TRUE(reading.mesh) << reading.error;
  expectNear(reading.mesh->bounds.pmin, {500, 0, 0});
}

TEST(GltfMesh, RefusesWhatIsBrokenWithOneLine) {
  const struct {
    const char* reason;
    const char* pointer;
    json value;
    const char* error;
  } cases[] = {
      {"view past the end", "/bufferViews/0/byteLength", 5000, "more data than it holds"},
      {"view starts past the end", "/bufferViews/0/byteOffset", 5000, "more data than it holds"},
      {"offset that wraps around", "/accessors/0/byteOffset", 0xFFFFFFFFFFFFFFFFULL, "more data than it holds"},
      {"huge count", "/accessors/0/count", 0xFFFFFFFFFFFFFFFFULL, "more data than it holds"},
      {"negative count", "/accessors/0/count", -1, "bad \"count\""},
      {"count that is text", "/accessors/0/count", "4", "bad \"count\""},
      {"stride too small", "/bufferViews/0/byteStride", 4, "overlapping"},
      {"stride too large", "/bufferViews/0/byteStride", 40, "more data than it holds"},
      {"unknown number type", "/accessors/0/componentType", 5130, "unknown type"},
      {"positions as shorts", "/accessors/0/componentType", 5122, "not floats"},
      {"indices as floats", "/accessors/1",
       json::parse(R"({"bufferView":0,"componentType":5126,"count":4,"type":"SCALAR"})"), "no whole numbers"},
      {"positions in pairs", "/accessors/0/type", "VEC2", "not VEC3"},
      {"sparse", "/accessors/0/sparse", json::object(), "sparse"},
      {"no accessor", "/meshes/0/primitives/0/indices", 7, "not there"},
      {"no view", "/accessors/0/bufferView", 9, "not there"},
      {"no mesh", "/nodes/0/mesh", 3, "not there"},
      {"no node", "/scenes/0/nodes", json::array({4}), "not there"},
      {"node named by text", "/scenes/0/nodes", json::array({"0"}), "bad list of nodes"},
      {"node within itself", "/nodes/0/children", json::array({0}), "twice"},
      {"file elsewhere", "/buffers/0/uri", "other.bin", "another file"},
      {"compressed", "/extensionsRequired", json::array({"KHR_draco_mesh_compression"}), "KHR_draco_mesh_compression"},
      {"matrix too short", "/nodes/0/matrix", json::array({1, 2}), "bad \"matrix\""},
      {"matrix beyond floats", "/nodes/0/translation", json::array({1e300, 0, 0}), "bad \"translation\""},
      {"positions too far away", "/nodes/0/scale", json::array({1e25, 1, 1}), "not a usable number"},
      {"no attributes", "/meshes/0/primitives/0/attributes", json::array(), "without positions"},
      {"primitive that is none", "/meshes/0/primitives/0", 5, "bad \"primitives\""},
      {"meshes that are none", "/meshes", 5, "bad \"meshes\""},
      {"lines", "/meshes/0/primitives/0/mode", 1, "no triangles"},
  };
  for (const auto& one : cases) {
    Strip strip;
    strip.document[json::json_pointer(one.pointer)] = one.value;
    const MeshResult reading = strip.read();
    EXPECT_FALSE(reading.mesh) << one.reason;
    EXPECT_NE(reading.error.find(one.error), std::string::npos) << one.reason << ": " << reading.error;
    EXPECT_EQ(reading.error.find('\n'), std::string::npos) << one.reason;
  }
}

TEST(GltfMesh, MayBeShownManyTimesButNotOutOfAllProportionToItsFile) {
  Strip strip;
  strip.indices.assign(3000, 0);
  strip.document["accessors"][1]["count"] = 3000;
  strip.document["bufferViews"][1]["byteLength"] = 6000;
  const auto show = [&strip](int times) {
    strip.document["nodes"] = json::array();
    strip.document["scenes"][0]["nodes"] = json::array();
    for (int i = 0; i < times; ++i) {
      strip.document["nodes"].push_back({{"mesh", 0}});
      strip.document["scenes"][0]["nodes"].push_back(i);
    }
    return strip.read();
  };
  EXPECT_EQ(show(20).error, "");
  EXPECT_EQ(show(200).error, "the glTF file shows its meshes too often");
}

TEST(GltfMesh, RefusesIndicesOutOfRangeAndPositionsThatAreNoNumbers) {
  Strip strip;
  strip.indices[3] = 4;
  EXPECT_NE(strip.read().error.find("without positions"), std::string::npos);
  strip.indices[3] = 3;
  strip.positions[4] = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(strip.read().error, "a position is not a usable number");
}

TEST(GltfMesh, SurvivesBeingCutAnywhereAndHavingAnyByteChanged) {
  const std::string whole = Strip().bytes();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const MeshResult reading = readMesh(std::string_view(whole).substr(0, length));
    EXPECT_NE(reading.mesh == nullptr, reading.error.empty()) << length;
  }
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string changed = whole;
    changed[at] = static_cast<char>(changed[at] ^ 0x15);
    const MeshResult reading = readMesh(changed);
    EXPECT_NE(reading.mesh == nullptr, reading.error.empty()) << at;
  }
  EXPECT_FALSE(readMesh(glb(std::string(1'000'000, '['), "")).mesh);
}

}  // namespace
