#pragma once

#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "check/Description.h"
#include "check/Finding.h"

namespace check {

/// A text of the repository or of the checker, as UTF-8; cut where it is longer than any name or path.
class Value {
 public:
  Value(std::string text);                                   // NOLINT: every text is a value
  Value(const char* text) : text_(text) {}                   // NOLINT
  Value(const std::wstring& text);                           // NOLINT
  Value(const wchar_t* text) : Value(std::wstring(text)) {}  // NOLINT
  Value(int number) : text_(std::to_string(number)) {}       // NOLINT

  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

/// Takes in what is found. The same thing is taken in once, and of one rule at most ten thousand, and of all together
/// as much as a report can hold; how many more there are is told at the end.
class Findings {
 public:
  explicit Findings(const Description& description) : description_(description) {}

  /// `values` go into the rule's sentence; the first of them is what the finding is about. A null element stands for
  /// the whole description.
  void add(RuleId rule, const ZORVEL::XmlElement* element, std::vector<Value> values);
  void add(RuleId rule, const ZORVEL::DataContainer* record, std::vector<Value> values);
  /// Of an attribute that nobody reads, where another is meant. When the other is told to be missing, the two are one
  /// finding; so misspellings come before what follows from them.
  void addMisspelt(RuleId rule, const ZORVEL::XmlElement& element, const std::wstring& meant,
                   std::vector<Value> values);
  /// At a place of the description that is no element.
  void addAt(RuleId rule, int line, int column, std::vector<Value> values);
  /// About a file below the root, or about the root itself when `file` is empty.
  void addToFile(RuleId rule, const std::string& file, std::vector<Value> values);

  bool has(RuleId rule, const ZORVEL::DataContainer* record) const;
  /// Of any element.
  bool hasAny(std::initializer_list<RuleId> rules) const;
  /// A library that could not be read counts as one.
  bool hasOtherThanHints() const;
  const Description& description() const { return description_; }
  /// Sorted; leaves nothing behind.
  std::vector<Finding> takeAll();

 private:
  struct Misspelling {
    std::string meant;
    std::string attribute;
    Finding finding;
    bool isTold = false;
  };
  struct InOrder {
    bool operator()(const Finding& left, const Finding& right) const;
  };
  struct Counts {
    int taken = 0;
    int leftOut = 0;
    int misspellings = 0;
  };

  Finding at(RuleId rule, const ZORVEL::XmlElement* element) const;
  static void fillIn(Finding& finding, const std::vector<Value>& values);
  void insert(Finding finding, const std::vector<Value>& values, const ZORVEL::XmlElement* element = nullptr);
  void keep(Finding finding);
  /// Whether there are as many findings of the rule as will be, or as much of all; then this one counts as left out.
  bool isFull(RuleId rule);
  void takeMisspelling(Finding& finding, const ZORVEL::XmlElement* element);
  void tellLeftOut(RuleId rule, int count);

  const Description& description_;
  std::set<Finding, InOrder> findings_;
  std::map<RuleId, Counts> counts_;
  std::size_t memory_ = 0;
  std::map<const ZORVEL::XmlElement*, std::vector<Misspelling>> misspellings_;
  std::set<std::pair<RuleId, const ZORVEL::XmlElement*>> told_;
};

}  // namespace check
