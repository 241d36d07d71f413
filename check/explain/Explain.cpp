#include "check/explain/Explain.h"

#include "apps/support/NearestIds.h"
#include "check/explain/Elements.h"
#include "check/explain/Explainer.h"
#include "host/files/PrintableText.h"

namespace check {

ExplainResult explainId(const std::filesystem::path& root, const std::string& id) {
  CheckRun run(root, {});
  ExplainResult result;
  result.root = run.result().root;
  result.id = id;
  result.isReadable = run.result().isReadable;
  if (!result.isReadable) {
    const auto& findings = run.result().findings;
    result.problem = findings.empty() ? "" : findings.front().message;
    return result;
  }
  const Elements elements(run.survey());
  for (const Element& element : elements.withId(id)) {
    result.explanations.push_back(Explainer(run).explain(element));
  }
  if (result.explanations.empty()) {
    for (const std::string& near : apps::nearestIds(id, elements.ids()))
      result.nearest.push_back(host::printable(near));
  }
  return result;
}

}  // namespace check
