#pragma once

#include <ref.h>

#include <utility>

namespace host {

class ReferenceCount {
 public:
  static void add(ReferenceTarget& target) { ++target.dependents_; }
  static void remove(ReferenceTarget& target) {
    if (--target.dependents_ == 0) target.DeleteThis();
  }
};

/// Refers to a target of the scene; the target ends with the last of these.
template <class T>
class Ref {
 public:
  Ref() = default;
  Ref(T* target) : target_(target) {
    if (target_ != nullptr) ReferenceCount::add(*target_);
  }
  Ref(const Ref& other) : Ref(other.target_) {}
  Ref(Ref&& other) noexcept : target_(std::exchange(other.target_, nullptr)) {}
  Ref& operator=(Ref other) noexcept {
    std::swap(target_, other.target_);
    return *this;
  }
  ~Ref() {
    if (target_ != nullptr) ReferenceCount::remove(*target_);
  }

  T* get() const { return target_; }
  T* operator->() const { return target_; }
  T& operator*() const { return *target_; }
  explicit operator bool() const { return target_ != nullptr; }
  bool operator==(const Ref& other) const { return target_ == other.target_; }
  bool operator!=(const Ref& other) const { return target_ != other.target_; }

 private:
  T* target_ = nullptr;
};

}  // namespace host
