#include "tests/growth/MeasuredRun.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <regex>

namespace support {

namespace {

constexpr std::size_t LONGEST_TEXT = 100000;
constexpr rlim_t MOST_SECONDS = 60;

double secondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Never returns.
void become(const std::vector<std::string>& arguments, int output) {
  ::dup2(output, STDOUT_FILENO);
  ::dup2(output, STDERR_FILENO);
  const rlimit limit = {MOST_SECONDS, MOST_SECONDS};
  ::setrlimit(RLIMIT_CPU, &limit);
  std::vector<char*> argv = {const_cast<char*>(ZORVEL_PROGRAM)};
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  ::execv(ZORVEL_PROGRAM, argv.data());
  ::_exit(127);
}

std::string readAll(int input) {
  std::string text;
  std::array<char, 65536> buffer;
  for (ssize_t count = 1; count > 0;) {
    count = ::read(input, buffer.data(), buffer.size());
    if (count > 0 && text.size() < LONGEST_TEXT) text.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return text;
}

}  // namespace

bool Measured::isRefusal() const {
  static const std::regex REFUSAL("too (large|many|long)|more than|beyond all bounds|deep", std::regex::icase);
  return std::regex_search(text, REFUSAL);
}

Measured measureProgram(const std::vector<std::string>& arguments) {
  Measured measured;
  int ends[2] = {};
  if (::pipe2(ends, O_CLOEXEC) != 0) return measured;
  const pid_t child = ::fork();
  if (child == 0) become(arguments, ends[1]);
  ::close(ends[1]);
  measured.text = readAll(ends[0]);
  ::close(ends[0]);
  int state = 0;
  rusage usage = {};
  ::wait4(child, &state, 0, &usage);
  measured.status = WIFEXITED(state) ? WEXITSTATUS(state) : -WTERMSIG(state);
  measured.seconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
  measured.mebibytes = static_cast<double>(usage.ru_maxrss) / 1024.0;
  return measured;
}

}  // namespace support
