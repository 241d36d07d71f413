#include "ui/PictureForm.h"

#include <QImageReader>
#include <QtEndian>

namespace ZORVEL {

namespace {

const char* const OUT_OF_PROPORTION = "it holds too much besides its pixels";
/// A picture of 8192 by 8192 pixels has some ten thousand.
const int MOST_CHUNKS = 100000;
/// Each may unpack to eight million bytes.
const int MOST_PACKED_TEXTS = 8;
/// A progressive JPEG has ten; each is a walk over all pixels, and may take forty bytes.
const int MOST_SCANS = 200;
const qint64 BLOCK = 1 << 16;

bool MayBePacked(const QByteArray& chunk) { return chunk == "zTXt" || chunk == "iTXt" || chunk == "iCCP"; }

/// Leaves to the reader to say that the file is cut off or damaged, here and below.
bool IsPngInProportion(QIODevice& device) {
  int packed = 0;
  qint64 at = 8;
  for (int chunk = 0; chunk < MOST_CHUNKS && packed <= MOST_PACKED_TEXTS; ++chunk) {
    const QByteArray header = device.seek(at) ? device.read(8) : QByteArray();
    if (header.size() < 8 || header.endsWith("IEND")) return true;
    if (MayBePacked(header.mid(4))) ++packed;
    at += qint64{qFromBigEndian<quint32>(reinterpret_cast<const uchar*>(header.constData()))} + 12;
  }
  return false;
}

/// Markers stand behind an FF, which is followed by a zero where it is none.
bool IsJpegInProportion(QIODevice& device) {
  int scans = 0;
  bool isMarker = false;
  device.seek(0);
  for (QByteArray block = device.read(BLOCK); !block.isEmpty() && scans <= MOST_SCANS; block = device.read(BLOCK)) {
    for (const char byte : block) {
      if (isMarker && byte == '\xDA') ++scans;
      isMarker = byte == '\xFF';
    }
  }
  return scans <= MOST_SCANS;
}

/// The reader makes room for the canvas at the beginning of the file, even where it says itself that the picture is
/// smaller.
bool IsGifInProportion(QIODevice& device) {
  const QByteArray canvas = device.seek(6) ? device.read(4) : QByteArray();
  device.seek(0);
  const QSize size = QImageReader(&device, "gif").size();
  if (canvas.size() < 4 || !size.isValid()) return true;
  const auto* sides = reinterpret_cast<const uchar*>(canvas.constData());
  return qFromLittleEndian<quint16>(sides) <= size.width() && qFromLittleEndian<quint16>(sides + 2) <= size.height();
}

QByteArray Tell(QIODevice& device, bool& isInProportion) {
  device.seek(0);
  const QByteArray beginning = device.read(8);
  if (beginning == "\x89PNG\r\n\x1A\n") {
    isInProportion = IsPngInProportion(device);
    return "png";
  }
  if (beginning.startsWith("\xFF\xD8\xFF")) {
    isInProportion = IsJpegInProportion(device);
    return "jpeg";
  }
  if (beginning.startsWith("GIF8")) {
    isInProportion = IsGifInProportion(device);
    return "gif";
  }
  return beginning.startsWith("BM") ? "bmp" : "";
}

}  // namespace

QByteArray PictureForm::Of(QIODevice& device, QString& problem) {
  bool isInProportion = true;
  const QByteArray form = Tell(device, isInProportion);
  device.seek(0);
  problem = isInProportion ? QString() : QString(OUT_OF_PROPORTION);
  if (form.isEmpty()) problem = QStringLiteral("it is not a picture (PNG, JPEG, GIF or BMP)");
  return problem.isEmpty() ? form : QByteArray();
}

}  // namespace ZORVEL
