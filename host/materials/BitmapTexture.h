#pragma once

#include <stdmat.h>

namespace host {

/// A texture read from a picture file; changing the file is recorded while theHold holds.
class BitmapTexture final : public BitmapTex {
 public:
  using Asset = MaxSDK::AssetManagement::AssetUser;

  explicit BitmapTexture(const MSTR& fileName) : map_(fileName, MaxSDK::AssetManagement::kBitmapAsset) {}

  void SetMap(const Asset& map) override;
  const Asset& GetMap() const override { return map_; }
  const MCHAR* GetMapName() override { return map_.GetFileName(); }
  void ReloadBitmapAndUpdate() override;

 private:
  Asset map_;
};

}  // namespace host
