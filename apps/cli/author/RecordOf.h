#pragma once

#include "apps/cli/author/Element.h"
#include "model/DataContainer.h"

namespace cli {

/// The record that the plug-in would make of an element, without its children: what paths are asked with.
class RecordOf {
 public:
  explicit RecordOf(const Element& element) {
    for (const auto& [name, value] : element.attributes) record_.SetData(name.c_str(), value.c_str());
  }
  const ZORVEL::DataContainer* get() const { return &record_; }

 private:
  ZORVEL::DataContainer record_;
};

}  // namespace cli
