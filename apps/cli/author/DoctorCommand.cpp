#include "apps/cli/author/DoctorCommand.h"

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <nlohmann/json.hpp>

#include "apps/cli/author/MachineChecks.h"
#include "apps/cli/author/ReadingChecks.h"
#include "apps/support/ExitStatus.h"
#include "host/files/PrintableText.h"

namespace cli {

using namespace apps;

namespace {

using Json = nlohmann::ordered_json;

Checks examine(const std::filesystem::path& repository) {
  Checks checks = checkVersions();
  const auto add = [&checks](const Checks& more) { checks.insert(checks.end(), more.begin(), more.end()); };
  add(checkFolders());
  if (!repository.empty()) checks.push_back(checkRepository(repository));
  add(checkReading());
  checks.push_back(checkModule());
  return checks;
}

void printText(const Checks& checks) {
  for (const Check& check : checks) {
    std::cout << std::left << std::setw(9) << (check.isGood() ? "ok" : "problem") << std::setw(19) << check.name
              << host::printable(check.text) << '\n';
    if (!check.isGood())
      std::cout << std::setw(9) << ""
                << "remedy: " << check.remedy << '\n';
  }
}

void printJson(const Checks& checks, bool good) {
  Json json = {{"good", good}, {"checks", Json::array()}};
  for (const Check& check : checks) {
    Json one = {{"name", check.name}, {"good", check.isGood()}, {"text", check.text}};
    if (!check.isGood()) one["remedy"] = check.remedy;
    json["checks"].push_back(std::move(one));
  }
  std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace

int runDoctor(const std::filesystem::path& repository, bool asJson) {
  const Checks checks = examine(repository);
  const bool good = std::all_of(checks.begin(), checks.end(), [](const Check& check) { return check.isGood(); });
  if (asJson) {
    printJson(checks, good);
  } else {
    printText(checks);
  }
  return good ? EXIT_CLEAN : EXIT_FINDINGS;
}

}  // namespace cli
