#pragma once

namespace MaxSDK {
namespace AssetManagement {

enum AssetType { kOtherAsset, kBitmapAsset, kXRefAsset, kPhotometricAsset };

}  // namespace AssetManagement
}  // namespace MaxSDK
