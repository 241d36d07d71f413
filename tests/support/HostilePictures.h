#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <string>

namespace support {

/// The bytes of a picture of one colour, in a form as Qt calls it.
std::string encoded(const QSize& size, const char* form, QImage::Format format = QImage::Format_RGB32,
                    const QColor& color = Qt::black);
/// A head that promises 20,000 by 20,000 pixels, and nothing after it.
std::string hugePng();
/// A small picture with so many chunks that may unpack to far more than they are.
std::string pngWithPackedTexts(int count);
std::string progressiveJpeg(const QSize& size);
/// A small picture of so many scans, of which the first has it all.
std::string jpegWithScans(int count);
/// A picture of 7 by 5 pixels in the corner of a canvas.
std::string gifOnCanvas(int width, int height);

}  // namespace support
