#include "check/FolderIndex.h"

#include <algorithm>
#include <mutex>

#include "check/ParallelWork.h"
#include "host/files/NameCase.h"
#include "host/files/Paths.h"

namespace check {

namespace fs = std::filesystem;
using ZORVEL::DiskEntry;

struct FolderIndex::Folder {
  /// Below the root, each name behind a slash; empty for the root.
  std::wstring path;
  bool isListed = false;
  /// Listed only when something in it is asked for: a folder of some tool, and a link, which may lead in a circle.
  bool isPassedOver = false;
  std::string problem;
  std::unordered_map<std::wstring, File> files;
  std::unordered_map<std::wstring, std::unique_ptr<Folder>> folders;
  std::set<std::wstring> linksOut;

  bool has(const std::wstring& name) const {
    return files.count(name) > 0 || folders.count(name) > 0 || linksOut.count(name) > 0;
  }
  /// From folded names to those on disk, made when a name is first not there as written.
  std::unordered_map<std::wstring, std::wstring> folded;
};

namespace {

const wchar_t* const SEPARATORS = L"\\/";

bool isPassedOver(const fs::directory_entry& entry) {
  std::error_code unknown;
  return entry.path().filename().native().front() == '.' || entry.is_symlink(unknown);
}

/// Of two names that are alike the first by the order of characters counts, as everywhere.
void addFolded(std::unordered_map<std::wstring, std::wstring>& folded, const std::wstring& name) {
  std::wstring& held = folded[host::inCapitals(name)];
  if (held.empty() || name < held) held = name;
}

std::wstring_view nextName(std::wstring_view& rest) {
  const std::size_t end = rest.find_first_of(SEPARATORS);
  const std::wstring_view name = rest.substr(0, end);
  rest = end == std::wstring_view::npos ? std::wstring_view() : rest.substr(end + 1);
  return name;
}

}  // namespace

bool leadsOut(const fs::path& path, const fs::path& folder) {
  std::error_code error;
  const fs::path target = fs::canonical(path, error);
  if (error) return false;
  const fs::path around = fs::canonical(folder, error);
  return !error && std::mismatch(around.begin(), around.end(), target.begin(), target.end()).first != around.end();
}

FolderIndex::FolderIndex(fs::path root, std::wstring prefix)
    : root_(std::move(root)), prefix_(std::move(prefix)), top_(std::make_unique<Folder>()) {}

FolderIndex::~FolderIndex() = default;

void FolderIndex::read(const std::function<void(std::size_t, std::size_t)>& progress) {
  ParallelWork<Folder*> work(
      [this](Folder* folder, std::vector<Folder*>& more) {
        ensureListed(*folder);
        for (const auto& [name, below] : folder->folders) {
          if (!below->isPassedOver) more.push_back(below.get());
        }
      },
      progress);
  work.run({top_.get()});
}

void FolderIndex::list(Folder& folder) const {
  folder.isListed = true;
  std::error_code error;
  fs::directory_iterator entry(root_ / host::toUtf8(folder.path).erase(0, 1), error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) add(*entry, folder);
  if (error) folder.problem = error.message();
}

void FolderIndex::add(const fs::directory_entry& entry, Folder& folder) const {
  const std::wstring name = host::toWide(entry.path().filename().string());
  std::error_code unknown;
  if (entry.is_symlink(unknown)) {
    // A link that leads nowhere is nothing.
    if (!entry.exists(unknown)) return;
    if (leadsOut(entry.path(), root_)) {
      folder.linksOut.insert(name);
      return;
    }
  }
  if (!entry.is_directory(unknown)) {
    folder.files[name].isRegular = entry.is_regular_file(unknown);
    return;
  }
  auto below = std::make_unique<Folder>();
  below->path = folder.path + L"/" + name;
  below->isPassedOver = isPassedOver(entry);
  folder.folders[name] = std::move(below);
}

DiskEntry FolderIndex::Look(const std::wstring& path) {
  const Found found = findAny(path);
  if (found.isOutside) return lookOutside(path);
  if (found.file == nullptr) return found.folder != nullptr ? DiskEntry::Folder : DiskEntry::Absent;
  if (!found.file->isReferredTo) askedFor_.insert(path.substr(prefix_.size()));
  found.file->isReferredTo = true;
  return DiskEntry::File;
}

bool FolderIndex::IsReadable(const std::wstring& path) {
  const bool isFile = Look(path) == DiskEntry::File;
  const File* file = find(path);
  return isFile && (file == nullptr || file->isRegular);
}

const FolderIndex::File* FolderIndex::find(const std::wstring& path) { return findAny(path).file; }

fs::path FolderIndex::nativePath(const std::wstring& path) {
  const Found found = findAny(path);
  if (found.isOutside || found.folder == nullptr) return host::resolvePath(path);
  const fs::path folder = root_ / host::toUtf8(found.folder->path).erase(0, 1);
  return found.file != nullptr ? folder / host::toUtf8(found.name) : folder;
}

std::string FolderIndex::shown(const std::wstring& path) const {
  const bool isBelow = path.compare(0, prefix_.size(), prefix_) == 0;
  std::wstring_view rest(path);
  if (isBelow) rest.remove_prefix(prefix_.size());
  std::wstring text;
  while (!rest.empty()) {
    const std::wstring_view name = nextName(rest);
    if (name.empty()) continue;
    if (!text.empty() || !isBelow) text += L'/';
    text += name;
  }
  return host::toUtf8(text);
}

bool FolderIndex::isInside(const std::wstring& path) { return !findAny(path).isOutside; }

FolderIndex::Found FolderIndex::findAny(const std::wstring& path) {
  Found found;
  found.isOutside = path.compare(0, prefix_.size(), prefix_) != 0;
  if (found.isOutside) return found;
  const std::size_t cut = std::max(prefix_.size(), path.find_last_of(SEPARATORS) + 1);
  const Place place = folderAt(path.substr(prefix_.size(), cut - prefix_.size()));
  found.isOutside = place.isOutside;
  const std::wstring name = path.substr(cut);
  if (place.folder == nullptr || name.empty() || name == L"." || name == L"..") {
    const Place last = name.empty() ? place : folderAt(path.substr(prefix_.size()));
    found.folder = last.folder;
    found.isOutside = last.isOutside;
    return found;
  }
  return findIn(*place.folder, name);
}

FolderIndex::Found FolderIndex::findIn(Folder& folder, const std::wstring& name) {
  Found found;
  found.name = onDisk(folder, name);
  const auto file = folder.files.find(found.name);
  if (file != folder.files.end()) {
    found.file = &file->second;
    found.folder = &folder;
    return found;
  }
  if (folder.linksOut.count(found.name) > 0) {
    tellLinkOut(folder, found.name);
    found.isOutside = true;
    return found;
  }
  const auto below = folder.folders.find(found.name);
  if (below != folder.folders.end()) found.folder = below->second.get();
  return found;
}

std::wstring FolderIndex::onDisk(Folder& folder, const std::wstring& name) {
  ensureListed(folder);
  if (folder.has(name)) return name;
  if (folder.folded.empty()) {
    for (const auto& [file, entry] : folder.files) addFolded(folder.folded, file);
    for (const auto& [below, entry] : folder.folders) addFolded(folder.folded, below);
    for (const std::wstring& link : folder.linksOut) addFolded(folder.folded, link);
  }
  const auto alike = folder.folded.find(host::inCapitals(name));
  if (alike == folder.folded.end()) return name;
  const std::string path = host::toUtf8(folder.path + L"/").erase(0, 1);
  caseDifferences_.insert({path + host::toUtf8(name), path + host::toUtf8(alike->second)});
  return alike->second;
}

void FolderIndex::tellLinkOut(const Folder& folder, const std::wstring& name) {
  const std::string link = host::toUtf8(folder.path + L"/" + name).erase(0, 1);
  std::error_code unknown;
  linksOut_.emplace(link, fs::read_symlink(root_ / link, unknown).string());
}

void FolderIndex::ensureListed(Folder& folder) const {
  if (!folder.isListed) list(folder);
}

FolderIndex::Place FolderIndex::folderAt(const std::wstring& below) {
  const auto known = asWritten_.find(below);
  if (known != asWritten_.end()) return known->second;
  return asWritten_[below] = walk(below);
}

FolderIndex::Place FolderIndex::walk(std::wstring_view below) {
  std::vector<Folder*> way = {top_.get()};
  while (!below.empty()) {
    const std::wstring_view name = nextName(below);
    if (name.empty() || name == L".") continue;
    if (name == L"..") {
      way.pop_back();
      if (way.empty()) return {nullptr, true};
      continue;
    }
    const Found next = findIn(*way.back(), std::wstring(name));
    if (next.isOutside) return {nullptr, true};
    if (next.folder == nullptr || next.file != nullptr) return {nullptr, false};
    way.push_back(next.folder);
  }
  return {way.back(), false};
}

DiskEntry FolderIndex::lookOutside(const std::wstring& path) {
  const auto known = outside_.find(path);
  if (known != outside_.end()) return known->second;
  std::error_code unknown;
  const fs::file_status status = fs::status(host::resolvePath(path), unknown);
  const DiskEntry kind = !fs::exists(status)        ? DiskEntry::Absent
                         : fs::is_directory(status) ? DiskEntry::Folder
                                                    : DiskEntry::File;
  return outside_[path] = kind;
}

void FolderIndex::forEachFolder(const std::function<void(const Folder&)>& visit) const {
  std::vector<const Folder*> waiting = {top_.get()};
  while (!waiting.empty()) {
    const Folder* folder = waiting.back();
    waiting.pop_back();
    visit(*folder);
    for (const auto& [name, below] : folder->folders) waiting.push_back(below.get());
  }
}

std::vector<std::pair<std::string, std::string>> FolderIndex::unreadableFolders() const {
  std::vector<std::pair<std::string, std::string>> result;
  forEachFolder([&result](const Folder& folder) {
    if (!folder.problem.empty()) result.emplace_back(host::toUtf8(folder.path).erase(0, 1), folder.problem);
  });
  std::sort(result.begin(), result.end());
  return result;
}

int FolderIndex::fileCount() const {
  std::size_t count = 0;
  forEachFolder([&count](const Folder& folder) { count += folder.files.size(); });
  return static_cast<int>(count);
}

std::vector<std::pair<std::string, int>> FolderIndex::unreferenced() const {
  std::vector<std::pair<std::string, int>> result;
  for (const auto& [name, below] : top_->folders) addUnreferenced(*below, result);
  std::sort(result.begin(), result.end());
  return result;
}

/// How many files of the folder and those in it nobody has asked for, and whether that is all.
bool FolderIndex::addUnreferenced(const Folder& folder, std::vector<std::pair<std::string, int>>& result) {
  if (folder.isPassedOver) return true;
  const std::size_t before = result.size();
  bool isUseless = true;
  for (const auto& [name, below] : folder.folders) isUseless = addUnreferenced(*below, result) && isUseless;
  for (const auto& [name, file] : folder.files) {
    if (file.isReferredTo || name.front() == L'.') continue;
    result.emplace_back(host::toUtf8(folder.path + L"/" + name).erase(0, 1), 1);
  }
  const bool isReferredTo =
      std::any_of(folder.files.begin(), folder.files.end(), [](const auto& file) { return file.second.isReferredTo; });
  isUseless = isUseless && !isReferredTo;
  int count = 0;
  for (std::size_t i = before; i < result.size(); ++i) count += result[i].second;
  if (!isUseless || count < 2) return isUseless;
  result.resize(before);
  result.emplace_back(host::toUtf8(folder.path + L"/").erase(0, 1), count);
  return true;
}

}  // namespace check
