#include "host/materials/MaterialLibrary.h"

namespace host {

void MaterialLibrary::DeleteAll() {
  ZeroCount();
  materials_.clear();
}

void MaterialLibrary::Add(MtlBase* material) {
  materials_.emplace_back(material);
  Append(1, &material);
}

}  // namespace host
