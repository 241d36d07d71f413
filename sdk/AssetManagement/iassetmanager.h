#pragma once

#include <AssetManagement/AssetUser.h>

namespace MaxSDK {
namespace AssetManagement {

class IAssetManager {
 public:
  virtual ~IAssetManager() = default;
  static IAssetManager* GetInstance();
  /// Finds or makes the asset of that name and type; the reference stays good as long as the host runs.
  virtual const AssetUser& GetAsset(const MSTR& fileName, AssetType type, bool autoAcquire = true) = 0;
};

}  // namespace AssetManagement
}  // namespace MaxSDK
