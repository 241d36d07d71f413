#include "host/rays/RayScene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "host/rays/RayMesh.h"
#include "host/rays/Visibility.h"
#include "tests/host/meshes/Shapes.h"

using host::RayScene;
using host::SceneHit;
using host::ViewItem;
using shapes::expectNear;

namespace {

std::shared_ptr<const host::Mesh> sharedSquare() {
  static const auto square = std::make_shared<const host::Mesh>(shapes::square());
  return square;
}

ViewItem squareAt(const Point3& place, INode* node = nullptr) {
  ViewItem item;
  item.mesh = sharedSquare();
  item.toWorld.SetTrans(place);
  item.node = node;
  return item;
}

Ray ray(const Point3& from, const Point3& direction) {
  Ray result;
  result.p = from;
  result.dir = direction;
  return result;
}

/// Nodes are never looked into, so any two addresses do.
char places[2];
INode* const FIRST_NODE = reinterpret_cast<INode*>(&places[0]);
INode* const SECOND_NODE = reinterpret_cast<INode*>(&places[1]);

TEST(RayScene, MeasuresAScaledAndTurnedInstanceAlongARayOfAnyLength) {
  ViewItem item = squareAt({});
  item.toWorld.Scale({2, 3, 1});
  item.toWorld.RotateZ(std::acos(-1.0F) / 2);
  item.toWorld.Translate({10, 0, 5});
  RayScene scene;
  scene.setItems({squareAt({100, 0, 0}), item});
  // (0.5, -0.5, 0) of the square: scaled (1, -1.5), turned a quarter (1.5, 1), moved (11.5, 1, 5).
  const auto hit = scene.intersect(ray({11.5F, 1, 15}, {0, 0, -2.5F}));
  ASSERT_TRUE(hit);
  EXPECT_FLOAT_EQ(hit->distance, 4.0F);
  EXPECT_EQ(hit->item, 1U);
  EXPECT_EQ(hit->materialId, 0);
  expectNear(hit->position, {11.5F, 1, 5});
  expectNear(hit->normal, {0, 0, 1});
  EXPECT_NEAR(hit->texCoord.u, 0.75F, 1e-5F);
  EXPECT_NEAR(hit->texCoord.v, 0.25F, 1e-5F);
  EXPECT_EQ(scene.intersect(ray({8.4F, 1, 15}, {0, 0, -1}))->materialId, 1);
  EXPECT_FALSE(scene.intersect(ray({11.5F, 2.1F, 15}, {0, 0, -1})));
  EXPECT_FALSE(scene.intersect(ray({11.5F, 1, 15}, {0, 0, 1})));
  expectNear(scene.bounds().pmin, {7, -2, 0});
  expectNear(scene.bounds().pmax, {101, 2, 5});
}

TEST(RayScene, CarriesSmoothNormalsThroughUnevenScaleAndMirrors) {
  for (const float side : {1.0F, -1.0F}) {
    ViewItem item;
    item.mesh = shapes::sphere(1, {}, 64);
    item.toWorld.Scale({side, 1, 2});
    RayScene scene;
    scene.setItems({item});
    const auto hit = scene.intersect(ray({10, 0, 1}, {-1, 0, 0}));
    ASSERT_TRUE(hit);
    // On x^2 + y^2 + z^2/4 = 1 at z = 1 the gradient is (x, y, z/4).
    expectNear(hit->normal, Point3(std::sqrt(0.75F), 0, 0.25F).Normalize(), 5e-3F);
    EXPECT_GT(hit->faceNormal % hit->normal, 0.99F);
  }
}

TEST(RayScene, LooksThroughWhatTheFilterRefuses) {
  RayScene scene;
  scene.setItems({squareAt({0, 0, 3}, FIRST_NODE), squareAt({0, 0, 2}, FIRST_NODE), squareAt({0, 0, 1}, SECOND_NODE)});
  const Ray down = ray({0.5F, 0.2F, 10}, {0, 0, -1});
  EXPECT_EQ(scene.intersect(down)->item, 0U);
  const auto hit = scene.intersect(down, [](INode* node) { return node == SECOND_NODE; });
  ASSERT_TRUE(hit);
  EXPECT_EQ(hit->item, 2U);
  EXPECT_FLOAT_EQ(hit->distance, 9.0F);
  EXPECT_FALSE(scene.intersect(down, [](INode*) { return false; }));
}

TEST(RayScene, FindsWhatWasMovedInItsNewPlaceOnly) {
  RayScene scene;
  scene.setItems({squareAt({0, 0, 1}, FIRST_NODE), squareAt({0, 0, 2}, SECOND_NODE)});
  const Ray down = ray({0.5F, 0.2F, 10}, {0, 0, -1});
  const auto itemSeen = [&](const Ray& from) {
    const auto hit = scene.intersect(from);
    return hit ? static_cast<int>(hit->item) : -1;
  };
  Matrix3 away(TRUE);
  away.SetTrans({50, 0, 0});
  scene.moveItem(1, away);
  EXPECT_EQ(itemSeen(down), 0);
  EXPECT_EQ(itemSeen(ray({50.5F, 0.2F, 10}, {0, 0, -1})), 1);
  away.SetTrans({0, 0, 4});
  scene.moveItem(1, away);
  EXPECT_EQ(itemSeen(down), 1);
  EXPECT_EQ(scene.intersect(down, [](INode* node) { return node == FIRST_NODE; })->item, 0U);
  EXPECT_TRUE(scene.occluded(down, 6.5F));
  // Flattened to nothing it is not there, and it may come back.
  scene.moveItem(1, Matrix3(FALSE));
  scene.moveItem(0, Matrix3({0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}));
  EXPECT_FALSE(scene.occluded(ray({0.5F, 0.2F, 3.9F}, {0, 0, -1})));
  scene.moveItem(1, away);
  EXPECT_EQ(itemSeen(down), 1);
}

TEST(RayScene, IsOccludedUpToADistanceAndPastTranslucentSurfaces) {
  ViewItem glass = squareAt({0, 0, 5});
  glass.surfaces.resize(1);
  glass.surfaces[0].opacity = 0.3F;
  RayScene scene;
  scene.setItems({glass, squareAt({0, 0, 1})});
  const Ray down = ray({0.5F, 0.2F, 10}, {0, 0, -2});
  EXPECT_TRUE(scene.occluded(down));
  EXPECT_FALSE(scene.occluded(down, 2.4F));
  EXPECT_TRUE(scene.occluded(down, 2.6F));
  EXPECT_FALSE(scene.occluded(down, 2.6F, 0.5F));
  EXPECT_TRUE(scene.occluded(down, 4.6F, 0.5F));
}

TEST(RayScene, AnswersNothingForItemsAndRaysThatAreNone) {
  RayScene scene;
  EXPECT_TRUE(scene.bounds().IsEmpty());
  EXPECT_FALSE(scene.intersect(ray({}, {0, 0, 1})));
  ViewItem broken = squareAt({});
  broken.toWorld.SetTrans({std::nanf(""), 0, 0});
  scene.setItems({ViewItem(), broken, squareAt({})});
  EXPECT_FALSE(scene.intersect(ray({0, 0, 5}, {0, 0, 0})));
  EXPECT_FALSE(scene.intersect(ray({0, 0, 5}, {0, 0, std::nanf("")})));
  EXPECT_EQ(scene.intersect(ray({0.1F, 0.2F, 5}, {0, 0, -1}))->item, 2U);
}

TEST(RayScene, AsksTheRayCasterOnlyForWhatItCanMeasure) {
  const float infinite = std::numeric_limits<float>::infinity();
  const auto diagonal = [](float x, float y, float z) { return Matrix3({x, 0, 0}, {0, y, 0}, {0, 0, z}, {0, 0, 0}); };
  const auto moved = [](const Point3& place) {
    Matrix3 tm(TRUE);
    tm.SetTrans(place);
    return tm;
  };
  const struct {
    Matrix3 toWorld;
    host::Visibility expected;
  } cases[] = {{moved({9e9F, -9e9F, 9e9F}), host::Visibility::Shown},
               {diagonal(1e-5F, 1e-5F, 1e-5F), host::Visibility::Shown},
               {diagonal(1e9F, 1e-6F, -1), host::Visibility::Shown},
               {diagonal(0, 1, 1), host::Visibility::Nothing},
               {moved({1e19F, 0, 0}), host::Visibility::OutOfReach},
               {moved({0, -2e10F, 0}), host::Visibility::OutOfReach},
               {moved({0, 0, infinite}), host::Visibility::OutOfReach},
               {moved({std::nanf(""), 0, 0}), host::Visibility::OutOfReach},
               {diagonal(3e38F, 3e38F, 3e38F), host::Visibility::OutOfReach},
               {diagonal(1, 1, 1e-8F), host::Visibility::OutOfReach},
               {Matrix3({1, 0, 0}, {1, 1e-6F, 0}, {0, 0, 1}, {0, 0, 0}), host::Visibility::OutOfReach}};
  for (const auto& one : cases) {
    ViewItem item = squareAt({});
    item.toWorld = one.toWorld;
    EXPECT_EQ(host::visibilityOf(item), one.expected) << &one - cases;
    RayScene scene;
    scene.setItems({item, squareAt({})});
    scene.moveItem(1, one.toWorld);
    for (const float far : {0.0F, 9e9F, 9e10F, 1e19F, 3e38F, infinite}) {
      for (const Point3& from : {Point3(far, 0.1F, 0.2F), Point3(0.1F, 0.1F, far)}) {
        scene.intersect(ray(from, Point3(0.1F, 0.1F, 0) - from));
        scene.occluded(ray(from, {0, 0, -1}), far);
        host::intersect(sharedSquare(), ray(from, {-far, 0, -1e-30F}));
      }
    }
  }
  auto huge = std::make_shared<host::Mesh>(shapes::square());
  huge->positions[0].x = 1e19F;
  completeMesh(*huge);
  EXPECT_FALSE(host::intersect(huge, ray({0, 0, 5}, {0, 0, -1})));
}

TEST(RayMesh, IsHitInItsOwnSpaceFromEitherSide) {
  const auto hit = host::intersect(sharedSquare(), ray({0.5F, -0.5F, -8}, {0, 0, 4}));
  ASSERT_TRUE(hit);
  EXPECT_FLOAT_EQ(hit->distance, 2.0F);
  EXPECT_EQ(hit->triangle, 0U);
  expectNear(hit->normal, {0, 0, 1});
  EXPECT_FALSE(host::intersect(sharedSquare(), ray({0.5F, -0.5F, -8}, {0, 0, -4})));
  EXPECT_FALSE(host::intersect(nullptr, ray({}, {0, 0, 1})));
}

TEST(RayMesh, IsPreparedOncePerMeshAndNotConfusedByAnotherAtTheSameAddress) {
  auto mesh = std::make_shared<host::Mesh>(shapes::square());
  const auto prepared = host::RayMesh::of(mesh);
  EXPECT_EQ(host::RayMesh::of(mesh), prepared);
  mesh.reset();
  for (int i = 0; i < 16; ++i) {
    auto higher = std::make_shared<host::Mesh>(shapes::square());
    for (Point3& p : higher->positions) p.z = static_cast<float>(i);
    EXPECT_FLOAT_EQ(host::intersect(higher, ray({0, 0.1F, 20}, {0, 0, -1}))->distance, 20.0F - static_cast<float>(i));
  }
}

}  // namespace
