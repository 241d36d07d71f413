#include "apps/cli/author/AddCommand.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

#include "apps/cli/author/DescriptionFile.h"
#include "apps/cli/author/NeededFiles.h"
#include "apps/cli/author/NewEntry.h"
#include "apps/support/ExitStatus.h"
#include "apps/support/OutsideFiles.h"
#include "host/files/Paths.h"
#include "host/files/PrintableText.h"
#include "model/RepositoryFormat.h"

namespace cli {

using namespace apps;

namespace fs = std::filesystem;
using namespace ZORVEL::RepositoryFormat;

namespace {

int answer(const std::string& text, ExitStatus status) {
  host::printLine(std::cerr, "zorvel add: " + text);
  return status;
}

/// What the description says may not steer the terminal.
std::string shown(const std::wstring& text) { return host::printable(host::toUtf8(text)); }

std::string attribute(const Element& element, const wchar_t* name) { return shown(element.text(name)); }

void printEntry(const AddOptions& options, const NewEntry& entry) {
  std::cout << "Added the " << options.kind << " \"" << host::printable(options.id) << '"';
  const std::string name = attribute(entry.element, FIELD_NAME);
  if (!name.empty()) std::cout << " (" << name << ')';
  if (!entry.clothing.empty()) std::cout << " to the clothing \"" << shown(entry.clothing) << "\" of";
  if (!entry.character.empty())
    std::cout << (entry.clothing.empty() ? " to" : "") << " \"" << shown(entry.character) << '"';
  std::cout << ".\n";
  for (const auto& [field, value] : entry.element.attributes) {
    if (field != FIELD_ID && field != FIELD_NAME) {
      std::cout << "  " << shown(field) << "  " << shown(value) << '\n';
    }
  }
  for (const Element& child : entry.element.children) {
    if (child.name != ELEMENT_MATERIAL) continue;
    std::cout << "  style  " << attribute(child, FIELD_ID) << " (" << attribute(child, FIELD_NAME) << ")\n";
  }
  if (entry.rows > 0) {
    std::cout << "  " << entry.rows << (entry.rows == 1 ? " row" : " rows")
              << " of the AssetMatrix, with zeros: what is placed stands between the feet until they are set\n";
  }
}

void printFiles(const fs::path& repository, const std::wstring& root, const std::vector<NeededFile>& files) {
  if (files.empty()) return;
  host::printLine(std::cout, "Still to be put into " + repository.string() + ':');
  std::vector<std::string> names;
  for (const NeededFile& file : files) {
    const fs::path path = host::nativePath(file.path).lexically_relative(host::nativePath(root));
    names.push_back(host::printable(path.string()));
  }
  std::size_t width = 0;
  for (const std::string& name : names) width = std::max(width, name.size());
  for (std::size_t i = 0; i < files.size(); ++i) {
    std::cout << "  " << std::left << std::setw(static_cast<int>(width)) << names[i] << "  " << files[i].what << '\n';
  }
}

}  // namespace

int runAdd(const AddOptions& options) {
  const DescriptionFile description(options.repository);
  if (!description.error().empty()) return answer(description.error(), EXIT_UNREADABLE);
  const NewEntry entry = planEntry(description.root(), options);
  if (!entry.refusal.empty()) return answer(entry.refusal, entry.status);
  const std::string error = description.add(entry.additions);
  if (!error.empty()) return answer(error, EXIT_INTERNAL);
  printEntry(options, entry);
  const std::wstring root = host::toWide(fs::absolute(options.repository).lexically_normal().string());
  printFiles(options.repository, root, neededFiles(root, withAdditions(description.root(), entry.additions), entry));
  for (const std::string& note : notesOnOutsideFiles(options.repository)) host::printLine(std::cerr, note);
  return EXIT_CLEAN;
}

}  // namespace cli
