#include "host/formats/ObjectJson.h"

#include <cmath>

#include "host/files/Paths.h"
#include "host/formats/JsonValues.h"
#include "host/formats/Unreadable.h"
#include "host/meshes/Mesh.h"
#include "host/scene/CircleShape.h"
#include "host/scene/GroupHead.h"
#include "host/scene/LampHelper.h"
#include "host/scene/ProxyObject.h"
#include "host/scene/SurroundingsObject.h"

namespace host {

namespace {

using Json = nlohmann::ordered_json;

Json pointsJson(const std::vector<Point3>& points) {
  Json json = Json::array();
  for (const Point3& p : points) json.push_back({p.x, p.y, p.z});
  return json;
}

Json meshJson(const Mesh& mesh) {
  Json json;
  json["positions"] = pointsJson(mesh.positions);
  json["normals"] = pointsJson(mesh.normals);
  if (!mesh.texCoords.empty()) {
    for (const TexCoord& one : mesh.texCoords) json["texCoords"].push_back({one.u, one.v});
  }
  json["triangles"] = mesh.triangles;
  if (!mesh.materialIds.empty()) json["materialIds"] = mesh.materialIds;
  return json;
}

float finite(const Json& json) {
  const float number = floatFrom(json);
  if (!std::isfinite(number)) throw Unreadable("a mesh has a corner that is nowhere");
  return number;
}

std::vector<Point3> pointsFrom(const Json& json) {
  std::vector<Point3> points;
  for (const Json& one : json) points.emplace_back(finite(one.at(0)), finite(one.at(1)), finite(one.at(2)));
  return points;
}

Mesh::Triangle triangleFrom(const Json& json) {
  const auto corner = [&json](std::size_t i) { return integerFrom<std::uint32_t>(json.at(i)); };
  return {corner(0), corner(1), corner(2)};
}

void checkMesh(const Mesh& mesh) {
  const std::size_t count = mesh.positions.size();
  bool good = mesh.normals.size() == count && (mesh.texCoords.empty() || mesh.texCoords.size() == count) &&
              (mesh.materialIds.empty() || mesh.materialIds.size() == mesh.triangles.size());
  for (const Mesh::Triangle& corners : mesh.triangles) {
    for (const std::uint32_t corner : corners) good = good && corner < count;
  }
  for (const Point3& n : mesh.normals) good = good && std::abs(n.Length() - 1.0F) < 0.01F;
  if (!good) throw Unreadable("a mesh does not fit together");
}

/// The mesh as it was written, its normals not touched again, so that saving it gives the same text.
std::shared_ptr<const Mesh> meshFrom(const Json& json) {
  Mesh mesh;
  mesh.positions = pointsFrom(json.at("positions"));
  mesh.normals = pointsFrom(json.at("normals"));
  if (json.contains("texCoords")) {
    for (const Json& one : json.at("texCoords")) mesh.texCoords.push_back({finite(one.at(0)), finite(one.at(1))});
  }
  for (const Json& one : json.at("triangles")) mesh.triangles.push_back(triangleFrom(one));
  if (json.contains("materialIds")) {
    for (const Json& one : json.at("materialIds")) mesh.materialIds.push_back(integerFrom<std::uint16_t>(one));
  }
  checkMesh(mesh);
  for (const Point3& p : mesh.positions) mesh.bounds += p;
  return std::make_shared<const Mesh>(std::move(mesh));
}

void writeProxy(ProxyObject& proxy, Json& json) {
  json["file"] = toUtf8(proxy.fileName());
  Interval valid;
  float scale = 1.0F;
  proxy.GetParamBlock(0)->GetValue(ProxyObject::SCALE, 0, scale, valid);
  json["scale"] = scale;
  if (!proxy.problem().empty()) json["problem"] = proxy.problem();
}

Ref<Object> proxyFrom(const Json& json) {
  const Ref<ProxyObject> proxy(new ProxyObject);
  IParamBlock2& block = *proxy->GetParamBlock(0);
  block.SetValue(ProxyObject::FILE_NAME, 0, toWide(json.at("file").get<std::string>()).c_str());
  block.SetValue(ProxyObject::SCALE, 0, floatFrom(json.at("scale")));
  return Ref<Object>(proxy.get());
}

void writeSurroundings(SurroundingsObject& surroundings, bool known, Json& json) {
  if (!surroundings.fileName().empty()) {
    json["file"] = toUtf8(surroundings.fileName());
    if (!surroundings.problem().empty()) json["problem"] = surroundings.problem();
  } else if (!known) {
    json["mesh"] = meshJson(*surroundings.mesh());
  }
}

Ref<Object> surroundingsFrom(const Json& json) {
  if (json.contains("mesh")) return Ref<Object>(new SurroundingsObject(meshFrom(json.at("mesh"))));
  return Ref<Object>(new SurroundingsObject(toWide(json.at("file").get<std::string>())));
}

Ref<Object> circleFrom(const Json& json) {
  const float radius = floatFrom(json.at("radius"));
  auto* circle = new CircleShape;
  circle->SetValue(0, 0, radius);
  return Ref<Object>(circle);
}

Ref<Object> newObject(const Json& json) {
  const Class_ID id(integerFrom<std::uint32_t>(json.at("class").at(0)),
                    integerFrom<std::uint32_t>(json.at("class").at(1)));
  if (id == PROXY_OBJECT) return proxyFrom(json);
  if (id == SURROUNDINGS_OBJECT) return surroundingsFrom(json);
  if (id == LAMP_HELPER) return Ref<Object>(new LampHelper);
  if (id == Class_ID(CIRCLE_CLASS_ID, 0)) return circleFrom(json);
  if (id == Class_ID(DUMMY_CLASS_ID, 0)) return Ref<Object>(new GroupHead);
  throw Unreadable("it has an object of a class that this host does not have");
}

}  // namespace

Json ObjectWriter::object(Object& object) {
  Json json;
  json["class"] = {object.ClassID().PartA(), object.ClassID().PartB()};
  const auto entry = ids_.emplace(&object, static_cast<int>(ids_.size()) + 1);
  json[entry.second ? "id" : "ref"] = entry.first->second;
  if (auto* proxy = dynamic_cast<ProxyObject*>(&object)) writeProxy(*proxy, json);
  if (auto* around = dynamic_cast<SurroundingsObject*>(&object)) writeSurroundings(*around, !entry.second, json);
  if (auto* circle = dynamic_cast<CircleShape*>(&object)) {
    Interval valid;
    float radius = 0.0F;
    circle->GetValue(0, 0, radius, valid);
    json["radius"] = radius;
  }
  return json;
}

Ref<Object> ObjectReader::object(const Json& json) {
  if (json.contains("ref")) {
    const auto known = objects_.find(integerFrom<int>(json.at("ref")));
    if (known == objects_.end()) throw Unreadable("a reference leads nowhere");
    return known->second;
  }
  const Ref<Object> made = newObject(json);
  if (json.contains("id")) objects_[integerFrom<int>(json.at("id"))] = made;
  return made;
}

}  // namespace host
