#pragma once

#include <QColor>
#include <QSize>
#include <filesystem>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace support {

/// A repository with pictures, for the window: Anna (c1) with four clothes of which two are there, and something of
/// every kind to choose; Ben (c2) with seven clothes. See the source for what is where.
class WindowRepository {
 public:
  WindowRepository();

  const TemporaryFolder& folder() const { return folder_; }
  /// As the settings hold it: with a trailing backslash.
  std::wstring root() const { return folder_.wide() + L"\\"; }
  void writePicture(const std::filesystem::path& relative, const QSize& size, const QColor& color) const;
  void remove(const std::filesystem::path& relative) const;

 private:
  void writeAnna() const;
  void writeBen() const;

  TemporaryFolder folder_;
};

}  // namespace support
