#pragma once

#include <QImage>
#include <QString>
#include <string>

namespace ZORVEL {

/// Reads picture files of any type that the toolkit knows, told by their content whatever their names say.
class PictureReader {
 public:
  /// The upper left corner of the picture, no larger than `box`. Null, and `problem` says why in a few words, for what
  /// is no picture, is cut off, or has more than 64 million pixels, which are refused before they are decoded.
  static QImage Read(const std::wstring& path, const QSize& box, QString& problem);
};

}  // namespace ZORVEL
