#include "samples/Plaza.h"

#include <cmath>

#include "host/application/Application.h"
#include "host/application/SceneFile.h"
#include "host/materials/MaterialClasses.h"
#include "host/meshes/SolidMesh.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "samples/Random.h"

namespace samples {
namespace {

using MeshPtr = std::shared_ptr<const host::Mesh>;

constexpr float WIDTH = 640;
constexpr float RISE = 16;
constexpr float TREAD = 42;
constexpr int STEPS = 4;
constexpr float FRONT = 60;  ///< where the lowest step begins
constexpr float TERRACE = 260;
constexpr float TOP = RISE * STEPS;
constexpr float BACK = FRONT + TREAD * (STEPS - 1) + TERRACE;
constexpr float PLANTER_Y = BACK - 80;
constexpr float PLANTER_HEIGHT = 46;

MeshPtr steps() {
  host::SolidMesh mesh;
  for (int i = 0; i < STEPS; ++i) {
    const auto step = static_cast<float>(i);
    const float depth = i + 1 == STEPS ? TERRACE : TREAD;
    const float from = FRONT + step * TREAD;
    mesh.addBox({-WIDTH / 2, from, 0}, {WIDTH / 2, from + depth, (step + 1) * RISE});
  }
  return mesh.finish();
}

/// Along both sides of the steps, a hand higher than the terrace.
MeshPtr walls() {
  host::SolidMesh mesh;
  for (const float side : {-1.0F, 1.0F}) {
    const float inner = side * WIDTH / 2;
    const float outer = inner + side * 46;
    mesh.addBox({std::min(inner, outer), FRONT - 40, 0}, {std::max(inner, outer), BACK, TOP + 10});
  }
  return mesh.finish();
}

MeshPtr planters() {
  host::SolidMesh mesh;
  for (const float x : {-220.0F, 220.0F}) {
    mesh.addBox({x - 62, PLANTER_Y - 30, TOP}, {x + 62, PLANTER_Y + 30, TOP + PLANTER_HEIGHT});
  }
  return mesh.finish();
}

/// A ball with dents, of latitudes and longitudes.
void addBush(host::Mesh& mesh, const Point3& centre, float radius, Random& random) {
  constexpr int rings = 24;
  constexpr int sides = 36;
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  for (int ring = 0; ring <= rings; ++ring) {
    const double latitude = M_PI * ring / rings;
    for (int side = 0; side < sides; ++side) {
      const double longitude = 2 * M_PI * side / sides;
      const auto length = static_cast<float>(radius * (0.90 + 0.13 * random.next()));
      mesh.positions.push_back(centre + Point3(static_cast<float>(std::sin(latitude) * std::cos(longitude)),
                                               static_cast<float>(std::sin(latitude) * std::sin(longitude)),
                                               static_cast<float>(std::cos(latitude)) * 0.8F) *
                                            length);
    }
  }
  for (std::uint32_t ring = 0; ring < rings; ++ring) {
    for (std::uint32_t side = 0; side < sides; ++side) {
      const std::uint32_t next = (side + 1) % sides;
      const std::uint32_t a = first + ring * sides + side;
      const std::uint32_t b = first + ring * sides + next;
      mesh.triangles.push_back({a, a + sides, b + sides});
      mesh.triangles.push_back({a, b + sides, b});
    }
  }
}

MeshPtr bushes() {
  host::Mesh mesh;
  Random random(7);
  constexpr float height = TOP + PLANTER_HEIGHT + 14;
  for (const float x : {-220.0F, 220.0F}) {
    for (const float along : {-36.0F, 2.0F, 38.0F}) addBush(mesh, {x + along, PLANTER_Y, height}, 34, random);
  }
  host::completeMesh(mesh);
  return std::make_shared<const host::Mesh>(std::move(mesh));
}

void add(const wchar_t* name, const MeshPtr& mesh, const wchar_t* materialName, Color color) {
  Mtl* material = host::createMaterial(host::STANDARD_MATERIAL);
  material->SetName(materialName);
  material->GetParamBlock(0)->SetValue(host::DIFFUSE_COLOR, 0, color);
  host::Node* node = host::Application::instance().scene().create(new host::SurroundingsObject(mesh));
  node->SetName(name);
  node->SetMtl(material);
}

}  // namespace

std::string writePlaza(const std::filesystem::path& file) {
  host::Application& application = host::Application::instance();
  application.reset();
  add(L"Steps", steps(), L"Limestone", {0.80F, 0.77F, 0.71F});
  add(L"Walls", walls(), L"Sandstone", {0.72F, 0.62F, 0.51F});
  add(L"Planters", planters(), L"Slate", {0.33F, 0.36F, 0.40F});
  add(L"Bushes", bushes(), L"Leaves", {0.32F, 0.44F, 0.22F});
  std::string error = host::saveScene(file);
  application.reset();
  return error;
}

}  // namespace samples
