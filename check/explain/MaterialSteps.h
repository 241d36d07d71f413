#pragma once

#include "check/explain/Steps.h"
#include "check/rules/MaterialLibraryIndex.h"
#include "check/rules/Survey.h"

namespace check {

/// Which library holds the material that a record names, which ones were searched, and where its textures are.
class MaterialSteps {
 public:
  /// All must outlive this.
  MaterialSteps(const Survey& survey, MaterialLibraryIndex& libraries, Steps& steps)
      : survey_(survey), libraries_(libraries), steps_(steps) {}

  /// Of a skin, a style, an asset, a material of an asset. `owner` is put before what is said; may be empty.
  void add(const ZORVEL::DataContainer& record, const std::string& owner);

 private:
  void add(const UsedMaterial& used, const std::string& owner);
  void addTextures(const UsedMaterial& used, const std::wstring& library);
  std::string describe(const std::wstring& library);

  const Survey& survey_;
  MaterialLibraryIndex& libraries_;
  Steps& steps_;
};

}  // namespace check
