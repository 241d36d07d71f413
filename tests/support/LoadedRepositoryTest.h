#pragma once

#include "tests/support/LocalAppData.h"
#include "tests/support/LogStoreTest.h"
#include "tests/support/SmallRepository.h"

namespace support {

/// A test on an empty scene with the small repository loaded and its first choice selected: character c1, clothing k1,
/// pose p1, skin s1, style k1m1, no assets.
class LoadedRepositoryTest : public LogStoreTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  const SmallRepository& repository() const { return repository_; }
  /// Chooses an asset of c1, a global asset, or with a second id one of its materials.
  static void addAsset(const wchar_t* id, const wchar_t* material = nullptr);

 private:
  LocalAppData appData_;
  SmallRepository repository_;
};

}  // namespace support
