#include "fuzz/Targets.h"

namespace fuzz {

const std::vector<Target>& targets() {
  static const std::vector<Target> all = {
      {"description", description}, {"gltf", gltf},           {"obj", obj},
      {"materials", materials},     {"scene", scene},         {"picture", picture},
      {"settings", settings},       {"resources", resources}, {"script", script},
      {"checker", checker},
  };
  return all;
}

}  // namespace fuzz
