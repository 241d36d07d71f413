#include "host/materials/AssetManager.h"

#include "host/application/Application.h"

using MaxSDK::AssetManagement::AssetType;
using MaxSDK::AssetManagement::AssetUser;
using MaxSDK::AssetManagement::IAssetManager;

namespace host {

const AssetUser& AssetManager::GetAsset(const MSTR& fileName, AssetType type, bool /*autoAcquire*/) {
  return assets_.try_emplace({fileName, type}, fileName, type).first->second;
}

}  // namespace host

IAssetManager* IAssetManager::GetInstance() { return &host::Application::instance().assets(); }
