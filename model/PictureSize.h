#pragma once

#include "model/PageOffer.h"

namespace ZORVEL {

/// In pixels.
struct PictureSize {
  /// Of the box that shows the pictures of a page, each from its upper left corner on; more of it is not seen.
  static PictureSize OfBox(PageKind kind);

  int width;
  int height;
};

}  // namespace ZORVEL
