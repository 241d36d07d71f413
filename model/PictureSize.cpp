#include "model/PictureSize.h"

namespace ZORVEL {

PictureSize PictureSize::OfBox(PageKind kind) {
  switch (kind) {
    case PageKind::Clothing:
      return {110, 330};
    case PageKind::Poses:
    case PageKind::Styles:
      return {100, 300};
    case PageKind::Skins:
    case PageKind::Assets:
      break;
  }
  return {150, 150};
}

}  // namespace ZORVEL
