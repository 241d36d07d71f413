#pragma once

#include <cstddef>
#include <system_error>
#include <thread>
#include <vector>

namespace host {

/// Starts threads that do the work until there are so many. Answers false when the machine allows no more: then there
/// are fewer, or none, and the caller does what they leave.
template <class Work>
bool startThreads(std::vector<std::thread>& threads, std::size_t count, const Work& work) {
  try {
    while (threads.size() < count) threads.emplace_back(work);
    return true;
  } catch (const std::system_error&) {
    return false;
  }
}

}  // namespace host
