#include "tests/check/SampleFindings.h"

#include "check/Judgement.h"
#include "tests/check/CompleteRepository.h"

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

void breakMuch(const CompleteRepository& repository) {
  for (const char* id : {"wool", "silk", "zo\u00eb", "cord", "jeans", "felt"}) {
    const std::string text = id;
    repository.edit("    </cloth>", "      <clothing id=\"" + text + "\" name=\"x\" folder=\"dress\"/>\n    </cloth>");
  }
  repository.edit(R"(preview="leather.png")", R"(preview="50 % Müller, &quot;new&quot;.png")");
  repository.rename("anna/bag/leather.png", "anna/bag/50 % M\u00fcller, \"new\".png");
  repository.writePicture("anna/bag/50 % M\u00fcller, \"new\".png", 10, 10);
  repository.edit(R"(id="dark")", R"(id="dark" colour="brown")");
  repository.edit(R"(id="red")", R"(ID="red")");
  repository.edit("</poses>", R"(</poses><poses name="winter"/>)");
  repository.edit(R"(zpos="80.5")", R"(zpos="80,5")");
  repository.edit(R"(poseID="sitting" assetID="hat")", R"(poseID="sitting" assetID="hats")");
  repository.edit(R"(material="Felt")", R"(material="Silk")");
  repository.edit(R"(required="true")", R"(required="yes")");
  repository.write("anna/dress/materials.mat", "{");
  for (const char* file : {"overlay100x300.png", "anna/coat/coat_sitting.vrmesh", "anna/previews/dress_standing.png",
                           "anna/sitting/pose.vrmesh", "maps/Light.png"}) {
    repository.remove(file);
  }
}

CheckResult people() {
  const CompleteRepository repository;
  breakMuch(repository);
  CheckResult result = repository.check();
  result.root = "people";
  // As behind a very long line.
  result.findings.back().column = 0;
  return result;
}

CheckResult unreadable() {
  CheckResult result = check::checkRepository(TemporaryFolder().path(), {});
  result.root = "/srv/old people/";
  return result;
}

CheckResult clean() {
  CheckResult result = CompleteRepository().check();
  result.root = "./new";
  return result;
}

/// What is found, and little else: reports name all rules that were asked.
check::Judgement judgement(const CheckResult& result) {
  check::Judgement judgement;
  std::string errors = judgement.askFor("ZV101");
  for (const Finding& one : result.findings) errors += judgement.askFor(check::ruleOf(one.rule).code);
  errors += judgement.setSeverity("ZV310", "hint") + judgement.ignore("ZV113");
  return errors.empty() ? judgement : check::Judgement();
}

}  // namespace

std::vector<JudgedRepository> sampleFindings() {
  const CheckResult broken = people();
  const check::Judgement said = judgement(broken);
  return {said.judge(broken), said.judge(unreadable()), said.judge(clean())};
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
