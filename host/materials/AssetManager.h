#pragma once

#include <AssetManagement/iassetmanager.h>

#include <map>
#include <utility>

namespace host {

class AssetManager final : public MaxSDK::AssetManagement::IAssetManager {
 public:
  const MaxSDK::AssetManagement::AssetUser& GetAsset(const MSTR& fileName, MaxSDK::AssetManagement::AssetType type,
                                                     bool autoAcquire) override;

 private:
  std::map<std::pair<MSTR, MaxSDK::AssetManagement::AssetType>, MaxSDK::AssetManagement::AssetUser> assets_;
};

}  // namespace host
