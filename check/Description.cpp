#include "check/Description.h"

#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/RepositoryFormat.h"
#include "repository/DescriptionLimits.h"

namespace check {

using ZORVEL::XmlElement;

namespace {

std::string stepTo(const XmlElement& element) {
  const ZORVEL::XmlAttribute* id = element.FindAttribute(ZORVEL::RepositoryFormat::FIELD_ID);
  std::string step = host::toUtf8(element.name);
  if (id != nullptr) step += std::string("[") + id->text + ']';
  return step;
}

/// Each record has got its own while it was read; unique ids go up by ten.
std::size_t numberOf(const ZORVEL::DataContainer& record) {
  return static_cast<std::size_t>(ZORVEL::Data2::GetUnique(&record)) / 10;
}

}  // namespace

void Description::Noted(const ZORVEL::ParseNote& note) {
  notes_.push_back(note);
  if (note.kind != ZORVEL::ParseNoteKind::ClothingWithoutPreview) return;
  const XmlElement* list = note.source->parent;
  if (list != nullptr) charactersWithout_.insert(list->parent);
}

void Description::RecordRead(const ZORVEL::DataContainer& record, const XmlElement& element) {
  const std::size_t number = numberOf(record);
  if (elements_.size() <= number) elements_.resize(number + 1);
  elements_[number] = &element;
}

double Description::memoryLeft() const {
  if (!document_) return 0;
  const std::size_t budget = ZORVEL::DescriptionLimits::BudgetFor(document_->GetSize());
  return static_cast<double>(budget) - static_cast<double>(document_->GetCost());
}

const XmlElement* Description::elementOf(const ZORVEL::DataContainer* record) const {
  if (record == nullptr) return nullptr;
  const std::size_t number = numberOf(*record);
  return number < elements_.size() ? elements_[number] : nullptr;
}

std::string Description::pathOf(const XmlElement& element) const {
  std::string path;
  for (const XmlElement* step = &element; step != root() && step != nullptr; step = parentOf(*step)) {
    path = stepTo(*step) + (path.empty() ? "" : "/") + path;
  }
  return path;
}

}  // namespace check
