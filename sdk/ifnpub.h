#pragma once

#include <maxheap.h>
#include <maxtypes.h>

class BaseInterface {
 public:
  virtual ~BaseInterface() = default;
  virtual Interface_ID GetID() { return Interface_ID(); }
};

class InterfaceServer : public MaxHeapOperators {
 public:
  virtual ~InterfaceServer() = default;
  /// Borrowed; null for an interface that the class does not have.
  virtual BaseInterface* GetInterface(Interface_ID /*id*/) { return nullptr; }
};

class FPValue;
