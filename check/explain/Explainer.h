#pragma once

#include "check/CheckRun.h"
#include "check/FindingIndex.h"
#include "check/explain/Elements.h"
#include "check/explain/Explanation.h"
#include "check/explain/Outcome.h"
#include "check/explain/Steps.h"

namespace check {

/// Follows one element on the way from the description to the scene. Asks whoever decides there, and decides nothing.
class Explainer {
 public:
  /// Must outlive this.
  explicit Explainer(CheckRun& run);

  Explanation explain(const Element& element);

 private:
  /// Answers whether the plug-in has it.
  bool addReading(const Element& element);
  void addId(const Element& element);
  void addFolder(const Element& element);
  Outcome addRest(const Element& element);
  std::string whyNotRead(const ZORVEL::XmlElement& element) const;
  std::vector<Finding> concerning(const Element& element) const;
  const ZORVEL::XmlElement* aroundOf(const Element& element) const;
  const ZORVEL::XmlElement* sharedOf(const Element& element) const;

  CheckRun& run_;
  const Survey& survey_;
  FindingIndex findings_;
  Steps steps_;
};

}  // namespace check
