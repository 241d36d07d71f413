#include "plugin/InitialChoice.h"

#include "model/PageOffer.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"

namespace ZORVEL {

namespace {

void Choose(PageKind kind, unsigned int unique) {
  switch (kind) {
    case PageKind::Clothing:
      return;
    case PageKind::Poses:
      return Commands::SetSelectedPose(unique, false);
    case PageKind::Skins:
      return Commands::SetSelectedSkin(unique, false);
    case PageKind::Styles:
      return Commands::SetSelectedStyle(unique, false);
    case PageKind::Assets:
      // One that is worn already is worn once.
      if (!Selection2::CheckSelectedAsset(static_cast<int>(unique))) Commands::SetSelectedAsset(unique, false);
  }
}

}  // namespace

void InitialChoice::Make(const PageOffer& page) {
  for (const int unique : page.choice) Choose(page.kind, static_cast<unsigned int>(unique));
}

}  // namespace ZORVEL
