#include "check/CheckRun.h"

#include "apps/support/ModelText.h"
#include "check/JudgementFile.h"
#include "check/Workload.h"
#include "check/rules/BuildRules.h"
#include "check/rules/FileRules.h"
#include "check/rules/FolderRules.h"
#include "check/rules/IdRules.h"
#include "check/rules/MatrixRules.h"
#include "check/rules/NamedFiles.h"
#include "check/rules/OfferRules.h"
#include "check/rules/ReadingRules.h"
#include "check/rules/ReferenceRules.h"
#include "core/Settings.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/RepositoryPaths.h"
#include "repository/Parser2.h"

namespace check {

namespace {

/// Of the whole, when the listings and when the rules are done, roughly; the rest is reading files.
constexpr double LISTINGS = 0.3;
constexpr double RULES = 0.4;

void tell(const CheckerOptions& options, double from, double to, std::size_t done, std::size_t known) {
  if (options.progress) options.progress(from + (to - from) * static_cast<double>(done) / static_cast<double>(known));
}

/// So that a root that cannot be named is none, instead of an exception.
std::filesystem::path absoluteOrEmpty(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::absolute(path, error);
}

}  // namespace

CheckRun::CheckRun(const std::filesystem::path& root, const CheckerOptions& options)
    : settings_(root),
      prefix_(ZORVEL::Settings::GetPath()),
      files_(absoluteOrEmpty(root), prefix_),
      findings_(description_),
      survey_{findings_, files_, prefix_, {}, {}, {}},
      contents_(survey_),
      viewed_(files_),
      observed_(description_) {
  result_.root = root.string();
  survey_.keepsOffers = options.wantsWear;
  ZORVEL::Data2::Clear();
  result_.isReadable = readDescription(options);
  ReadingRules(survey_).run();
  if (result_.isReadable) {
    ZORVEL::Data2::SetValidated(true);
    runRules(options);
  }
  result_.findings = findings_.takeAll();
  result_.characterCount = ZORVEL::Data2::GetCharacterCount();
  result_.elementCount = description_.elementCount();
  result_.fileCount = files_.fileCount();
}

bool CheckRun::readDescription(const CheckerOptions& options) {
  const std::wstring file = ZORVEL::RepositoryPaths::Description(prefix_);
  // Without a description it may be any folder, of any size.
  if (files_.Look(file) == ZORVEL::DiskEntry::File) {
    files_.read([&options](std::size_t done, std::size_t known) { tell(options, 0.0, LISTINGS, done, known); });
  }
  if (!files_.isInside(file)) {
    findings_.addAt(RuleId::DescriptionUnreadable, 0, 0, {"it is a link that leads out of the repository"});
    return false;
  }
  if (!ZORVEL::Parser2::ParseRepository(prefix_.c_str())) return false;
  const std::string tooLarge = whyTooLarge(description_, survey_.keepsOffers);
  if (!tooLarge.empty()) findings_.addAt(RuleId::DescriptionBeyondLimits, 0, 0, {tooLarge});
  return tooLarge.empty();
}

std::vector<std::filesystem::path> CheckRun::files() {
  if (result_.isReadable) NamedFiles(survey_).refer();
  std::vector<std::filesystem::path> files = {host::resolvePath(ZORVEL::RepositoryPaths::Description(prefix_)),
                                              std::filesystem::path(result_.root) / JUDGEMENT_FILE};
  for (const std::wstring& file : files_.askedFor()) files.push_back(files_.nativePath(prefix_ + file));
  return files;
}

CheckRun::Store::~Store() { ZORVEL::Data2::Clear(); }

void CheckRun::runRules(const CheckerOptions& options) {
  IdRules(survey_).run();
  FolderRules(survey_).run();
  MatrixRules(survey_).run();
  ReferenceRules(survey_).run();
  const std::vector<ZORVEL::CharacterData*> characters = apps::characters();
  for (std::size_t i = 0; i < characters.size(); ++i) {
    OfferRules offers(survey_, *characters[i]);
    offers.run();
    BuildRules(survey_, *characters[i], offers).run();
    tell(options, LISTINGS, RULES, i, characters.size());
  }
  contents_.run([&options](std::size_t done, std::size_t known) { tell(options, RULES, 1.0, done, known); });
  FileRules(survey_).run(options.targetRoot);
}

}  // namespace check
