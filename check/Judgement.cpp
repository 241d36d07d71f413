#include "check/Judgement.h"

#include <algorithm>

#include "apps/support/NearestIds.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

using Severities = std::map<std::string, std::optional<Severity>>;

const Severities SEVERITIES = {
    {"error", Severity::Error}, {"hint", Severity::Hint}, {"off", std::nullopt}, {"warning", Severity::Warning}};

std::string quotedSafely(const std::string& text) { return '"' + host::printable(text) + '"'; }

std::string lowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

const Rule* ruleCalled(const std::string& text) {
  // A text that goes on behind a null byte is no code.
  if (text.find('\0') != std::string::npos) return nullptr;
  if (const Rule* rule = findRule(text.c_str())) return rule;
  const std::vector<Rule>& rules = allRules();
  const auto found = std::find_if(rules.begin(), rules.end(),
                                  [name = lowerCase(text)](const Rule& rule) { return rule.name == name; });
  return found == rules.end() ? nullptr : &*found;
}

std::string unknownRule(const std::string& text) {
  std::vector<std::string> known;
  for (const Rule& rule : allRules()) known.insert(known.end(), {rule.code, rule.name});
  std::string nearest;
  // What is compared with every name may not be of any length.
  constexpr std::size_t LONGEST = 100;
  for (const std::string& one : apps::nearestIds(text.substr(0, LONGEST), known)) {
    nearest += (nearest.empty() ? "; nearest: " : ", ") + one;
  }
  return "there is no rule " + quotedSafely(text) + nearest;
}

}  // namespace

std::string Judgement::ignore(const std::string& rule) { return setSeverity(rule, "off"); }

std::string Judgement::askFor(const std::string& rule) {
  const Rule* found = ruleCalled(rule);
  if (found == nullptr) return unknownRule(rule);
  if (!only_) only_.emplace();
  only_->insert(found->id);
  return {};
}

std::string Judgement::setSeverity(const std::string& rule, const std::string& severity) {
  const Rule* found = ruleCalled(rule);
  if (found == nullptr) return unknownRule(rule);
  const auto known = SEVERITIES.find(severity);
  if (known == SEVERITIES.end()) return quotedSafely(severity) + " is none of error, warning, hint, off";
  severities_[found->id] = known->second;
  return {};
}

std::string Judgement::setFailOn(const std::string& severity) {
  static const std::map<std::string, FailOn> KNOWN = {
      {"error", FailOn::Error}, {"hint", FailOn::Hint}, {"never", FailOn::Never}, {"warning", FailOn::Warning}};
  const auto known = KNOWN.find(severity);
  if (known == KNOWN.end()) return quotedSafely(severity) + " is none of error, warning, hint, never";
  failOn_ = known->second;
  return {};
}

Judgement Judgement::over(const Judgement& other) const {
  Judgement both = *this;
  if (!failOn_) both.failOn_ = other.failOn_;
  if (!targetRoot_) both.targetRoot_ = other.targetRoot_;
  for (const auto& [rule, severity] : other.severities_) {
    const bool isAskedHere = only_ && only_->count(rule) != 0;
    if (severity || !isAskedHere) both.severities_.emplace(rule, severity);
  }
  if (only_ || !other.only_) return both;
  both.only_ = other.only_;
  for (const auto& [rule, severity] : severities_) both.only_->insert(rule);
  return both;
}

bool Judgement::asks(RuleId rule) const {
  if (only_ && only_->count(rule) == 0) return false;
  const auto said = severities_.find(rule);
  return said == severities_.end() || said->second.has_value();
}

bool Judgement::fails(Severity severity) const {
  switch (failOn_.value_or(FailOn::Warning)) {
    case FailOn::Error:
      return severity == Severity::Error;
    case FailOn::Warning:
      return severity != Severity::Hint;
    case FailOn::Hint:
      return true;
    case FailOn::Never:
      return false;
  }
  return false;
}

void Judgement::applyTo(JudgedRepository& judged) const {
  std::vector<Finding>& findings = judged.result.findings;
  const std::size_t before = findings.size();
  const auto isIgnored = [this](const Finding& finding) { return !asks(finding.rule); };
  findings.erase(std::remove_if(findings.begin(), findings.end(), isIgnored), findings.end());
  judged.ignoredCount = static_cast<int>(before - findings.size());
  for (Finding& finding : findings) {
    const auto said = severities_.find(finding.rule);
    if (said != severities_.end()) finding.severity = *said->second;
  }
}

JudgedRepository Judgement::judge(CheckResult result) const {
  JudgedRepository judged;
  judged.result = std::move(result);
  for (const Rule& rule : allRules()) {
    if (asks(rule.id)) judged.askedRules.push_back(rule.id);
  }
  if (judged.result.isReadable) applyTo(judged);
  const std::vector<Finding>& findings = judged.result.findings;
  judged.hasFailed =
      std::any_of(findings.begin(), findings.end(), [this](const Finding& one) { return fails(one.severity); });
  return judged;
}

}  // namespace check
