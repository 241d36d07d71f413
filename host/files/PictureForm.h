#pragma once

#include <QByteArray>
#include <string>

class QIODevice;

namespace host {

/// What is known of a picture before one of Qt's readers is given it.
struct PictureForm {
  /// As Qt calls it; empty for what is not read.
  QByteArray name;
  /// Why it is not read, in one line.
  std::string problem;
  /// Whether its reader makes a smaller picture without making the whole one first; JPEG by 2, 4 or 8.
  bool shrinksWhileReading = false;
  /// What its reader keeps until the end besides the picture, in bytes for each pixel: of progressive JPEG all that the
  /// picture is made from.
  double bytesKept = 0;
};

/// Tells PNG, JPEG, GIF and BMP by their content, whatever the file is called; others are not read, so that no other
/// reader that Qt finds on a machine meets a stranger's bytes. Neither are those that would take a reader gigabytes or
/// minutes out of all proportion to their pixels. The device is at its beginning afterwards.
PictureForm pictureForm(QIODevice& device);

}  // namespace host
