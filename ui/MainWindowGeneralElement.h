#pragma once

#include "ui/MainWindowElementBase.h"

namespace ZORVEL {

/// A skin or an asset.
class MainWindowGeneralElement : public MainWindowElementBase {
 private:
  QSize GetPictureSize() const override { return QSize(150, 150); }
  QSize GetCheckBoxSize() const override { return QSize(150, 50); }
};

}  // namespace ZORVEL
