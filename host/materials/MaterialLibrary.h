#pragma once

#include <MtlLib.h>

#include <vector>

#include "host/services/Ref.h"

namespace host {

class MaterialLibrary final : public MtlBaseLib {
 public:
  void DeleteAll() override;
  void Add(MtlBase* material) override;

 private:
  std::vector<Ref<MtlBase>> materials_;
};

}  // namespace host
