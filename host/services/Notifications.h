#pragma once

#include <notify.h>

#include <vector>

namespace host {

/// Callbacks by code. One that unregisters others during a broadcast is honoured at once.
class Notifications {
 public:
  void add(NOTIFYPROC proc, void* param, int code);
  /// False when the triple is not registered.
  bool remove(NOTIFYPROC proc, void* param, int code);
  void broadcast(int code, void* callParam);
  std::size_t count() const { return registrations_.size(); }

 private:
  struct Registration {
    NOTIFYPROC proc;
    void* param;
    int code;
    unsigned serial;
  };

  std::vector<Registration> registrations_;
  unsigned lastSerial_ = 0;
};

}  // namespace host
