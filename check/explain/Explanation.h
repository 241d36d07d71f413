#pragma once

#include <string>
#include <vector>

#include "check/Finding.h"

namespace check {

/// One link in the chain of reasons for an element.
struct ExplainedStep {
  enum class State { Good, Bad, Note };
  State state;
  /// What is looked at: "folder", "picture", "row".
  std::string topic;
  std::string text;
};

/// Why one element is offered and built, or why not. All texts are as those of findings.
struct Explanation {
  /// What a person calls it: "clothing", "material of the asset".
  std::string kind;
  std::string id;
  std::string element;
  int line = 0;
  int column = 0;
  /// In the order in which the plug-in comes to them.
  std::vector<ExplainedStep> steps;
  /// The checker's that concern it.
  std::vector<Finding> findings;
  /// Whether it can be offered and built at all, somehow.
  bool works = false;
  std::string verdict;
};

/// Of all elements that have an id, in the order of the description; of very many the first.
struct ExplainResult {
  std::string root;
  std::string id;
  /// False when there is no description that could be read: the problem says why.
  bool isReadable = true;
  std::string problem;
  std::vector<Explanation> explanations;
  /// How many more there are, of which nothing is said.
  std::size_t leftOut = 0;
  /// When no element has the id: those that are most like it.
  std::vector<std::string> nearest;
};

}  // namespace check
