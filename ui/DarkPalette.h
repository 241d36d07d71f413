#pragma once

#include <QPalette>

namespace ZORVEL {

/// Background of the lists and pages, and white text on it.
QPalette DarkPalette(const QPalette& base);

}  // namespace ZORVEL
