#include "check/CheckRun.h"

#include "apps/support/ModelText.h"
#include "check/rules/BuildRules.h"
#include "check/rules/FileRules.h"
#include "check/rules/FolderRules.h"
#include "check/rules/IdRules.h"
#include "check/rules/MatrixRules.h"
#include "check/rules/OfferRules.h"
#include "check/rules/ReadingRules.h"
#include "check/rules/ReferenceRules.h"
#include "core/Settings.h"
#include "model/Data2.h"
#include "repository/Parser2.h"

namespace check {

namespace {

/// Of the whole, how much of the time the listings take, roughly; the rest is reading files.
constexpr double LISTINGS = 0.3;

void tell(const CheckerOptions& options, double from, double to, std::size_t done, std::size_t known) {
  if (options.progress) options.progress(from + (to - from) * static_cast<double>(done) / static_cast<double>(known));
}

}  // namespace

CheckRun::CheckRun(const std::filesystem::path& root, const CheckerOptions& options)
    : settings_(root),
      prefix_(ZORVEL::Settings::GetPath()),
      files_(std::filesystem::absolute(root), prefix_),
      findings_(description_),
      survey_{findings_, files_, prefix_, {}, {}, {}, {}},
      contents_(survey_),
      viewed_(files_),
      observed_(description_) {
  files_.read([&options](std::size_t done, std::size_t known) { tell(options, 0.0, LISTINGS, done, known); });
  result_.root = root.string();
  ZORVEL::Data2::Clear();
  result_.isReadable = ZORVEL::Parser2::ParseRepository(prefix_.c_str());
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

CheckRun::Store::~Store() { ZORVEL::Data2::Clear(); }

void CheckRun::runRules(const CheckerOptions& options) {
  IdRules(survey_).run();
  FolderRules(survey_).run();
  MatrixRules(survey_).run();
  ReferenceRules(survey_).run();
  for (const ZORVEL::CharacterData* character : apps::characters()) {
    OfferRules offers(survey_, *character);
    offers.run();
    BuildRules(survey_, *character, offers).run();
  }
  contents_.run([&options](std::size_t done, std::size_t known) { tell(options, LISTINGS, 1.0, done, known); });
  FileRules(survey_).run(options.targetRoot);
}

}  // namespace check
