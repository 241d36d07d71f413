#include "check/Description.h"

#include "host/files/Paths.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::XmlElement;

namespace {

std::string stepTo(const XmlElement& element) {
  const wchar_t* id = element.FindAttribute(ZORVEL::RepositoryFormat::FIELD_ID);
  std::string step = host::toUtf8(element.name);
  if (id != nullptr) step += '[' + host::toUtf8(id) + ']';
  return step;
}

}  // namespace

void Description::DocumentRead(const std::shared_ptr<const ZORVEL::XmlDocument>& document) {
  document_ = document;
  std::vector<const XmlElement*> waiting = {&document->GetRoot()};
  while (!waiting.empty()) {
    const XmlElement* parent = waiting.back();
    waiting.pop_back();
    for (const XmlElement* child = parent->firstChild; child != nullptr; child = child->nextSibling) {
      parents_.emplace(child, parent);
      if (child->firstChild != nullptr) waiting.push_back(child);
    }
  }
}

void Description::RecordRead(const ZORVEL::DataContainer& record, const XmlElement& element) {
  elements_[&record] = &element;
}

const XmlElement* Description::elementOf(const ZORVEL::DataContainer* record) const {
  const auto found = elements_.find(record);
  return found != elements_.end() ? found->second : nullptr;
}

const XmlElement* Description::parentOf(const XmlElement& element) const {
  const auto found = parents_.find(&element);
  return found != parents_.end() ? found->second : nullptr;
}

std::string Description::pathOf(const XmlElement& element) const {
  std::string path;
  for (const XmlElement* step = &element; step != root() && step != nullptr; step = parentOf(*step)) {
    path = stepTo(*step) + (path.empty() ? "" : "/") + path;
  }
  return path;
}

}  // namespace check
