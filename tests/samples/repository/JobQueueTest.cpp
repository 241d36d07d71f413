#include "samples/repository/JobQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

using samples::JobQueue;

TEST(JobQueue, DoesEveryJobOnceAndTellsTheFirstErrorAsAddedWithAnyNumberOfThreads) {
  for (const unsigned threads : {1U, 2U, 5U}) {
    JobQueue queue(threads);
    std::array<std::atomic<int>, 40> done{};
    for (std::size_t i = 0; i < done.size(); ++i) {
      queue.add([&done, i]() -> std::string {
        // The later error is there first.
        if (i == 3) std::this_thread::sleep_for(std::chrono::milliseconds(20));
        ++done[i];
        return i == 3 || i == 4 ? "job " + std::to_string(i) : "";
      });
    }
    EXPECT_EQ(queue.run({}), "job 3");
    EXPECT_TRUE(std::all_of(done.begin(), done.end(), [](const auto& count) { return count == 1; })) << threads;
    EXPECT_EQ(queue.run({}), "") << "the jobs are forgotten";
    EXPECT_EQ(done[0], 1);
  }
}

TEST(JobQueue, TellsItsProgressInTheCallingThreadUpToTheEnd) {
  JobQueue queue(3);
  for (int i = 0; i < 20; ++i) queue.add([] { return std::string(); });
  std::vector<double> told;
  EXPECT_EQ(queue.run([&, caller = std::this_thread::get_id()](double share) {
    EXPECT_EQ(std::this_thread::get_id(), caller);
    told.push_back(share);
  }),
            "");
  ASSERT_FALSE(told.empty());
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_EQ(told.back(), 1.0);
}

}  // namespace
