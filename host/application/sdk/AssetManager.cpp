#include "host/materials/AssetManager.h"

#include "host/application/Application.h"

using MaxSDK::AssetManagement::IAssetManager;

IAssetManager* IAssetManager::GetInstance() { return &host::Application::instance().assets(); }
