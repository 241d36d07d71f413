#pragma once

#include <QString>

namespace ZORVEL {

/// The one place where the plug-in opens something outside.
class WebAddress {
 public:
  /// Only addresses of the web, with a host; anything else that a description may name is not opened.
  static bool IsAllowed(const QString& address);
  /// Opens the address with the system's default handler. False when it is not allowed or nothing takes it.
  static bool Open(const QString& address);
};

}  // namespace ZORVEL
