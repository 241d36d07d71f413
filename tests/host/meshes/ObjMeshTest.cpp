#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <ctime>
#include <locale>

#include "host/meshes/MeshFile.h"
#include "tests/host/meshes/Shapes.h"

using host::Mesh;
using host::MeshResult;
using host::readMesh;
using shapes::expectNear;

namespace {

float area(const Mesh& mesh) {
  float sum = 0.0F;
  for (const auto& [a, b, c] : mesh.triangles) {
    sum += ((mesh.positions[b] - mesh.positions[a]) ^ (mesh.positions[c] - mesh.positions[a])).z / 2.0F;
  }
  return sum;
}

int turnedOver(const Mesh& mesh) {
  int count = 0;
  for (const auto& corners : mesh.triangles) {
    Mesh one = mesh;
    one.triangles = {corners};
    if (area(one) < 0.0F) ++count;
  }
  return count;
}

TEST(ObjMesh, ReadsPositionsTexCoordsAndNormalsAsWritten) {
  const MeshResult reading = readMesh(
      "# made by hand\r\no thing\r\nv 1.5 +2 -3e0 0.1 0.2 0.3\r\nv 2.5 2 -3\r\nv 2.5 3 -3\r\n"
      "vt 0.25 0.75\r\nvt 1 0 0\r\nvn 0 0 2\r\nf 1/1/1 2/2/1 3//1 # corner three has no texture\r\n");
  ASSERT_TRUE(reading.mesh) << reading.error;
  const Mesh& mesh = *reading.mesh;
  ASSERT_EQ(mesh.positions.size(), 3U);
  expectNear(mesh.positions[0], {1.5F, 2, -3});
  expectNear(mesh.normals[2], {0, 0, 1});
  ASSERT_EQ(mesh.texCoords.size(), 3U);
  EXPECT_FLOAT_EQ(mesh.texCoords[0].v, 0.75F);
  EXPECT_FLOAT_EQ(mesh.texCoords[2].u, 0.0F);
  expectNear(mesh.bounds.pmax, {2.5F, 3, -3});
  EXPECT_TRUE(mesh.materialIds.empty());
}

TEST(ObjMesh, TextureCoordinatesWithoutNormalsFollowTheirCorner) {
  const MeshResult reading = readMesh("v 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0.5 0.1\nvt 0.6 0.2\nvt 0.7 0.3\nf 1/3 2/1 3/2\n");
  ASSERT_TRUE(reading.mesh);
  EXPECT_FLOAT_EQ(reading.mesh->texCoords[0].u, 0.7F);
  EXPECT_FLOAT_EQ(reading.mesh->texCoords[1].u, 0.5F);
}

TEST(ObjMesh, CountsNegativeIndicesBackFromTheLastVertexSoFar) {
  const MeshResult reading = readMesh("v 9 9 9\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf -3 -2 -1\nv 5 5 5\n");
  ASSERT_TRUE(reading.mesh);
  expectNear(reading.mesh->bounds.pmax, {1, 1, 0});
}

TEST(ObjMesh, CutsAConcavePolygonWithoutLeavingIt) {
  // An L of area 3; a fan from its first corner would cover part of the notch twice.
  const MeshResult reading = readMesh("v 2 0 0\nv 2 1 0\nv 1 1 0\nv 1 2 0\nv 0 2 0\nv 0 0 0\nf 1 2 3 4 5 6\n");
  ASSERT_TRUE(reading.mesh);
  EXPECT_EQ(reading.mesh->triangles.size(), 4U);
  EXPECT_EQ(turnedOver(*reading.mesh), 0);
  EXPECT_FLOAT_EQ(area(*reading.mesh), 3.0F);
}

std::string repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

TEST(ObjMesh, CutsAPolygonOfManyCorners) {
  constexpr int teeth = 300;
  std::string text;
  std::string face = "f";
  for (int i = 0; i < 2 * teeth; ++i) {
    const double angle = i * 3.14159265358979 / teeth;
    const double radius = i % 2 == 0 ? 10.0 : 8.0;
    text += "v " + std::to_string(radius * std::cos(angle)) + " " + std::to_string(radius * std::sin(angle)) + " 0\n";
    face += " " + std::to_string(i + 1);
  }
  const MeshResult reading = readMesh(text + face + "\n");
  ASSERT_TRUE(reading.mesh) << reading.error;
  EXPECT_EQ(reading.mesh->triangles.size(), 2U * teeth - 2);
  EXPECT_EQ(turnedOver(*reading.mesh), 0) << "a fan would lie over the gaps between the teeth";
}

TEST(ObjMesh, TakesNoLongTimeForFacesThatNobodyMeans) {
  const std::string vertices = "v 0 0 0\nv 1 0 0\nv 0 1 0\n";
  const struct {
    std::string faces;
    const char* error;
  } cases[] = {{"f" + repeated(" 1 2 3", 300'000) + "\n", ""},
               {repeated("f" + repeated(" 1 2 3", 170) + "\n", 2'000), ""},
               {repeated("f" + repeated(" 1 2 3", 10) + "\n", 30'000), ""},
               {"f" + repeated(" 1", 2'600'000) + "\n", "too large"},
               {repeated("v 0 0 0\n", 2'500'000), "too large"},
               {repeated("vt 0\n", 2'500'001), "too large"},
               {repeated("vn 0 0 0\n", 2'500'001), "too large"}};
  for (const auto& one : cases) {
    const auto begin = std::clock();
    const MeshResult reading = readMesh(vertices + one.faces);
    EXPECT_EQ(reading.mesh != nullptr, std::string(one.error).empty()) << one.faces.substr(0, 20) << reading.error;
    EXPECT_NE(reading.error.find(one.error), std::string::npos) << reading.error;
    EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, 20.0) << one.faces.substr(0, 20);
  }
}

TEST(ObjMesh, NumbersMaterialsInTheOrderInWhichTheyAppear) {
  const MeshResult reading = readMesh(
      "v 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl skin\nf 1 2 3\nusemtl cloth\nf 1 2 3\nusemtl skin\nf 1 2 3\nusemtl hair\nf 1 "
      "2 3\n");
  ASSERT_TRUE(reading.mesh);
  EXPECT_EQ(reading.mesh->materialIds, (std::vector<std::uint16_t>{0, 1, 0, 2}));
}

TEST(ObjMesh, SmoothsAcrossASeamOfTheTextureWhenNormalsAreMissing) {
  // A roof whose ridge has two sets of texture coordinates: both copies of the ridge share one normal, straight up.
  const MeshResult reading = readMesh(
      "v -1 0 0\nv 0 0 1\nv 0 2 1\nv -1 2 0\nv 1 0 0\nv 1 2 0\nvt 0 0\nvt 1 1\n"
      "f 1/1 2/1 3/1 4/1\nf 2/2 5/2 6/2 3/2\n");
  ASSERT_TRUE(reading.mesh);
  int ridge = 0;
  for (std::size_t i = 0; i < reading.mesh->positions.size(); ++i) {
    if (reading.mesh->positions[i].z < 0.5F) continue;
    ++ridge;
    expectNear(reading.mesh->normals[i], {0, 0, 1});
  }
  EXPECT_EQ(ridge, 4);
}

TEST(ObjMesh, ReadsADecimalPointUnderALocaleWithACommaAsWell) {
  struct Comma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
  // The C functions take their comma from a locale that may not be installed.
  for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE"}) {
    if (std::setlocale(LC_NUMERIC, name) != nullptr) break;
  }
  const MeshResult reading = readMesh("v 0.5 0 0\nv 1.25 0 0\nv 0 1 0\nf 1 2 3\n");
  std::setlocale(LC_NUMERIC, "C");
  std::locale::global(before);
  ASSERT_TRUE(reading.mesh) << reading.error;
  expectNear(reading.mesh->positions[1], {1.25F, 0, 0});
}

TEST(ObjMesh, RefusesWhatIsBrokenWithOneLine) {
  const std::string vertices = "v 0 0 0\nv 1 0 0\nv 0 1 0\n";
  const struct {
    const char* reason;
    std::string text;
    const char* error;
  } cases[] = {
      {"empty", "", "empty"},
      {"no mesh at all", "hello, world\n", "not a mesh"},
      {"binary", std::string("v 1\0\n", 5), "not a mesh"},
      {"no faces", vertices, "no triangles"},
      {"index past the end", vertices + "f 1 2 4\n", "line 4: a face names a vertex that is not there"},
      {"index zero", vertices + "f 0 1 2\n", "not there"},
      {"index too far back", vertices + "f -4 1 2\n", "not there"},
      {"index beyond every number", vertices + "f 1 2 99999999999999999999\n", "cannot be understood"},
      {"no index", vertices + "f a b c\n", "cannot be understood"},
      {"empty corner", vertices + "f 1 2 /1\n", "not there"},
      {"not a number", vertices + "v nan 0 0\nf 1 2 4\n", "not a usable number"},
      {"infinite", vertices + "v 1e999 0 0\nf 1 2 4\n", "not a usable number"},
      {"number missing", vertices + "v 1\nf 1 2 4\n", "not a usable number"},
      {"too few corners", vertices + "f 1 2\n", "no triangles"},
  };
  for (const auto& one : cases) {
    const MeshResult reading = readMesh(one.text);
    EXPECT_FALSE(reading.mesh) << one.reason;
    EXPECT_NE(reading.error.find(one.error), std::string::npos) << one.reason << ": " << reading.error;
    EXPECT_EQ(reading.error.find('\n'), std::string::npos) << one.reason;
  }
}

}  // namespace
