#pragma once

#include <gup.h>

namespace ZORVEL {

/// The plug-in as the host sees it: brings everything up in Start and takes it down in Stop.
class zorvel : public GUP {
 public:
  ~zorvel() override = default;

  /// Always GUPRESULT_KEEP: a plug-in whose settings cannot be loaded stays, without action and notifications.
  DWORD Start() override;
  void Stop() override;
  DWORD_PTR Control(DWORD parameter) override;
  IOResult Save(ISave* isave) override;
  IOResult Load(ILoad* iload) override;
  void DeleteThis() override;
};

}  // namespace ZORVEL
