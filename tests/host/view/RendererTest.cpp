#include "host/view/Renderer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "host/view/Texture.h"
#include "tests/host/meshes/Shapes.h"

using host::Camera;
using host::RayScene;
using host::RenderOptions;
using host::ViewItem;

namespace {

RenderOptions small() {
  RenderOptions options;
  options.width = 96;
  options.height = 60;
  options.samples = 8;
  return options;
}

ViewItem item(std::shared_ptr<const host::Mesh> mesh) {
  ViewItem result;
  result.mesh = std::move(mesh);
  return result;
}

/// A sphere of radius 10 that floats at a height of 30, in centimetres; `unit` is how many of them a scene unit has.
void fill(RayScene& scene, float unit) {
  ViewItem sphere = item(shapes::sphere(10, {0, 0, 30}, 48));
  const float scale = 1.0F / unit;
  sphere.toWorld.Scale({scale, scale, scale});
  sphere.label = L"unreadable";
  scene.setItems({sphere});
}

Camera fromAbove() { return Camera({0, 0, 200}, {0, 0, 0}); }

int brightness(const QImage& picture, const Camera& camera, const Point3& world) {
  const auto place = camera.project(world, picture.width(), picture.height());
  return qGray(picture.pixel(static_cast<int>(place->x()), static_cast<int>(place->y())));
}

/// What stands at 30 throws its shadow here, opposite to the sun.
const Point3 IN_SHADOW(20.2F, 20.2F, 0);
const Point3 IN_THE_OPEN(-20.2F, -20.2F, 0);

double meanDifference(const QImage& a, const QImage& b) {
  double sum = 0.0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
  }
  return sum / (a.width() * a.height());
}

TEST(Renderer, DrawsTheSamePictureOnEveryRunWithAnyNumberOfThreads) {
  RayScene scene;
  fill(scene, 1);
  RenderOptions options = small();
  const Camera camera = Camera::framing(scene.bounds(), 1.6F);
  options.threads = 1;
  const QImage first = host::render(scene, camera, options);
  ASSERT_FALSE(first.isNull());
  options.threads = 5;
  EXPECT_EQ(host::render(scene, camera, options), first);
}

TEST(Renderer, DrawsTheSamePictureInAnyUnit) {
  QImage first;
  for (const float unit : {1.0F, 2.54F, 100.0F, 0.001F}) {
    RayScene scene;
    fill(scene, unit);
    const QImage picture = host::render(scene, Camera::framing(scene.bounds(), 1.6F), small());
    if (first.isNull()) first = picture;
    EXPECT_LT(meanDifference(picture, first), 0.2) << unit;
  }
}

TEST(Renderer, CatchesTheShadowOnTheGroundAndOnlyThere) {
  RayScene scene;
  fill(scene, 1);
  RenderOptions options = small();
  const Camera camera = fromAbove();
  const QImage picture = host::render(scene, camera, options);
  EXPECT_LT(brightness(picture, camera, IN_SHADOW) + 40, brightness(picture, camera, IN_THE_OPEN));
  options.ground = false;
  const QImage bare = host::render(scene, camera, options);
  EXPECT_NEAR(brightness(bare, camera, IN_SHADOW), brightness(bare, camera, IN_THE_OPEN), 12);
}

TEST(Renderer, LeavesTheBackgroundTransparentExceptForShadow) {
  RayScene scene;
  fill(scene, 1);
  RenderOptions options = small();
  options.background = RenderOptions::Background::Transparent;
  const QImage picture = host::render(scene, fromAbove(), options);
  const auto alphaAt = [&](const Point3& world) {
    const auto place = fromAbove().project(world, picture.width(), picture.height());
    return qAlpha(picture.pixel(static_cast<int>(place->x()), static_cast<int>(place->y())));
  };
  EXPECT_EQ(alphaAt({0, 0, 30}), 255);
  EXPECT_NEAR(alphaAt(IN_SHADOW), 120, 60);
  EXPECT_LT(alphaAt(IN_THE_OPEN), 12);
  EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
}

TEST(Renderer, LaysTexturesTheRightWayUpAndLooksThroughTranslucentSurfaces) {
  QImage quarters(2, 2, QImage::Format_RGB32);
  quarters.setPixel(0, 0, qRgb(255, 0, 0));
  quarters.setPixel(1, 0, qRgb(0, 255, 0));
  quarters.setPixel(0, 1, qRgb(0, 0, 255));
  quarters.setPixel(1, 1, qRgb(255, 255, 255));
  ViewItem square = item(std::make_shared<const host::Mesh>(shapes::square()));
  square.surfaces.resize(1);
  square.surfaces[0].color = Color(0.8F, 0.8F, 0.8F);
  square.surfaces[0].texture = std::make_shared<const host::Texture>(quarters);
  RayScene scene;
  scene.setItems({square});
  RenderOptions options = small();
  options.ground = false;
  options.background = RenderOptions::Background::Transparent;
  const Camera camera({0, 0, 5}, {});
  const auto pixelAt = [&](float x, float y) {
    const auto place = camera.project({x, y, 0}, options.width, options.height);
    return host::render(scene, camera, options).pixel(static_cast<int>(place->x()), static_cast<int>(place->y()));
  };
  EXPECT_GT(qRed(pixelAt(-0.5F, 0.5F)), qGreen(pixelAt(-0.5F, 0.5F)) + 100);
  EXPECT_GT(qGreen(pixelAt(0.5F, 0.5F)), qRed(pixelAt(0.5F, 0.5F)) + 100);
  EXPECT_GT(qBlue(pixelAt(-0.5F, -0.5F)), qRed(pixelAt(-0.5F, -0.5F)) + 100);
  square.surfaces[0].opacity = 0.5F;
  scene.setItems({square});
  EXPECT_NEAR(qAlpha(pixelAt(0.5F, 0.5F)), 128, 2);
}

TEST(Renderer, StopsWhenCancelledAndRefusesSizesOutOfRange) {
  RayScene scene;
  fill(scene, 1);
  RenderOptions options = small();
  std::atomic<bool> cancel{false};
  options.cancel = &cancel;
  float last = 0.0F;
  options.progress = [&](float share) {
    EXPECT_GE(share, last);
    last = share;
  };
  EXPECT_FALSE(host::render(scene, fromAbove(), options).isNull());
  EXPECT_FLOAT_EQ(last, 1.0F);
  options.progress = [&](float) { cancel = true; };
  EXPECT_TRUE(host::render(scene, fromAbove(), options).isNull());
  options = small();
  options.width = 0;
  EXPECT_TRUE(host::render(scene, fromAbove(), options).isNull());
}

TEST(Camera, FramesEveryBoxWholeAndLargeInAnyShapeOfPicture) {
  for (const Point3& half : {Point3(30, 20, 90), Point3(400, 2, 3), Point3(0, 0, 1), Point3(0.001F, 0.002F, 0.001F)}) {
    for (const float aspect : {0.5F, 1.0F, 2.4F}) {
      Box3 box;
      box += Point3(5, 7, 9) - half;
      box += Point3(5, 7, 9) + half;
      const Camera camera = Camera::framing(box, aspect);
      const int width = static_cast<int>(1000 * aspect);
      double reach = 0.0;
      for (int i = 0; i < 8; ++i) {
        const Point3 corner((i & 1) != 0 ? box.pmin.x : box.pmax.x, (i & 2) != 0 ? box.pmin.y : box.pmax.y,
                            (i & 4) != 0 ? box.pmin.z : box.pmax.z);
        const auto place = camera.project(corner, width, 1000);
        ASSERT_TRUE(place);
        reach = std::max({reach, std::abs(place->x() / width - 0.5), std::abs(place->y() / 1000 - 0.5)});
      }
      EXPECT_LT(reach, 0.48);
      EXPECT_GT(reach, 0.40);
    }
  }
}

TEST(Camera, SendsRaysThroughThePixelThatAPlaceIsSeenIn) {
  const Camera camera({10, -300, 120}, {0, 0, 80});
  const Ray ray = camera.rayThrough(17.5F, 40.25F, 320, 200);
  EXPECT_NEAR(ray.dir.Length(), 1.0F, 1e-5F);
  const auto place = camera.project(ray.p + ray.dir * 250.0F, 320, 200);
  ASSERT_TRUE(place);
  EXPECT_NEAR(place->x(), 17.5, 0.01);
  EXPECT_NEAR(place->y(), 40.25, 0.01);
  EXPECT_FALSE(camera.project(camera.eye() - camera.forward(), 320, 200));
}

TEST(Renderer, GivesUpAPictureThatTakesTooLong) {
  RayScene scene;
  scene.setItems({item(std::make_shared<const host::Mesh>(shapes::square()))});
  const Camera camera({0, -10, 5}, {0, 0, 0});
  RenderOptions options = small();
  EXPECT_FALSE(render(scene, camera, options).isNull());
  options.mostSeconds = 0;
  options.samples = 256;
  EXPECT_TRUE(render(scene, camera, options).isNull());
}

}  // namespace
