#pragma once

#include <map>
#include <set>
#include <unordered_map>
#include <utility>

#include "check/Vocabulary.h"
#include "check/rules/Survey.h"

namespace check {

/// What the parser has refused, skipped or limited, as it has told, and what it has read and nobody ever asks for.
class ReadingRules {
 public:
  explicit ReadingRules(Survey& survey) : survey_(survey) {}
  void run();

 private:
  void tell(const ZORVEL::ParseNote& note);
  void tellSkipped(const ZORVEL::ParseNote& note);
  void walk(const ZORVEL::XmlElement& element, const ElementEntry& entry);
  const AttributeLookup& lookUp(const ElementEntry& entry, const wchar_t* name);
  void lookAtAttributes(const ZORVEL::XmlElement& element, const ElementEntry& entry);
  void lookAtName(const ZORVEL::XmlElement& element, const ElementEntry& entry);
  void lookAtValue(const ZORVEL::XmlElement& element, const ElementEntry& entry, const AttributeEntry& attribute,
                   const wchar_t* value);

  Survey& survey_;
  /// The kinds of the elements around those that were skipped.
  std::unordered_map<const ZORVEL::XmlElement*, const ElementEntry*> entries_;
  std::set<const ZORVEL::XmlElement*> refused_;
  /// By the names as the process holds them.
  std::map<std::pair<const ElementEntry*, const wchar_t*>, AttributeLookup> lookups_;
};

}  // namespace check
