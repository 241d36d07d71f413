#pragma once

#include <QColor>

namespace samples {

/// What a complexion is painted from.
struct Face {
  QColor skin;
  QColor lips;
  QColor brows;
  QColor iris;
  bool lashes = false;
  double beard = 0;     ///< 0.1 a shadow, 1 a full beard in the colour of the brows
  double freckles = 0;  ///< 0 none, 1 many
  double age = 0;       ///< 1 lines around eyes and mouth
};

}  // namespace samples
