#include "host/services/Notifications.h"

#include <algorithm>

namespace host {

void Notifications::add(NOTIFYPROC proc, void* param, int code) {
  registrations_.push_back({proc, param, code, ++lastSerial_});
}

bool Notifications::remove(NOTIFYPROC proc, void* param, int code) {
  const auto found = std::find_if(registrations_.begin(), registrations_.end(), [&](const Registration& one) {
    return one.proc == proc && one.param == param && one.code == code;
  });
  if (found == registrations_.end()) return false;
  registrations_.erase(found);
  return true;
}

void Notifications::broadcast(int code, void* callParam) {
  const std::vector<Registration> present = registrations_;
  for (const Registration& one : present) {
    const auto same = [&](const Registration& other) { return other.serial == one.serial; };
    if (one.code != code || std::none_of(registrations_.begin(), registrations_.end(), same)) continue;
    NotifyInfo info{code, callParam};
    one.proc(one.param, &info);
  }
}

}  // namespace host
