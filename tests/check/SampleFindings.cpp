#include "tests/check/SampleFindings.h"

#include "check/Judgement.h"

namespace support {

using check::CheckResult;
using check::Finding;
using check::JudgedRepository;
using check::RuleId;

Finding finding(RuleId rule, const std::string& element, const std::string& message) {
  Finding made;
  made.rule = rule;
  made.severity = check::ruleOf(rule).severity;
  made.file = "zorvel.xml";
  made.line = 12;
  made.column = 7;
  made.element = element;
  made.message = message;
  return made;
}

namespace {

/// Fourteen clothes of three characters.
void addMissingPreviews(CheckResult& result) {
  for (int i = 0; i < 14; ++i) {
    const std::string character = i < 5 ? "anna" : i < 9 ? "bruno" : "zoë";
    const std::string id = "dress" + std::to_string(i);
    const std::string file = character + "/previews/preview_" + id + ".png";
    Finding one = finding(RuleId::ClothingPreviewMissing, "character[" + character + "]/cloth/clothing[" + id + "]",
                          "there is no picture " + file + ": the clothing is dropped when the repository loads, " +
                              "with its styles, excludes and selects");
    one.line += i;
    one.subject = file;
    result.findings.push_back(one);
  }
}

CheckResult people() {
  CheckResult result;
  result.root = "people";
  result.characterCount = 6;
  result.elementCount = 412;
  result.fileCount = 230;
  Finding folder =
      finding(RuleId::RootNotKept, "", "the folder's name is not kept by the settings: it ends in a blank");
  folder.file.clear();
  folder.line = folder.column = 0;
  Finding picture = finding(RuleId::PictureSize, "", "the picture is 10 x 10 pixels, and is shown at 110 x 330");
  picture.file = "anna/previews/50 % Müller, \"new\".png";
  picture.line = picture.column = 0;
  Finding attribute = finding(RuleId::UnknownAttribute, "character[anna]/assets/asset[bag]",
                              "nothing reads the attribute \"catgory\"; \"category\" is read");
  attribute.subject = "catgory";
  attribute.line = 77;
  attribute.column = 0;
  Finding again = attribute;
  again.line = 78;
  const Finding order = finding(RuleId::ListNameExtended, "character[anna]/cloth",
                                "\"winter\" is appended to the name of an earlier list of the same kind");
  result.findings = {folder, picture};
  addMissingPreviews(result);
  result.findings.insert(result.findings.end(), {order, attribute, again});
  return result;
}

CheckResult unreadable() {
  CheckResult result;
  result.root = "/srv/old people/";
  result.isReadable = false;
  Finding missing = finding(RuleId::DescriptionMissing, "", "there is no zorvel.xml in this folder");
  missing.file.clear();
  missing.line = missing.column = 0;
  result.findings = {missing};
  return result;
}

CheckResult clean() {
  CheckResult result;
  result.root = "./new";
  result.characterCount = 1;
  result.elementCount = 9;
  return result;
}

/// Few rules, so that reports which name all that were asked stay short.
check::Judgement judgement() {
  check::Judgement judgement;
  std::string errors;
  for (const char* code : {"ZV101", "ZV110", "ZV113", "ZV118", "ZV121", "ZV310"}) errors += judgement.askFor(code);
  errors += judgement.setSeverity("ZV310", "warning");
  return errors.empty() ? judgement : check::Judgement();
}

}  // namespace

std::vector<JudgedRepository> sampleFindings() {
  const check::Judgement said = judgement();
  return {said.judge(people()), said.judge(unreadable()), said.judge(clean())};
}

std::vector<JudgedRepository> findingsNamed(const std::string& text) {
  CheckResult result;
  result.root = text;
  for (const RuleId rule : {RuleId::IdMissing, RuleId::ListNameExtended}) {
    Finding one = finding(rule, text, text);
    one.file = text;
    one.subject = text;
    result.findings.push_back(one);
  }
  return {check::Judgement().judge(result)};
}

}  // namespace support
