#pragma once

#include <string>

namespace ZORVEL {

/// Where one asset stands in one pose. The numbers are as written in the repository: centimetres and degrees.
struct AssetMatrixElement {
  std::wstring poseID;
  std::wstring assetID;
  float xpos = 0;
  float ypos = 0;
  float zpos = 0;
  float xrot = 0;
  float yrot = 0;
  float zrot = 0;
};

}  // namespace ZORVEL
