#pragma once

#include <string>
#include <vector>

#include "model/Refusal.h"

namespace ZORVEL {

class DataContainer;

/// What a page shows: one tab of the window, or its clothing strip.
enum class PageKind { Clothing, Poses, Skins, Styles, Assets };

/// One element as a page shows it. The records are borrowed from the store.
struct OfferedElement {
  const DataContainer* record = nullptr;
  /// The material of an asset that is offered once for each; null for all others.
  const DataContainer* style = nullptr;
  int unique = 0;
  std::wstring text;
  /// A file that exists, for what is shown; materials of clothing are shown without one too.
  std::wstring picturePath;
  /// Where to get what is not available.
  std::wstring url;
  /// Why it is not shown; for what is shown, why it is not available.
  Refusal refusal;

  bool IsAvailable() const { return refusal.why == WhyNot::Nothing; }
};

/// What a page offers for the present choice.
struct PageOffer {
  PageKind kind = PageKind::Clothing;
  std::wstring title;
  /// False for a category of which nothing is listed in the chosen pose.
  bool hasTab = true;
  /// Of a page of assets, else null.
  const DataContainer* category = nullptr;
  /// In the order in which they are shown.
  std::vector<OfferedElement> shown;
  /// In the order of the repository, each with the reason.
  std::vector<OfferedElement> hidden;
  /// What the page begins with: unique ids of shown elements, in the order in which they are chosen.
  std::vector<int> choice;
};

}  // namespace ZORVEL
