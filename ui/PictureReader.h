#pragma once

#include <QIODevice>
#include <QImage>
#include <QString>
#include <string>

namespace ZORVEL {

/// Reads picture files of the types that PictureForm tells by their content, whatever their names say.
class PictureReader {
 public:
  /// In pixels, without decoding the picture. Empty, and `problem` says why in a few words, for what is no picture or
  /// has more pixels than 8192 by 8192, or more than 256 MiB of them. The device is open for reading.
  static QSize Measure(QIODevice& device, QString& problem);
  /// The upper left corner of the picture, no larger than `box`. Null, and `problem` says why, for what cannot be
  /// measured, which is not decoded, and for what is cut off.
  static QImage Read(const std::wstring& path, const QSize& box, QString& problem);
};

}  // namespace ZORVEL
