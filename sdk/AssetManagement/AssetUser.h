#pragma once

#include <AssetManagement/AssetType.h>
#include <strclass.h>

namespace MaxSDK {
namespace AssetManagement {

/// A small value that names a file; the file need not exist.
class AssetUser {
 public:
  AssetUser() = default;
  AssetUser(const MSTR& fileName, AssetType type) : fileName_(fileName), type_(type) {}
  /// The text as it was specified, unresolved.
  const MSTR& GetFileName() const { return fileName_; }
  AssetType GetType() const { return type_; }

 private:
  MSTR fileName_;
  AssetType type_ = kOtherAsset;
};

}  // namespace AssetManagement
}  // namespace MaxSDK
