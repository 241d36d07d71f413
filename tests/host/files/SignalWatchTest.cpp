#include "host/files/SignalWatch.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <thread>

#include "host/files/TemporaryFolder.h"
#include "host/files/Uninterrupted.h"
#include "host/files/WholeFile.h"

namespace host {

namespace fs = std::filesystem;

namespace {

/// Each program that is ended here begins as a copy of the test, so it must have no other thread, and would take the
/// test's temporary folders for its own.
class SignalWatchDeathTest : public testing::Test {
 protected:
  SignalWatchDeathTest() {
    std::string pattern = testing::TempDir() + "zorvel-signals-XXXXXX";
    folder_ = ::mkdtemp(pattern.data());
    ::setenv("TMPDIR", folder_.c_str(), 1);
  }
  ~SignalWatchDeathTest() override {
    ::unsetenv("TMPDIR");
    fs::remove_all(folder_);
  }

  const fs::path& folder() const { return folder_; }
  std::uintmax_t sizeOf(const char* name) const { return fs::file_size(folder_ / name); }
  std::ptrdiff_t entryCount() const { return std::distance(fs::directory_iterator(folder_), fs::directory_iterator()); }

 private:
  fs::path folder_;
};

[[noreturn]] void waitForTheEnd() {
  for (;;) ::pause();
}

void endInTheMiddle(int signal) {
  watchSignals();
  const TemporaryFolder first;
  const TemporaryFolder second;
  fs::create_directories(second.path() / "a" / "b");
  // Keeps writing into it, as other threads do.
  std::thread([folder = second.path()] {
    for (int i = 0;; ++i) static_cast<void>(writeWholeFile(folder / std::to_string(i), "text"));
  }).detach();
  ::usleep(2000);
  ::kill(::getpid(), signal);
  waitForTheEnd();
}

TEST_F(SignalWatchDeathTest, ASignalEndsTheProgramAndLeavesNoTemporaryFolder) {
  for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
    EXPECT_EXIT(endInTheMiddle(signal), testing::KilledBySignal(signal), "");
    EXPECT_EQ(entryCount(), 0) << signal;
  }
}

void endWhileUninterrupted(const fs::path& folder) {
  watchSignals();
  {
    const Uninterrupted whole;
    ::kill(::getpid(), SIGTERM);
    ::usleep(20000);
    const Uninterrupted inner;
    static_cast<void>(writeWholeFile(folder / "whole", "text"));
  }
  ::usleep(50000);
  const Uninterrupted never;
  static_cast<void>(writeWholeFile(folder / "late", "text"));
}

TEST_F(SignalWatchDeathTest, WhatIsNotToBeInterruptedIsFinishedAndNothingElseBegun) {
  EXPECT_EXIT(endWhileUninterrupted(folder()), testing::KilledBySignal(SIGTERM), "");
  EXPECT_EQ(sizeOf("whole"), 4U);
  EXPECT_EQ(entryCount(), 1);
}

void writeBeyondTheLimit(const fs::path& file, bool isWatched) {
  if (isWatched) watchSignals();
  const rlimit limit = {1000, 1000};
  ::setrlimit(RLIMIT_FSIZE, &limit);
  ::exit(writeWholeFile(file, std::string(5000, 'x')).empty() ? 0 : 1);
}

TEST_F(SignalWatchDeathTest, AFileThatIsCutOffInTheMiddleOfWritingIsNeverSeen) {
  static_cast<void>(writeWholeFile(folder() / "old", "text"));
  for (const char* name : {"old", "new"}) {
    EXPECT_EXIT(writeBeyondTheLimit(folder() / name, false), testing::KilledBySignal(SIGXFSZ), "");
    EXPECT_EXIT(writeBeyondTheLimit(folder() / name, true), testing::ExitedWithCode(1), "");
  }
  EXPECT_EQ(sizeOf("old"), 4U);
  EXPECT_EQ(entryCount(), 1);
}

void ignoreAndEnd() {
  std::signal(SIGHUP, SIG_IGN);
  watchSignals();
  ::kill(::getpid(), SIGHUP);
  ::usleep(20000);
  ::exit(7);
}

TEST_F(SignalWatchDeathTest, WhatIsIgnoredStaysIgnored) { EXPECT_EXIT(ignoreAndEnd(), testing::ExitedWithCode(7), ""); }

}  // namespace

}  // namespace host
