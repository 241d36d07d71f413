#pragma once

#include <string>

namespace ZORVEL {

/// Where one asset stands in one pose. The numbers are as written in the repository: centimetres and degrees.
struct AssetMatrixElement {
  std::wstring poseID;
  std::wstring assetID;
  float xpos;
  float ypos;
  float zpos;
  float xrot;
  float yrot;
  float zrot;
};

}  // namespace ZORVEL
