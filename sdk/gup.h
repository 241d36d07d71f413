#pragma once

#include <ifnpub.h>
#include <maxtypes.h>

class ISave;
class ILoad;

constexpr DWORD GUPRESULT_KEEP = 0x00;
constexpr DWORD GUPRESULT_NOKEEP = 0x01;
constexpr DWORD GUPRESULT_ABORT = 0x03;

/// A global utility plug-in: started once the host is up, stopped before it goes down.
class GUP : public InterfaceServer {
 public:
  /// One of the GUPRESULT_ values: KEEP keeps the object until Stop.
  virtual DWORD Start() = 0;
  virtual void Stop() = 0;
  virtual DWORD_PTR Control(DWORD /*parameter*/) { return 0; }
  virtual IOResult Save(ISave* /*save*/) { return IO_OK; }
  virtual IOResult Load(ILoad* /*load*/) { return IO_OK; }
  virtual void DeleteThis() = 0;
};
