#pragma once

#include <windows.h>

#include <cstddef>
#include <set>
#include <utility>
#include <vector>

namespace host {

/// Which activation contexts exist and which are in force, the last one on top. Balanced use leaves both empty.
class ActivationContexts {
 public:
  static ActivationContexts& instance();

  HANDLE create(const ACTCTXW& request);
  bool activate(HANDLE context, ULONG_PTR& cookie);
  bool deactivate(ULONG_PTR cookie);
  void release(HANDLE context) { existing_.erase(context); }

  std::size_t existing() const { return existing_.size(); }
  std::size_t active() const { return active_.size(); }

 private:
  std::set<HANDLE> existing_;
  std::vector<ULONG_PTR> active_;
  ULONG_PTR lastContext_ = 0;
  ULONG_PTR lastCookie_ = 0;
};

}  // namespace host
