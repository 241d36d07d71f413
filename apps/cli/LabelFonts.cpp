#include "apps/cli/LabelFonts.h"

#include <algorithm>

namespace cli {

LabelFonts::LabelFonts(const std::vector<host::ViewItem>& items) {
  const auto isLabelled = [](const host::ViewItem& item) { return !item.label.empty(); };
  if (QCoreApplication::instance() != nullptr || std::none_of(items.begin(), items.end(), isLabelled)) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  runtimeFolder_.emplace();
  application_ = std::make_unique<QGuiApplication>(argumentCount_, nullptr);
}

}  // namespace cli
