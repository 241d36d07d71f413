#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace ZORVEL {

/// Looks into a picture file before one of the toolkit's readers does.
class PictureForm {
 public:
  PictureForm() = delete;

  /// The toolkit's name for PNG, JPEG, GIF and BMP, told by the content. Empty, and `problem` says why in a few words,
  /// for anything else, so that no other reader found on a machine meets a stranger's bytes, and for what would take a
  /// reader gigabytes or minutes out of all proportion to its pixels. The device is at its beginning afterwards.
  static QByteArray Of(QIODevice& device, QString& problem);
};

}  // namespace ZORVEL
