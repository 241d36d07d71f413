#include "host/files/PictureForm.h"

#include <QIODevice>
#include <QImageReader>
#include <QtEndian>

namespace host {

namespace {

constexpr qint64 BEGINNING = 32;
/// A picture of 8192 by 8192 pixels has some ten thousand.
constexpr int MOST_CHUNKS = 100'000;
/// Each may unpack to eight million bytes.
constexpr int MOST_PACKED_TEXTS = 8;
/// A progressive JPEG has ten; each is a walk over all pixels, and may take forty bytes.
constexpr int MOST_SCANS = 200;

PictureForm refused(const char* problem) {
  PictureForm form;
  form.problem = problem;
  return form;
}

bool mayBePacked(const QByteArray& chunk) { return chunk == "zTXt" || chunk == "iTXt" || chunk == "iCCP"; }

/// One of three or four channels of eight bits, not interlaced.
bool shrinksWhileReading(const QByteArray& beginning) {
  const char channels = beginning.at(25);
  return beginning.at(24) == 8 && (channels == 2 || channels == 6) && beginning.at(28) == 0;
}

/// Leaves to the reader to say that the file is cut off or damaged.
PictureForm png(QIODevice& device, const QByteArray& beginning) {
  int packed = 0;
  qint64 at = 8;
  for (int chunk = 0; chunk < MOST_CHUNKS && packed <= MOST_PACKED_TEXTS; ++chunk) {
    const QByteArray header = device.seek(at) ? device.read(8) : QByteArray();
    if (header.size() < 8 || header.endsWith("IEND")) {
      return {"png", {}, shrinksWhileReading(beginning), false};
    }
    if (mayBePacked(header.mid(4))) ++packed;
    at += qint64{qFromBigEndian<quint32>(header.constData())} + 12;
  }
  return refused("the PNG file has too many parts beside its picture");
}

/// Markers stand alone behind an FF, which is followed by a zero where it is none.
PictureForm jpeg(QIODevice& device) {
  PictureForm form{"jpeg", {}, true, false};
  int scans = 0;
  bool isMarker = false;
  device.seek(0);
  for (QByteArray block = device.read(1 << 16); !block.isEmpty(); block = device.read(1 << 16)) {
    for (const char byte : block) {
      if (isMarker && byte == '\xC2') form.isProgressive = true;
      if (isMarker && byte == '\xDA') ++scans;
      isMarker = byte == '\xFF';
    }
    if (scans > MOST_SCANS) return refused("the JPEG file has too many scans");
  }
  return form;
}

/// The reader makes room for the canvas at the beginning of the file, even where it says itself that the picture is
/// smaller.
PictureForm gif(QIODevice& device) {
  const QByteArray canvas = device.seek(6) ? device.read(4) : QByteArray();
  device.seek(0);
  const QSize size = QImageReader(&device, "gif").size();
  if (canvas.size() < 4 || !size.isValid()) return {"gif", {}, false, false};
  const int width = qFromLittleEndian<quint16>(canvas.constData());
  const int height = qFromLittleEndian<quint16>(canvas.constData() + 2);
  if (width > size.width() || height > size.height()) return refused("the GIF file is far larger than its picture");
  return {"gif", {}, false, false};
}

PictureForm told(QIODevice& device) {
  device.seek(0);
  const QByteArray beginning = device.read(BEGINNING);
  if (beginning.startsWith("\x89PNG\r\n\x1A\n") && beginning.size() == BEGINNING) return png(device, beginning);
  if (beginning.startsWith("\xFF\xD8\xFF")) return jpeg(device);
  if (beginning.startsWith("GIF8")) return gif(device);
  if (beginning.startsWith("BM")) return {"bmp", {}, false, false};
  return refused("the file is no picture that is read (PNG, JPEG, GIF and BMP are)");
}

}  // namespace

PictureForm pictureForm(QIODevice& device) {
  PictureForm form = told(device);
  device.seek(0);
  return form;
}

}  // namespace host
