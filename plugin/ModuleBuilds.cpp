#include <exception>
#include <string>
#include <vector>

#include "plugin/CommandListener.h"
#include "plugin/Commands.h"
#include "scene/BuildFindings.h"
#include "scene/BuildSummary.h"

/// Only in the diagnostic module: hands each build from number `first` on to `take`, oldest first. The summary is one
/// line, empty when nothing is lacking; the sentences that give the reasons end in a line break each.
extern "C" void ModuleBuilds(int first, void (*take)(void* to, const wchar_t* summary, const wchar_t* sentences),
                             void* to);

namespace ZORVEL {

namespace {

struct RecordedBuild {
  std::wstring summary;
  std::wstring sentences;
};

std::wstring SentencesOf(const BuildReport& report) {
  std::wstring text;
  for (const BuildFinding& finding : BuildFindings::Describe(report)) text += finding.text + L"\n";
  return text;
}

/// Records for as long as the module is loaded.
class BuildRecorder : public CommandListener {
 public:
  BuildRecorder() { Commands::SetListener(this); }
  ~BuildRecorder() override { Commands::SetListener(nullptr); }
  BuildRecorder(const BuildRecorder&) = delete;
  BuildRecorder& operator=(const BuildRecorder&) = delete;

  void CharacterBuilt(const BuildReport& report) override {
    try {
      m_builds.push_back({BuildSummary::Describe(report), SentencesOf(report)});
    } catch (const std::exception&) {
      // Losing a record is better than failing the build that it is about.
    }
  }
  const std::vector<RecordedBuild>& GetBuilds() const { return m_builds; }

 private:
  std::vector<RecordedBuild> m_builds;
};

BuildRecorder recorder;

}  // namespace

}  // namespace ZORVEL

void ModuleBuilds(int first, void (*take)(void* to, const wchar_t* summary, const wchar_t* sentences), void* to) {
  const std::vector<ZORVEL::RecordedBuild>& builds = ZORVEL::recorder.GetBuilds();
  for (std::size_t i = first < 0 ? 0 : static_cast<std::size_t>(first); i < builds.size(); ++i) {
    take(to, builds[i].summary.c_str(), builds[i].sentences.c_str());
  }
}
