#pragma once

#include <maxtypes.h>

namespace host {

/// The classes that the host can make by id.
class ClassRegistry {
 public:
  /// An Object, Mtl or Texmap according to the super class, that nobody refers to yet; null for an unknown pair of ids.
  void* create(SClass_ID superClass, Class_ID id) const;
  /// Without the renderer there are no proxies.
  void setRendererPresent(bool present) { rendererPresent_ = present; }

 private:
  bool rendererPresent_ = true;
};

}  // namespace host
