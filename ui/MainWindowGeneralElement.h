#pragma once

#include "ui/MainWindowElementBase.h"

namespace ZORVEL {

/// A skin or an asset.
class MainWindowGeneralElement : public MainWindowElementBase {
 private:
  QSize GetPictureSize() const override { return BoxOf(PageKind::Skins); }
  QSize GetCheckBoxSize() const override { return QSize(150, 50); }
};

}  // namespace ZORVEL
