#include <benchmark/benchmark.h>
#include <embree3/rtcore.h>

#include <algorithm>
#include <thread>
#include <vector>

#include "bench/PlacingScene.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/modes/MouseFeed.h"
#include "host/rays/InstanceScene.h"
#include "host/view/PixelTracer.h"
#include "host/view/Renderer.h"
#include "host/view/SamplePattern.h"

namespace {

using bench::PlacingScene;

constexpr int CHARACTERS = 1000;
constexpr int WIDTH = 960;
constexpr int HEIGHT = 600;
constexpr std::uint32_t SKY_RAYS = 3;
const Point3 SUN = Point3(-0.5F, -0.6F, 0.8F).Normalize();

struct Region {
  int left, top, right, bottom;
};

/// Calls `draw(x, y)` for every pixel, lines shared out between two threads.
template <class Draw>
void forEachPixel(const Region& region, const Draw& draw) {
  const auto lines = [&](int first) {
    for (int y = region.top + first; y < region.bottom; y += 2) {
      for (int x = region.left; x < region.right; ++x) draw(x, y);
    }
  };
  std::thread other(lines, 1);
  lines(0);
  other.join();
}

host::RenderOptions oneSample() {
  host::RenderOptions options;
  options.width = WIDTH;
  options.height = HEIGHT;
  options.samples = 1;
  options.background = host::RenderOptions::Background::Transparent;
  return options;
}

/// Where the box is in the picture.
Region regionOf(const host::Camera& camera, const Box3& box) {
  Region region{WIDTH, HEIGHT, 0, 0};
  for (int corner = 0; corner < 8; ++corner) {
    const auto place =
        camera.project({(corner & 1) != 0 ? box.pmax.x : box.pmin.x, (corner & 2) != 0 ? box.pmax.y : box.pmin.y,
                        (corner & 4) != 0 ? box.pmax.z : box.pmin.z},
                       WIDTH, HEIGHT);
    if (!place) return {0, 0, WIDTH, HEIGHT};
    region.left = std::clamp(std::min(region.left, static_cast<int>(place->x()) - 1), 0, WIDTH);
    region.top = std::clamp(std::min(region.top, static_cast<int>(place->y()) - 1), 0, HEIGHT);
    region.right = std::clamp(std::max(region.right, static_cast<int>(place->x()) + 2), 0, WIDTH);
    region.bottom = std::clamp(std::max(region.bottom, static_cast<int>(place->y()) + 2), 0, HEIGHT);
  }
  return region;
}

void draw(PlacingScene& scene, const Region& region) {
  const host::Camera camera = scene.view().camera();
  const host::RenderOptions options = oneSample();
  const host::PixelTracer tracer(scene.sceneView().rays(), camera, options);
  forEachPixel(region, [&](int x, int y) { benchmark::DoNotOptimize(tracer.pixel(x, y)); });
}

void fullFrame(benchmark::State& state) {
  PlacingScene& scene = PlacingScene::ofSize(CHARACTERS);
  for (auto _ : state) draw(scene, {0, 0, WIDTH, HEIGHT});
}
BENCHMARK(fullFrame)->Unit(benchmark::kMillisecond)->UseRealTime();

/// A mouse move and the part of the picture that it changes, shown small: the whole character is a tenth of the height.
void redrawAfterMove(benchmark::State& state) {
  PlacingScene& scene = PlacingScene::ofSize(CHARACTERS);
  host::MouseFeed feed(host::Application::instance().modes(), scene.view().GetHWnd());
  feed.move(0, scene.nextPixel());
  scene.sceneView().takeChanges();
  for (auto _ : state) {
    feed.move(0, scene.nextPixel());
    draw(scene, regionOf(scene.view().camera(), scene.sceneView().takeChanges().bounds));
  }
}
BENCHMARK(redrawAfterMove)->Unit(benchmark::kMillisecond)->UseRealTime();

/// As many rays of the same kinds as a frame casts, by the ray-casting library alone: one from the eye for each pixel,
/// and where it hits one to the sun and three to the sky.
void raysOfAFrameAlone(benchmark::State& state) {
  PlacingScene& scene = PlacingScene::ofSize(CHARACTERS);
  const host::Camera camera = scene.view().camera();
  host::InstanceScene level;
  const std::vector<host::ViewItem>& items = scene.sceneView().rays().items();
  for (std::size_t i = 0; i < items.size(); ++i) {
    level.place(static_cast<unsigned>(i), host::RayMesh::of(items[i].mesh), items[i].toWorld);
  }
  level.commit();
  const auto cast = [&](int x, int y) {
    const Ray from = camera.rayThrough(static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F, WIDTH, HEIGHT);
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRayHit query = {};
    query.ray.org_x = from.p.x;
    query.ray.org_y = from.p.y;
    query.ray.org_z = from.p.z;
    query.ray.dir_x = from.dir.x;
    query.ray.dir_y = from.dir.y;
    query.ray.dir_z = from.dir.z;
    query.ray.tfar = 1e30F;
    query.ray.mask = ~0U;
    query.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    rtcIntersect1(level.scene(), &context, &query);
    if (query.hit.geomID == RTC_INVALID_GEOMETRY_ID) return;
    const Point3 place = from.p + from.dir * (query.ray.tfar * 0.9999F);
    const host::SamplePattern pattern(x, y);
    for (std::uint32_t i = 0; i <= SKY_RAYS; ++i) {
      const Point3 direction =
          i == SKY_RAYS ? SUN
                        : host::cosineDirection(Point3(0, 0, 1), pattern.pair(host::SamplePattern::SKY, i, SKY_RAYS));
      RTCRay up = query.ray;
      up.org_x = place.x;
      up.org_y = place.y;
      up.org_z = place.z;
      up.dir_x = direction.x;
      up.dir_y = direction.y;
      up.dir_z = direction.z;
      up.tnear = 0.0F;
      up.tfar = 1e30F;
      rtcOccluded1(level.scene(), &context, &up);
      benchmark::DoNotOptimize(up.tfar);
    }
  };
  for (auto _ : state) forEachPixel({0, 0, WIDTH, HEIGHT}, cast);
}
BENCHMARK(raysOfAFrameAlone)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
