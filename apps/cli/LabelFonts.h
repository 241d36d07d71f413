#pragma once

#include <QGuiApplication>
#include <memory>
#include <optional>
#include <vector>

#include "apps/support/RuntimeFolder.h"
#include "host/rays/ViewItem.h"

namespace cli {

/// The fonts for the labels of a picture, where it has any: for those there has to be an application. A display is
/// never asked for.
class LabelFonts {
 public:
  explicit LabelFonts(const std::vector<host::ViewItem>& items);

 private:
  std::optional<apps::RuntimeFolder> runtimeFolder_;
  int argumentCount_ = 0;
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace cli
