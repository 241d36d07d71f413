#include "host/view/Shader.h"

#include <algorithm>
#include <cmath>

#include "host/view/Lighting.h"
#include "host/view/Texture.h"

namespace host {

namespace {

constexpr std::uint32_t SKY_RAYS = 3;
/// How far, as a cosine, light creeps around the softest surface.
constexpr float CREEP_AT_MOST = 0.35F;
/// Of the distance to the eye: a tenth of a pixel, so that starting a ray this far off a surface never shows.
constexpr float LIFT_OFF = 1e-4F;
/// How much of a polished surface's light comes from a mirror image when it is looked at squarely.
constexpr float SQUARE_REFLECTION = 0.04F;

Color operator+(const Color& a, const Color& b) { return {a.r + b.r, a.g + b.g, a.b + b.b}; }
Color operator*(const Color& a, const Color& b) { return {a.r * b.r, a.g * b.g, a.b * b.b}; }
Color operator*(const Color& a, float f) { return {a.r * f, a.g * f, a.b * f}; }

Color baseColor(const Surface& surface, const TexCoord& coord) {
  return surface.texture ? surface.color * surface.texture->at(coord) : surface.color;
}

/// Schlick's rise of reflection towards grazing views.
float fresnel(float cosine, float highest) {
  const float away = 1.0F - std::clamp(cosine, 0.0F, 1.0F);
  const float square = away * away;
  return SQUARE_REFLECTION + (highest - SQUARE_REFLECTION) * square * square * away;
}

/// The sun's highlight: a GGX lobe with Smith's shadowing, as a factor of the sun's light.
float highlight(const Point3& normal, const Point3& toEye, const Point3& toSun, float roughness) {
  const float alpha = std::max(roughness * roughness, 0.02F);
  const Point3 half = (toEye + toSun).Normalize();
  const float sun = std::max(0.0F, normal % toSun);
  const float eye = std::max(1e-3F, normal % toEye);
  const float nh = std::max(0.0F, normal % half);
  const float spread = nh * nh * (alpha * alpha - 1.0F) + 1.0F;
  const float lobe = alpha * alpha / (spread * spread);
  const float k = alpha / 2.0F;
  const float shadowing = 1.0F / ((sun * (1.0F - k) + k) * (eye * (1.0F - k) + k));
  return std::min(3.0F, lobe * shadowing * fresnel(half % toEye, 1.0F) * sun / 4.0F);
}

/// How strongly the sun falls on a surface; light creeps around a soft one.
float sunFalloff(float cosine, float softness) {
  const float creep = CREEP_AT_MOST * softness;
  return std::max(0.0F, (cosine + creep) / (1.0F + creep));
}

struct Facing {
  Point3 normal;
  Point3 start;
};

/// The side of the surface that is seen, and where rays leave it.
Facing facing(const SceneHit& hit, const Point3& toEye) {
  const bool outside = hit.faceNormal % toEye >= 0.0F;
  const float side = outside ? 1.0F : -1.0F;
  const Point3 place = outside ? hit.smoothPosition : hit.position;
  return {hit.normal * side, place + hit.faceNormal * (side * LIFT_OFF * hit.distance)};
}

}  // namespace

Color Shader::light(const SceneHit& hit, const Ray& ray, const SampleSource& source) const {
  const Surface& surface = scene_.surface(hit.item, hit.materialId);
  const Color base = baseColor(surface, hit.texCoord);
  const Point3 toEye = -ray.dir;
  const auto [normal, start] = facing(hit, toEye);

  const float sunCosine = normal % sunDirection();
  const float diffuse = sunFalloff(sunCosine, surface.softness);
  // Light that creeps around a soft surface came in over its horizon.
  const Point3 tilt = normal * std::max(0.0F, surface.softness * CREEP_AT_MOST - sunCosine);
  Color result = base * skyReceived(start, normal, base * 0.35F, hit.distance, source);
  if (diffuse > 0.0F && sunSeen(start, tilt, source)) {
    const float shine = highlight(normal, toEye, sunDirection(), surface.roughness);
    result = result + base * sunLight() * diffuse + sunLight() * shine;
  }
  const float cosine = normal % toEye;
  const Point3 mirrored = normal * (2.0F * cosine) - toEye;
  const float reflected = fresnel(cosine, std::max(SQUARE_REFLECTION, 1.0F - surface.roughness));
  return result + skyFrom(start, mirrored, hit.distance) * (reflected * (1.0F - 0.6F * surface.roughness));
}

Color Shader::groundLight(const Point3& place, float eyeDistance, const SampleSource& source) const {
  const Point3 up(0, 0, 1);
  const Point3 start = place + up * (LIFT_OFF * eyeDistance);
  const Color direct = sunLight() * (sunDirection() % up);
  const Color open = openSkyLight();
  const Color sky = skyReceived(start, up, open * 0.12F, eyeDistance, source);
  const Color received = sunSeen(start, Point3(), source) ? sky + direct : sky;
  return {received.r / (open.r + direct.r), received.g / (open.g + direct.g), received.b / (open.b + direct.b)};
}

bool Shader::sunSeen(const Point3& start, const Point3& tilt, const SampleSource& source) const {
  Ray ray;
  ray.p = start;
  ray.dir = coneDirection(sunDirection(), SUN_RADIUS, source.pair(SamplePattern::SUN)) + tilt;
  return !scene_.occluded(ray, std::numeric_limits<float>::infinity(), source.pair(SamplePattern::OPACITY).x);
}

Color Shader::skyReceived(const Point3& start, const Point3& normal, const Color& nearby, float eyeDistance,
                          const SampleSource& source) const {
  Color sum;
  for (std::uint32_t i = 0; i < SKY_RAYS; ++i) {
    const SampleSource own{source.pattern, source.index * SKY_RAYS + i, source.count * SKY_RAYS};
    Ray ray;
    ray.p = start;
    ray.dir = cosineDirection(normal, own.pair(SamplePattern::SKY));
    const bool blocked =
        scene_.occluded(ray, std::numeric_limits<float>::infinity(), own.pair(SamplePattern::OPACITY).y);
    sum = sum + (blocked ? nearby : skyFrom(start, ray.dir, eyeDistance));
  }
  return sum * (1.0F / static_cast<float>(SKY_RAYS));
}

Color Shader::skyFrom(const Point3& start, const Point3& direction, float eyeDistance) const {
  const Color light = skyLight(direction);
  if (!ground_ || direction.z >= 0.0F || start.z <= 0.0F) return light;
  // Ground close by lies in the shade of what stands on it.
  const float way = start.z / -direction.z;
  return light * (way / (way + 0.02F * eyeDistance));
}

}  // namespace host
