#include "ui/WebAddress.h"

#include <QDesktopServices>
#include <QUrl>

#include "core/Debug.h"

namespace ZORVEL {

namespace {

const int LONGEST_ADDRESS = 2048;

}  // namespace

bool WebAddress::IsAllowed(const QString& address) {
  if (address.size() > LONGEST_ADDRESS) return false;
  const QUrl url(address);
  const QString scheme = url.scheme();
  return url.isValid() && !url.host().isEmpty() &&
         (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

bool WebAddress::Open(const QString& address) {
  if (IsAllowed(address) && QDesktopServices::openUrl(QUrl(address))) return true;
  Debug::AddDebugMessage(DEBUG_WARNING, L"WebAddress::Open - address was not opened:");
  Debug::AddDebugMessage(DEBUG_WARNING, address.toStdWString().c_str());
  return false;
}

}  // namespace ZORVEL
