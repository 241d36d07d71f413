#include "apps/cli/LabelFonts.h"

#include <algorithm>

namespace cli {

LabelFonts::LabelFonts(const std::vector<host::ViewItem>& items) {
  const auto isLabelled = [](const host::ViewItem& item) { return !item.label.empty(); };
  if (QCoreApplication::instance() != nullptr || std::none_of(items.begin(), items.end(), isLabelled)) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Where Qt would make a folder for what goes on while it runs; nothing here puts anything there.
  if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", "/");
  application_ = std::make_unique<QGuiApplication>(argumentCount_, nullptr);
}

}  // namespace cli
