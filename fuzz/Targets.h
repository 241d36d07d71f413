#pragma once

#include <string_view>
#include <vector>

namespace fuzz {

// What reads, one function for each form of input. Any bytes may be given; what has to hold afterwards is required, and
// the process ends where it does not.

/// A description: parsed, validated, chosen from as `zorvel create` does, and built.
void description(std::string_view bytes);
/// Glb, or its two parts: JSON, a zero, vertex data.
void gltf(std::string_view bytes);
void obj(std::string_view bytes);
void materials(std::string_view bytes);
/// A scene file: opened, saved, opened and saved again.
void scene(std::string_view bytes);
void picture(std::string_view bytes);
void settings(std::string_view bytes);
void resources(std::string_view bytes);
void script(std::string_view bytes);
/// A description, after a zero .zorvel-check.json.
void checker(std::string_view bytes);

struct Target {
  /// Of the function, and of its folders of seeds and kept cases.
  const char* name;
  void (*run)(std::string_view bytes);
};

const std::vector<Target>& targets();

}  // namespace fuzz
