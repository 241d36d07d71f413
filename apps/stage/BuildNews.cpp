#include "apps/stage/BuildNews.h"

namespace stage {

void BuildNews::follow(const ModuleLog& log) {
  log_ = log;
  seen_ = static_cast<int>(log_.buildsFrom(0).size());
}

void BuildNews::refresh() {
  for (const ModuleLog::Build& build : log_.buildsFrom(seen_)) {
    ++seen_;
    if (build.summary.isEmpty()) {
      emit said(tr("Character built"));
    } else {
      emit explained(build.sentences);
      emit warned(tr("%1 — see Listener").arg(build.summary));
    }
  }
}

}  // namespace stage
