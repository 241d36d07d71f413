#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "check/rules/Survey.h"

namespace check {

/// An element of the description with an id of its own, and what was read into it. Borrowed from description and store.
struct Element {
  const ZORVEL::XmlElement* source = nullptr;
  /// None for what is not read, at that place.
  std::optional<EntryKind> kind;
  /// Null when it is not in the store: it was skipped, or dropped with what it is in.
  const ZORVEL::DataContainer* record = nullptr;
  /// Null for what characters share.
  const ZORVEL::CharacterData* character = nullptr;
  /// Of a style the clothing, of a material the asset.
  const ZORVEL::DataContainer* owner = nullptr;
};

/// The elements of a description that a person would ask for by an id. What only refers to another is none of them.
class Elements {
 public:
  Elements(const Survey& survey, const std::string& id);

  /// In the order of the description.
  const std::vector<Element>& withId() const { return elements_; }
  /// All ids that there are, sorted.
  const std::vector<std::string>& ids() const { return ids_; }

 private:
  void noteRecords();
  void note(const ZORVEL::DataContainer* record, const ZORVEL::CharacterData* character,
            const ZORVEL::DataContainer* owner);
  void take(const ZORVEL::XmlElement& element, std::optional<EntryKind> kind);
  void walk(const ZORVEL::XmlElement& element, std::optional<EntryKind> kind);

  const Survey& survey_;
  std::string id_;
  std::vector<std::string> ids_;
  std::unordered_map<const ZORVEL::XmlElement*, Element> records_;
  std::vector<Element> elements_;
};

}  // namespace check
