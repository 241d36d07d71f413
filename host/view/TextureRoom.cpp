#include "host/view/TextureRoom.h"

#include <algorithm>

#include "host/meshes/MeshCache.h"

namespace host {

namespace {

constexpr std::size_t MEBIBYTE = std::size_t{1} << 20U;
/// Of 512 MiB, without what the program takes anyhow.
constexpr std::size_t MOST_TOGETHER = 412 * MEBIBYTE;
constexpr std::size_t MOST_KEPT = 256 * MEBIBYTE;
/// However much the meshes take.
constexpr std::size_t ALWAYS_KEPT = 32 * MEBIBYTE;
/// Ten of 8192 by 8192, which take about as many seconds as anybody waits.
constexpr std::size_t MOST_DECODED = 700'000'000;
constexpr std::size_t BYTES_OF_A_PIXEL = 4;

}  // namespace

TextureRoom& TextureRoom::instance() {
  static TextureRoom room;
  return room;
}

TextureRoom::TextureRoom() : kept_(MOST_KEPT), decoded_(MOST_DECODED) {}

/// A quarter of what is left for a large one, so that something is always left.
int TextureRoom::shrinkingOf(const QSize& size) const {
  const std::size_t meshes = std::min(roomForMeshes().taken(), MOST_TOGETHER);
  const std::size_t most = std::clamp(MOST_TOGETHER - meshes, ALWAYS_KEPT, MOST_KEPT);
  const std::size_t left = most - std::min(most, kept_.taken());
  const auto bytes = [&size](int factor) {
    const auto side = [factor](int pixels) { return static_cast<std::size_t>(std::max(1, pixels / factor)); };
    return side(size.width()) * side(size.height()) * BYTES_OF_A_PIXEL;
  };
  if (bytes(1) <= left / 4 * 3) return 1;
  int factor = 2;
  while (bytes(factor) > left / 4 && factor < std::max(size.width(), size.height())) ++factor;
  return factor;
}

/// What meshes take before they are ready for rays is about a quarter of what they take then.
bool TextureRoom::mayUse(std::size_t bytes) const {
  return bytes + kept_.taken() + roomForMeshes().taken() / 4 <= MOST_TOGETHER;
}

}  // namespace host
