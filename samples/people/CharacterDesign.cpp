#include "samples/people/CharacterDesign.h"

namespace samples {

const AssetDesign* CharacterDesign::asset(const std::string& assetKey) const {
  const auto found =
      std::find_if(assets.begin(), assets.end(), [&](const AssetDesign& asset) { return asset.key == assetKey; });
  return found == assets.end() ? nullptr : &*found;
}

const AssetDesign* CharacterDesign::support(const Pose& pose) const {
  if (pose.seated) return asset(seat);
  return pose.id == "leaning" ? asset(post) : nullptr;
}

}  // namespace samples
