#include "host/materials/AssetManager.h"

using MaxSDK::AssetManagement::AssetType;
using MaxSDK::AssetManagement::AssetUser;

namespace host {

const AssetUser& AssetManager::GetAsset(const MSTR& fileName, AssetType type, bool /*autoAcquire*/) {
  return assets_.try_emplace({fileName, type}, fileName, type).first->second;
}

}  // namespace host
