#pragma once

#include <deque>
#include <memory>
#include <string>
#include <unordered_set>

#include "repository/ParseObserver.h"
#include "repository/XmlDocument.h"

namespace check {

/// Where every record of a repository stands in its description. Listens while that is read, and keeps the document
/// afterwards.
class Description : public ZORVEL::ParseObserver {
 public:
  void Noted(const ZORVEL::ParseNote& note) override;
  void DocumentRead(const std::shared_ptr<const ZORVEL::XmlDocument>& document) override { document_ = document; }
  void RecordRead(const ZORVEL::DataContainer& record, const ZORVEL::XmlElement& element) override;

  const std::deque<ZORVEL::ParseNote>& notes() const { return notes_; }
  /// Whether clothes of the character were dropped while reading.
  bool hasDroppedClothes(const ZORVEL::XmlElement* character) const { return charactersWithout_.count(character) > 0; }
  /// Null when no document could be read.
  const ZORVEL::XmlElement* root() const { return document_ ? &document_->GetRoot() : nullptr; }
  /// Null for a record that no element was read into.
  const ZORVEL::XmlElement* elementOf(const ZORVEL::DataContainer* record) const;
  /// Null for the document element.
  const ZORVEL::XmlElement* parentOf(const ZORVEL::XmlElement& element) const { return element.parent; }
  /// For a person: "character[anna]/cloth/clothing[dress]". Empty for the document element.
  std::string pathOf(const ZORVEL::XmlElement& element) const;
  /// Bytes that it may cost, less what it costs.
  double memoryLeft() const;
  /// Without the document element.
  int elementCount() const { return document_ ? document_->GetElementCount() - 1 : 0; }

 private:
  std::shared_ptr<const ZORVEL::XmlDocument> document_;
  std::deque<ZORVEL::ParseNote> notes_;
  std::unordered_set<const ZORVEL::XmlElement*> charactersWithout_;
  /// By the number of the record's unique id.
  std::deque<const ZORVEL::XmlElement*> elements_;
};

}  // namespace check
