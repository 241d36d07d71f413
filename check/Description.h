#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "repository/ParseObserver.h"
#include "repository/XmlDocument.h"

namespace check {

/// Where every record of a repository stands in its description. Listens while that is read, and keeps the document
/// afterwards.
class Description : public ZORVEL::ParseObserver {
 public:
  void Noted(const ZORVEL::ParseNote& note) override { notes_.push_back(note); }
  void DocumentRead(const std::shared_ptr<const ZORVEL::XmlDocument>& document) override;
  void RecordRead(const ZORVEL::DataContainer& record, const ZORVEL::XmlElement& element) override;

  const std::vector<ZORVEL::ParseNote>& notes() const { return notes_; }
  /// Null when no document could be read.
  const ZORVEL::XmlElement* root() const { return document_ ? &document_->GetRoot() : nullptr; }
  /// Null for a record that no element was read into.
  const ZORVEL::XmlElement* elementOf(const ZORVEL::DataContainer* record) const;
  /// Null for the document element.
  const ZORVEL::XmlElement* parentOf(const ZORVEL::XmlElement& element) const;
  /// For a person: "character[anna]/cloth/clothing[dress]". Empty for the document element.
  std::string pathOf(const ZORVEL::XmlElement& element) const;
  int elementCount() const { return static_cast<int>(parents_.size()); }

 private:
  std::shared_ptr<const ZORVEL::XmlDocument> document_;
  std::vector<ZORVEL::ParseNote> notes_;
  std::unordered_map<const ZORVEL::DataContainer*, const ZORVEL::XmlElement*> elements_;
  std::unordered_map<const ZORVEL::XmlElement*, const ZORVEL::XmlElement*> parents_;
};

}  // namespace check
