#include "tests/faults/Walk.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <thread>

#include "tests/faults/Verdict.h"
#include "tests/support/TemporaryFolder.h"

namespace support {

namespace fs = std::filesystem;

namespace {

/// In everyday use; the walk over all places takes most of an hour.
constexpr unsigned long QUICK = 8;

std::string lastLine(const std::string& text) {
  const std::size_t end = text.find_last_not_of('\n');
  if (end == std::string::npos) return {};
  const std::size_t begin = text.rfind('\n', end);
  return text.substr(begin == std::string::npos ? 0 : begin + 1,
                     end - (begin == std::string::npos ? 0 : begin + 1) + 1);
}

/// Puts back what went away in the middle of a run.
void putBack(const std::string& folder) {
  std::error_code ignored;
  if (!folder.empty() && fs::exists(folder + ".gone", ignored)) fs::rename(folder + ".gone", folder, ignored);
}

/// One walk, many places at a time. A fault that takes the repository away cannot be tried by two at once.
class Walker {
 public:
  Walker(const std::vector<std::string>& command, const WalkedFault& walked, Strictness strictness)
      : command_(command), walked_(walked), strictness_(strictness) {}

  WalkResult run(unsigned long most) {
    Subject subject(folder_.makeFolder("undisturbed"));
    Fault counting = walked_.fault;
    undisturbed_ = subject.run(command_, counting);
    result_.places = undisturbed_.tally.calls;
    const bool isAskedFor = (counting.kinds & (faults::MAP | faults::THREAD)) != 0;
    if (isAskedFor) result_.ofOthers = undisturbed_.tally.ofOthers;
    if (undisturbed_.status != 0) result_.faults.push_back("undisturbed: " + undisturbed_.err);
    step_ = most == 0 ? 1 : std::max(1UL, (result_.places + most - 1) / most);
    // Not always the same ones of every step.
    next_ = 1 + step_ / 2;
    const unsigned threads = walked_.fault.action == "vanish" ? 1 : std::max(1U, std::thread::hardware_concurrency());
    std::vector<std::thread> workers;
    for (unsigned i = 0; i < threads; ++i) workers.emplace_back([this, i] { work(i); });
    for (std::thread& worker : workers) worker.join();
    return result_;
  }

 private:
  void work(unsigned number) {
    Subject subject(folder_.makeFolder("worker" + std::to_string(number)));
    for (unsigned long place = next_.fetch_add(step_); place <= result_.places; place = next_.fetch_add(step_)) {
      Fault fault = walked_.fault;
      fault.from = place;
      const Ending ending = subject.run(command_, fault);
      if (fault.action == "vanish") putBack(fault.path);
      judge(place, ending);
    }
  }

  void judge(unsigned long place, const Ending& ending) {
    const std::string fault = walked_.fault.action == "signal"
                                  ? faultOfEnded(ending, undisturbed_, walked_.fault.signal, strictness_)
                                  : faultOf(ending, undisturbed_, strictness_);
    const std::lock_guard<std::mutex> lock(mutex_);
    ++result_.tried;
    ++result_.statuses[ending.signal != 0 ? 128 + ending.signal : ending.status];
    if (!fault.empty()) {
      result_.faults.push_back("place " + std::to_string(place) + ": " + fault + " (status " +
                               std::to_string(ending.status) + "): " + lastLine(ending.err));
    }
  }

  const std::vector<std::string>& command_;
  const WalkedFault& walked_;
  Strictness strictness_;
  TemporaryFolder folder_;
  Ending undisturbed_;
  unsigned long step_ = 1;
  std::atomic<unsigned long> next_{1};
  std::mutex mutex_;
  WalkResult result_;
};

}  // namespace

WalkResult walk(const std::vector<std::string>& command, const WalkedFault& walked, unsigned long most,
                Strictness strictness) {
  return Walker(command, walked, strictness).run(most);
}

unsigned long mostPlaces() {
  const char* text = std::getenv("FAULT_PLACES");
  return text == nullptr ? QUICK : std::strtoul(text, nullptr, 10);
}

}  // namespace support
