#pragma once

#include <optional>

#include "apps/support/LoadedRepository.h"
#include "scene/BuildReport.h"
#include "tests/support/LogStoreFixture.h"
#include "tests/support/SmallRepository.h"

class INode;

namespace support {

/// A test on an empty scene with the small repository loaded and its first choice selected: character c1, clothing k1,
/// pose p1, skin s1, style k1m1, no assets.
class LoadedRepositoryFixture : public LogStoreFixture {
 protected:
  void SetUp() override;
  void TearDown() override;

  const SmallRepository& repository() const { return repository_; }
  /// Chooses an asset of c1, a global asset, or with a second id one of its materials.
  static void addAsset(const wchar_t* id, const wchar_t* material = nullptr);
  /// Reads the description again; the selection stays, as far as it is of ids that are texts.
  void reload();
  /// What the builder answers.
  INode* build();
  /// Of the last build.
  const ZORVEL::BuildReport& report() const { return report_; }

 private:
  SmallRepository repository_;
  std::optional<apps::LoadedRepository> loaded_;
  ZORVEL::BuildReport report_;
};

}  // namespace support
