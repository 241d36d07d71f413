#pragma once

#include <QDesktopServices>
#include <QStringList>
#include <QTextBrowser>
#include <QUrl>

namespace support {

/// Stands for the system's handler of addresses of the kinds a repository might name, and keeps what it was given.
class OpenedAddresses : public QTextBrowser {
 public:
  OpenedAddresses() {
    // A slot that takes an address is what the toolkit asks for; a text browser has one.
    for (const char* scheme : schemes()) QDesktopServices::setUrlHandler(scheme, this, "setSource");
  }
  ~OpenedAddresses() override {
    for (const char* scheme : schemes()) QDesktopServices::unsetUrlHandler(scheme);
  }
  void setSource(const QUrl& address) override { addresses_.append(address.toString()); }

  QStringList take() {
    const QStringList all = addresses_;
    addresses_.clear();
    return all;
  }

 private:
  static std::initializer_list<const char*> schemes() {
    static const auto all = {"http", "https", "file", "javascript", "ftp", "smb", "data", "mailto"};
    return all;
  }

  QStringList addresses_;
};

}  // namespace support
