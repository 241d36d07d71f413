#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// What `zorvel create` is asked for; ids as in the description, those left out are chosen.
struct CreateOptions {
  std::filesystem::path repository;
  std::optional<std::string> character;
  std::optional<std::string> cloth;
  std::optional<std::string> pose;
  std::optional<std::string> skin;
  std::optional<std::string> style;
  /// ID or ID:MATERIAL.
  std::vector<std::string> assets;
  /// Leaves out what the clothing selects and required categories ask for.
  bool bare = false;
  /// One of the UNITS_ constants; of a new scene.
  int unit;
  /// A scene file to build into; empty for a new scene.
  std::filesystem::path into;
  /// Where it stands, in scene units, and how far it is turned about Z, in degrees.
  std::array<float, 3> at = {0.0F, 0.0F, 0.0F};
  float turn = 0.0F;
  /// Files to write; empty for none.
  std::filesystem::path picture;
  std::filesystem::path gltf;
  std::filesystem::path json;
  /// Of the picture, in pixels.
  int width = 960;
  int height = 600;
  /// From where to where the picture looks, in scene units; both or neither. Otherwise everything is in it.
  std::optional<std::array<float, 3>> eye;
  std::optional<std::array<float, 3>> target;
};

}  // namespace cli
