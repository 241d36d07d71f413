#include "check/explain/Explain.h"

#include <algorithm>

#include "apps/support/NearestIds.h"
#include "check/explain/Elements.h"
#include "check/explain/Explainer.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

/// Nobody reads more; each is looked at with all findings and all that could name it.
constexpr std::size_t MOST_EXPLAINED = 100;

}  // namespace

ExplainResult explainId(const std::filesystem::path& root, const std::string& id) {
  CheckerOptions options;
  // In which poses an element is offered is asked of the pages.
  options.wantsWear = true;
  CheckRun run(root, options);
  ExplainResult result;
  result.root = run.result().root;
  result.id = id;
  result.isReadable = run.result().isReadable;
  if (!result.isReadable) {
    const auto& findings = run.result().findings;
    result.problem = findings.empty() ? "" : findings.front().message;
    return result;
  }
  const Elements elements(run.survey(), id);
  const std::vector<Element>& all = elements.withId();
  const std::size_t count = std::min(all.size(), MOST_EXPLAINED);
  Explainer explainer(run);
  for (std::size_t i = 0; i < count; ++i) result.explanations.push_back(explainer.explain(all[i]));
  result.leftOut = all.size() - count;
  if (result.explanations.empty()) {
    for (const std::string& near : apps::nearestIds(id, elements.ids()))
      result.nearest.push_back(host::printable(near));
  }
  return result;
}

}  // namespace check
