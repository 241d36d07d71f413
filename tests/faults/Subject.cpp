#include "tests/faults/Subject.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>

namespace support {

namespace fs = std::filesystem;

namespace {

/// A run takes a fraction of a second; this is far beyond that on a busy machine, and still no wait for ever.
constexpr std::chrono::seconds TIME_LIMIT{60};

std::string contentOf(const fs::path& file) {
  std::ostringstream content;
  content << std::ifstream(file, std::ios::binary).rdbuf();
  return content.str();
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  for (std::string& text : texts) result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

void redirect(const fs::path& file, int stream) {
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  ::dup2(descriptor, stream);
  ::close(descriptor);
}

/// The process's end, in time or by our hand.
int waitFor(pid_t process, bool& isInTime) {
  const auto end = std::chrono::steady_clock::now() + TIME_LIMIT;
  std::chrono::microseconds pause(500);
  int status = 0;
  while (::waitpid(process, &status, WNOHANG) == 0) {
    if (isInTime && std::chrono::steady_clock::now() > end) {
      isInTime = false;
      ::kill(process, SIGKILL);
    }
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 2, std::chrono::microseconds(5000));
  }
  return status;
}

/// The program's own, which a test's sanitizer and its colours must not reach.
bool isKept(const std::string& variable) {
  for (const char* name : {"PATH=", "LANG=", "LC_ALL=", "LD_LIBRARY_PATH=", "UBSAN_OPTIONS=", "LSAN_OPTIONS="}) {
    if (variable.rfind(name, 0) == 0) return true;
  }
  return false;
}

void listAll(const fs::path& folder, std::vector<std::string>& names) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    names.push_back(entry.path().string());
  }
}

}  // namespace

Subject::Subject(fs::path folder) : folder_(std::move(folder)) {
  for (const char* name : {"results", "temporary", "home"}) fs::create_directories(folder_ / name);
}

std::string Subject::withoutPlace(std::string text) const {
  const std::string place = folder_.string();
  for (std::size_t at = text.find(place); at != std::string::npos; at = text.find(place, at)) {
    text.replace(at, place.size(), "@");
  }
  return text;
}

void Subject::clear() const {
  for (const char* name : {"results", "temporary", "home"}) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_ / name)) fs::remove_all(entry.path());
  }
  fs::remove(folder_ / "watched");
  std::ofstream(folder_ / "tally", std::ios::binary | std::ios::trunc) << std::string(sizeof(faults::Tally), '\0');
}

std::vector<std::string> Subject::environment(const Fault& fault, bool isWatched) const {
  std::vector<std::string> variables;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (isKept(*variable)) variables.emplace_back(*variable);
  }
  const auto set = [&](const std::string& name, const std::string& value) { variables.push_back(name + '=' + value); };
  set("HOME", (folder_ / "home").string());
  set("TMPDIR", temporary().string());
  set("QT_QPA_PLATFORM", "offscreen");
  set("LD_PRELOAD", FAULT_LIBRARY);
  // The sanitizer's own library need not be the first one: this one stands in for nothing of memory then.
  set("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0");
  Fault placed = fault;
  if (!placed.path.empty() && placed.path.front() == '@') placed.path = folder_.string() + placed.path.substr(1);
  set("FAULT_PLAN", placed.plan());
  set("FAULT_TALLY", (folder_ / "tally").string());
  if (isWatched) set("FAULT_WATCH", (folder_ / "watched").string());
  return variables;
}

Ending Subject::run(const std::vector<std::string>& command, const Fault& fault, std::vector<std::string>* watched) {
  clear();
  std::vector<std::string> arguments = command;
  for (std::string& argument : arguments) {
    if (!argument.empty() && argument.front() == '@') argument = (results() / argument.substr(1)).string();
  }
  std::vector<std::string> variables = environment(fault, watched != nullptr);
  const std::vector<char*> argv = pointers(arguments);
  const std::vector<char*> environment = pointers(variables);
  const pid_t process = ::fork();
  if (process == 0) {
    redirect(folder_ / "out", STDOUT_FILENO);
    redirect(folder_ / "err", STDERR_FILENO);
    // What is named relative to it is told so.
    if (::chdir(folder_.c_str()) != 0) ::_exit(126);
    ::execve(argv.front(), argv.data(), environment.data());
    ::_exit(127);
  }
  Ending ending;
  const int status = waitFor(process, ending.isInTime);
  if (WIFEXITED(status)) ending.status = WEXITSTATUS(status);
  if (WIFSIGNALED(status)) ending.signal = WTERMSIG(status);
  ending.out = withoutPlace(contentOf(folder_ / "out"));
  ending.err = withoutPlace(contentOf(folder_ / "err"));
  for (const fs::directory_entry& entry : fs::directory_iterator(results())) {
    ending.results[entry.path().filename().string()] = contentOf(entry.path());
  }
  for (const char* name : {"temporary", "home"}) listAll(folder_ / name, ending.leftOver);
  std::ifstream(folder_ / "tally", std::ios::binary).read(reinterpret_cast<char*>(&ending.tally), sizeof ending.tally);
  if (watched != nullptr) {
    std::ifstream lines(folder_ / "watched");
    for (std::string line; std::getline(lines, line);) watched->push_back(line);
  }
  return ending;
}

}  // namespace support
