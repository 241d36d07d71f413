#pragma once

#include <QColor>
#include <QSize>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace support {

/// A PNG of one colour.
void writePicture(const TemporaryFolder& folder, const std::string& file, const QSize& size,
                  const QColor& color = Qt::black);

}  // namespace support
