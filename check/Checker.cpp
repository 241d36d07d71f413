#include "check/Checker.h"

#include "apps/support/ModelText.h"
#include "apps/support/SettledRoot.h"
#include "check/Description.h"
#include "check/Findings.h"
#include "check/FolderIndex.h"
#include "check/Workload.h"
#include "check/rules/BuildRules.h"
#include "check/rules/ContentRules.h"
#include "check/rules/FileRules.h"
#include "check/rules/FolderRules.h"
#include "check/rules/IdRules.h"
#include "check/rules/MatrixRules.h"
#include "check/rules/OfferRules.h"
#include "check/rules/ReadingRules.h"
#include "check/rules/ReferenceRules.h"
#include "core/Settings.h"
#include "model/Data2.h"
#include "model/RepositoryPaths.h"
#include "repository/Parser2.h"

namespace check {

namespace fs = std::filesystem;

namespace {

/// Of the whole, when the listings and when the rules are done, roughly; the rest is reading files.
constexpr double LISTINGS = 0.3;
constexpr double RULES = 0.4;

/// Empties the store at the end.
struct EmptyStore {
  ~EmptyStore() { ZORVEL::Data2::Clear(); }
};

void tell(const CheckerOptions& options, double from, double to, std::size_t done, std::size_t known) {
  if (options.progress) options.progress(from + (to - from) * static_cast<double>(done) / static_cast<double>(known));
}

/// Whether it could be read, as a whole and within bounds; findings say why not.
bool readDescription(const std::wstring& root, FolderIndex& files, Findings& findings) {
  if (!files.isInside(ZORVEL::RepositoryPaths::Description(root))) {
    findings.addAt(RuleId::DescriptionUnreadable, 0, 0, {"it is a link that leads out of the repository"});
    return false;
  }
  if (!ZORVEL::Parser2::ParseRepository(root.c_str())) return false;
  const std::string tooLarge = whyTooLarge();
  if (!tooLarge.empty()) findings.addAt(RuleId::DescriptionBeyondLimits, 0, 0, {tooLarge});
  return tooLarge.empty();
}

void runRules(Survey& survey, const CheckerOptions& options) {
  IdRules(survey).run();
  FolderRules(survey).run();
  MatrixRules(survey).run();
  ReferenceRules(survey).run();
  const std::vector<ZORVEL::CharacterData*> characters = apps::characters();
  for (std::size_t i = 0; i < characters.size(); ++i) {
    OfferRules offers(survey, *characters[i]);
    offers.run();
    BuildRules(survey, *characters[i], offers).run();
    tell(options, LISTINGS, RULES, i, characters.size());
  }
  ContentRules(survey).run(
      [&options](std::size_t done, std::size_t known) { tell(options, RULES, 1.0, done, known); });
  FileRules(survey).run(options.targetRoot);
}

}  // namespace

CheckResult checkRepository(const fs::path& root, const CheckerOptions& options) {
  CheckResult result;
  result.root = root.string();
  Description description;
  Findings findings(description);
  const apps::SettledRoot settings(root);
  if (!settings.isThere()) {
    findings.addAt(RuleId::DescriptionUnreadable, 0, 0, {"no temporary folder can be made, and the settings need one"});
    result.findings = findings.takeAll();
    return result;
  }
  const std::wstring prefix = ZORVEL::Settings::GetPath();
  std::error_code error;
  FolderIndex files(fs::absolute(root, error), prefix);
  const EmptyStore emptied;
  const ZORVEL::ViewedDisk viewed(files);
  const ZORVEL::ObservedParsing observed(description);
  ZORVEL::Data2::Clear();
  // Without a description it may be any folder, of any size.
  if (files.Look(ZORVEL::RepositoryPaths::Description(prefix)) == ZORVEL::DiskEntry::File) {
    files.read([&options](std::size_t done, std::size_t known) { tell(options, 0.0, LISTINGS, done, known); });
  }
  result.isReadable = readDescription(prefix, files, findings);
  Survey survey = {findings, files, prefix, {}, {}, {}};
  ReadingRules(survey).run();
  if (result.isReadable) {
    ZORVEL::Data2::SetValidated(true);
    runRules(survey, options);
  }
  result.findings = findings.takeAll();
  result.characterCount = ZORVEL::Data2::GetCharacterCount();
  result.elementCount = description.elementCount();
  result.fileCount = files.fileCount();
  return result;
}

}  // namespace check
