#pragma once

#include <AssetManagement/AssetUser.h>
#include <imtl.h>

class BitmapTex : public Texmap {
 public:
  Class_ID ClassID() override { return Class_ID(BMTEX_CLASS_ID, 0); }
  virtual void SetMap(const MaxSDK::AssetManagement::AssetUser& map) = 0;
  virtual const MaxSDK::AssetManagement::AssetUser& GetMap() const = 0;
  virtual const MCHAR* GetMapName() = 0;
  virtual void ReloadBitmapAndUpdate() = 0;
};
