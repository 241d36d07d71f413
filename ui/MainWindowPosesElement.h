#pragma once

#include "ui/MainWindowElementBase.h"

namespace ZORVEL {

/// A pose, or a material of the clothing.
class MainWindowPosesElement : public MainWindowElementBase {
 private:
  QSize GetPictureSize() const override { return BoxOf(PageKind::Poses); }
  QSize GetCheckBoxSize() const override { return QSize(100, 50); }
};

}  // namespace ZORVEL
