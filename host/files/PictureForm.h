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
  /// Whether its reader makes a smaller picture without making the whole one first.
  bool shrinksWhileReading = false;
  /// Whether its reader keeps all that the picture is made from until the end.
  bool isProgressive = false;
};

/// Tells PNG, JPEG, GIF and BMP by their content, whatever the file is called; others are not read, so that no other
/// reader that Qt finds on a machine meets a stranger's bytes. Neither are those that would take a reader gigabytes or
/// minutes out of all proportion to their pixels. The device is at its beginning afterwards.
PictureForm pictureForm(QIODevice& device);

}  // namespace host
