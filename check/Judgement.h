#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "check/JudgedRepository.h"

namespace check {

/// What one place says about findings, the command line or the file beside a description: which of them count, how
/// much, and from when on a check fails. Rules are named by code or by name, in any letter case. What names or changes
/// something answers an empty text, or what is wrong with it in one line; then nothing has changed.
class Judgement {
 public:
  [[nodiscard]] std::string ignore(const std::string& rule);
  /// All rules that are not asked for are ignored then.
  [[nodiscard]] std::string askFor(const std::string& rule);
  /// "error", "warning", "hint", or "off" for ignored.
  [[nodiscard]] std::string setSeverity(const std::string& rule, const std::string& severity);
  /// "error", "warning" (unless something else is said), "hint" or "never".
  [[nodiscard]] std::string setFailOn(const std::string& severity);
  void setTargetRoot(const std::string& root) { targetRoot_ = root; }

  /// This, and what the other says besides. A rule that this one speaks of counts, whatever the other one ignores.
  Judgement over(const Judgement& other) const;

  /// As in CheckerOptions; empty when nothing is said.
  std::string targetRoot() const { return targetRoot_.value_or(""); }
  bool asks(RuleId rule) const;
  /// Findings keep their order. That a repository cannot be read is never ignored.
  JudgedRepository judge(CheckResult result) const;

 private:
  enum class FailOn { Error, Warning, Hint, Never };

  bool fails(Severity severity) const;
  void applyTo(JudgedRepository& judged) const;

  /// Without a severity the rule is ignored.
  std::map<RuleId, std::optional<Severity>> severities_;
  std::optional<std::set<RuleId>> only_;
  std::optional<FailOn> failOn_;
  std::optional<std::string> targetRoot_;
};

}  // namespace check
