#include "apps/stage/document/Surroundings.h"

#include <hold.h>
#include <units.h>

#include "host/application/Application.h"
#include "host/files/Paths.h"
#include "host/materials/MaterialClasses.h"
#include "host/meshes/MeshFile.h"
#include "host/meshes/SolidMesh.h"
#include "host/scene/LampHelper.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"

namespace stage {

namespace {

host::Scene& scene() { return host::Application::instance().scene(); }

/// Names begin with "Stage": plug-ins take a material that the scene has before one of the same name in a library.
Mtl* plainMaterial(const wchar_t* name, Color color) {
  Mtl* material = host::createMaterial(host::STANDARD_MATERIAL);
  material->SetName(name);
  material->GetParamBlock(0)->SetValue(host::DIFFUSE_COLOR, 0, color);
  return material;
}

/// Meshes are in centimetres.
Matrix3 placeOf(const Point3& centimetres) {
  const auto unit = static_cast<float>(1.0 / GetMasterScale(UNITS_CENTIMETERS));
  Matrix3 tm(TRUE);
  tm.Scale({unit, unit, unit});
  tm.Translate(centimetres * unit);
  return tm;
}

void add(const wchar_t* name, Object* object, Mtl* material, const Point3& centimetres) {
  host::Node* node = scene().create(object);
  node->SetName(name);
  if (material != nullptr) node->SetMtl(material);
  Matrix3 tm = placeOf(centimetres);
  node->SetNodeTM(0, tm);
}

std::shared_ptr<const host::Mesh> steps() {
  constexpr float width = 120.0F;
  constexpr float rise = 18.0F;
  constexpr float depth = 34.0F;
  host::SolidMesh mesh;
  for (int i = 0; i < 4; ++i) {
    const auto step = static_cast<float>(i);
    mesh.addBox({-width / 2, step * depth, 0},
                {width / 2, (step + 1) * depth + (i == 3 ? 60.0F : 0.0F), (step + 1) * rise});
  }
  return mesh.finish();
}

std::shared_ptr<const host::Mesh> ramp() {
  host::SolidMesh mesh;
  mesh.addPrism({{0, 0, 0}, {0, 190, 0}, {0, 190, 55}}, -60, 60);
  return mesh.finish();
}

std::shared_ptr<const host::Mesh> table() {
  host::SolidMesh mesh;
  mesh.addBox({-75, -42, 71}, {75, 42, 75});
  for (const float x : {-68.0F, 61.0F}) {
    for (const float y : {-35.0F, 28.0F}) mesh.addBox({x, y, 0}, {x + 7, y + 7, 71});
  }
  return mesh.finish();
}

}  // namespace

void addSurroundings() {
  using host::SurroundingsObject;
  add(L"Steps", new SurroundingsObject(steps()), plainMaterial(L"Stage Stone", {0.62F, 0.61F, 0.59F}), {-210, 120, 0});
  add(L"Ramp", new SurroundingsObject(ramp()), plainMaterial(L"Stage Slate", {0.42F, 0.49F, 0.55F}), {0, 170, 0});
  add(L"Table", new SurroundingsObject(table()), plainMaterial(L"Stage Oak", {0.66F, 0.49F, 0.33F}), {210, 150, 0});
  add(L"Lamp", new host::LampHelper, nullptr, {210, 150, 310});
}

std::string importSurroundings(const std::filesystem::path& file) {
  const std::string error = host::readMeshFile(file).error;
  if (!error.empty()) return file.filename().string() + ": " + error;
  theHold.Begin();
  host::Node* node = scene().create(new host::SurroundingsObject(host::toWide(file.string())));
  node->SetName(host::toWide(file.stem().string()).c_str());
  Matrix3 tm = placeOf({});
  node->SetNodeTM(0, tm);
  scene().select(*node, true);
  theHold.Accept(L"Import Surroundings");
  return {};
}

}  // namespace stage
