#include "apps/support/ModelText.h"
#include "check/Checker.h"
#include "check/JudgementFile.h"
#include "check/explain/Explain.h"
#include "check/report/CsvReport.h"
#include "check/report/ExplainReport.h"
#include "check/report/JsonReport.h"
#include "check/report/JunitReport.h"
#include "check/report/SarifReport.h"
#include "check/report/TextReport.h"
#include "check/report/WearReport.h"
#include "fuzz/Parts.h"
#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "tests/check/CompleteRepository.h"

namespace fuzz {

namespace {

void report(const std::vector<check::JudgedRepository>& judged) {
  check::textReport(judged, {});
  check::jsonReport(judged);
  check::sarifReport(judged);
  check::junitReport(judged);
  check::csvReport(judged);
  check::wearText(judged, true);
  check::wearJson(judged);
  check::wearCsv(judged);
}

}  // namespace

void checker(std::string_view bytes) {
  static const support::CompleteRepository repository;
  const std::filesystem::path& root = repository.folder().path();
  const auto [description, options] = partsOf(bytes);
  repository.write("zorvel.xml", std::string(description));
  repository.write(check::JUDGEMENT_FILE, std::string(options));
  check::Judgement judgement;
  const bool isJudged = options.empty() || check::readJudgement(root, judgement).empty();
  check::CheckerOptions checking;
  checking.wantsWear = true;
  if (isJudged) checking.targetRoot = judgement.targetRoot();
  check::CheckResult result = check::checkRepository(root, checking);
  require(result.isReadable || !result.findings.empty(), "what cannot be read has a finding");
  report({judgement.judge(std::move(result))});
  // Checks once more, which takes as long as all before it.
  if (options.empty()) check::explainText(check::explainId(root, "anna"));
}

}  // namespace fuzz
