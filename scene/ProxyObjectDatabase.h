#pragma once

class Object;

namespace ZORVEL {

/// Which proxy object shows which mesh file, and how many nodes use it. Owns nothing: it forgets an object with its
/// last node.
class ProxyObjectDatabase {
 public:
  ProxyObjectDatabase() = delete;

  /// The object registered under exactly that name, counted as used once more; null when there is none.
  static Object* LookUp(const wchar_t* fileName);
  /// For a newly made object: it counts as used once.
  static void Add(Object* object, const wchar_t* fileName);
  /// One node less uses the object. An object that is not registered is passed over.
  static void Release(const Object* object);
  static void Clear();
};

}  // namespace ZORVEL
