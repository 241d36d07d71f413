#include "check/FolderIndex.h"

#include <algorithm>

#include "check/ParallelWork.h"
#include "host/files/DiskTroubles.h"
#include "host/files/NameCase.h"
#include "host/files/Paths.h"

namespace check {

namespace fs = std::filesystem;
using ZORVEL::DiskEntry;

/// A file, or a folder when it has one.
struct FolderIndex::Entry {
  File file;
  /// Leads out of the repository, and is neither.
  bool isLinkOut = false;
  std::unique_ptr<Folder> folder;
};

struct FolderIndex::Folder {
  /// Below the root, each name behind a slash; empty for the root.
  std::wstring path;
  bool isListed = false;
  /// Listed only when something in it is asked for: a folder of some tool, and a link, which may lead in a circle.
  bool isPassedOver = false;
  std::string problem;
  std::unordered_map<std::wstring, Entry> entries;
  /// From folded names to those on disk, made when a name is first not there as written.
  std::unordered_map<std::wstring, Named*> folded;
};

namespace {

void noteTrouble(const fs::path& path, const std::error_code& error) {
  host::DiskTroubles::instance().note(path.string(), error);
}

/// Bytes of paths that are kept to be found at once when they are asked for again; then all are forgotten.
constexpr std::size_t MOST_REMEMBERED = std::size_t{32} << 20U;
/// Beside the path itself.
constexpr std::size_t REMEMBERED_PATH = 100;

bool isPassedOver(const fs::directory_entry& entry) {
  std::error_code unknown;
  return entry.path().filename().native().front() == '.' || entry.is_symlink(unknown);
}

bool isSeparator(wchar_t c) { return c == L'\\' || c == L'/'; }

std::wstring_view nextName(std::wstring_view& rest) {
  std::size_t end = 0;
  while (end < rest.size() && !isSeparator(rest[end])) ++end;
  const std::wstring_view name = rest.substr(0, end);
  rest.remove_prefix(std::min(rest.size(), end + 1));
  return name;
}

}  // namespace

bool leadsOut(const fs::path& path, const fs::path& folder) {
  std::error_code error;
  const fs::path target = fs::canonical(path, error);
  noteTrouble(path, error);
  if (error) return false;
  const fs::path around = fs::canonical(folder, error);
  noteTrouble(folder, error);
  return !error && std::mismatch(around.begin(), around.end(), target.begin(), target.end()).first != around.end();
}

FolderIndex::FolderIndex(fs::path root, std::wstring prefix)
    : root_(std::move(root)), prefix_(std::move(prefix)), top_(std::make_unique<Folder>()) {}

FolderIndex::~FolderIndex() = default;

void FolderIndex::read(const std::function<void(std::size_t, std::size_t)>& progress) {
  ParallelWork<Folder*> work(
      [this](Folder* folder, std::vector<Folder*>& more) {
        ensureListed(*folder);
        for (const auto& [name, entry] : folder->entries) {
          if (entry.folder != nullptr && !entry.folder->isPassedOver) more.push_back(entry.folder.get());
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
  const bool isLink = entry.is_symlink(unknown);
  noteTrouble(entry.path(), unknown);
  // A link that leads nowhere is nothing.
  const bool isThere = !isLink || entry.exists(unknown);
  noteTrouble(entry.path(), unknown);
  if (!isThere) return;
  Entry& added = folder.entries[name];
  added.isLinkOut = isLink && leadsOut(entry.path(), root_);
  if (added.isLinkOut) return;
  const bool isFolder = entry.is_directory(unknown);
  noteTrouble(entry.path(), unknown);
  if (!isFolder) {
    added.file.isRegular = entry.is_regular_file(unknown);
    noteTrouble(entry.path(), unknown);
    return;
  }
  added.folder = std::make_unique<Folder>();
  added.folder->path = folder.path + L"/" + name;
  added.folder->isPassedOver = isPassedOver(entry);
}

DiskEntry FolderIndex::Look(const std::wstring& path) {
  const Found found = findAny(path);
  if (found.isOutside) return lookOutside(path);
  if (found.file == nullptr) return found.folder != nullptr ? DiskEntry::Folder : DiskEntry::Absent;
  refer(*found.file, path);
  return DiskEntry::File;
}

bool FolderIndex::IsReadable(const std::wstring& path) {
  const Found found = findAny(path);
  if (found.isOutside) return lookOutside(path) == DiskEntry::File;
  if (found.file == nullptr) return false;
  refer(*found.file, path);
  return found.file->isRegular;
}

void FolderIndex::refer(File& file, const std::wstring& path) {
  if (!file.isReferredTo) askedFor_.push_back(path.substr(prefix_.size()));
  file.isReferredTo = true;
}

const FolderIndex::File* FolderIndex::find(const std::wstring& path) { return findAny(path).file; }

fs::path FolderIndex::nativePath(const std::wstring& path) {
  const Found found = findAny(path);
  if (found.isOutside || found.folder == nullptr) return host::resolvePath(path);
  const fs::path folder = root_ / host::toUtf8(found.folder->path).erase(0, 1);
  return found.file != nullptr ? folder / host::toUtf8(*found.name) : folder;
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
  std::size_t cut = path.size();
  while (cut > prefix_.size() && !isSeparator(path[cut - 1])) --cut;
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
  Named* const entry = onDisk(folder, name);
  if (entry == nullptr) return found;
  found.name = &entry->first;
  found.isOutside = entry->second.isLinkOut;
  if (found.isOutside) {
    tellLinkOut(folder, entry->first);
    return found;
  }
  found.folder = entry->second.folder.get();
  if (found.folder != nullptr) return found;
  found.file = &entry->second.file;
  found.folder = &folder;
  return found;
}

FolderIndex::Named* FolderIndex::onDisk(Folder& folder, const std::wstring& name) {
  ensureListed(folder);
  const auto asWritten = folder.entries.find(name);
  if (asWritten != folder.entries.end()) return &*asWritten;
  if (folder.folded.empty()) {
    for (Named& entry : folder.entries) addFolded(folder.folded, entry);
  }
  const auto alike = folder.folded.find(host::inCapitals(name));
  if (alike == folder.folded.end()) return nullptr;
  const std::string path = host::toUtf8(folder.path + L"/").erase(0, 1);
  caseDifferences_.insert({path + host::toUtf8(name), path + host::toUtf8(alike->second->first)});
  return alike->second;
}

/// Of two names that are alike the first by the order of characters counts, as everywhere.
void FolderIndex::addFolded(std::unordered_map<std::wstring, Named*>& folded, Named& entry) {
  Named*& held = folded[host::inCapitals(entry.first)];
  if (held == nullptr || entry.first < held->first) held = &entry;
}

void FolderIndex::tellLinkOut(const Folder& folder, const std::wstring& name) {
  const std::string link = host::toUtf8(folder.path + L"/" + name).erase(0, 1);
  std::error_code unknown;
  linksOut_.emplace(link, fs::read_symlink(root_ / link, unknown).string());
}

void FolderIndex::ensureListed(Folder& folder) const {
  if (!folder.isListed) list(folder);
}

template <class Known>
void FolderIndex::remember(const std::wstring& path, Known& known, std::size_t& size) {
  size += REMEMBERED_PATH + path.size() * sizeof(wchar_t);
  if (size <= MOST_REMEMBERED) return;
  known.clear();
  size = 0;
}

FolderIndex::Place FolderIndex::folderAt(const std::wstring& below) {
  const auto known = asWritten_.find(below);
  if (known != asWritten_.end()) return known->second;
  remember(below, asWritten_, rememberedInside_);
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
  noteTrouble(host::nativePath(path), unknown);
  const DiskEntry kind = !fs::exists(status)        ? DiskEntry::Absent
                         : fs::is_directory(status) ? DiskEntry::Folder
                                                    : DiskEntry::File;
  remember(path, outside_, rememberedOutside_);
  return outside_[path] = kind;
}

void FolderIndex::forEachFolder(const std::function<void(const Folder&)>& visit) const {
  std::vector<const Folder*> waiting = {top_.get()};
  while (!waiting.empty()) {
    const Folder* folder = waiting.back();
    waiting.pop_back();
    visit(*folder);
    for (const auto& [name, entry] : folder->entries) {
      if (entry.folder != nullptr) waiting.push_back(entry.folder.get());
    }
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
  forEachFolder([&count](const Folder& folder) {
    const auto isFile = [](const Named& entry) { return entry.second.folder == nullptr && !entry.second.isLinkOut; };
    count += static_cast<std::size_t>(std::count_if(folder.entries.begin(), folder.entries.end(), isFile));
  });
  return static_cast<int>(count);
}

std::vector<std::pair<std::string, int>> FolderIndex::unreferenced() const {
  std::vector<std::pair<std::string, int>> result;
  for (const auto& [name, entry] : top_->entries) {
    if (entry.folder != nullptr) addUnreferenced(*entry.folder, result);
  }
  std::sort(result.begin(), result.end());
  return result;
}

/// How many files of the folder and those in it nobody has asked for, and whether that is all.
bool FolderIndex::addUnreferenced(const Folder& folder, std::vector<std::pair<std::string, int>>& result) {
  if (folder.isPassedOver) return true;
  const std::size_t before = result.size();
  bool isUseless = true;
  for (const auto& [name, entry] : folder.entries) {
    if (entry.folder != nullptr) {
      isUseless = addUnreferenced(*entry.folder, result) && isUseless;
    } else if (entry.file.isReferredTo) {
      isUseless = false;
    } else if (name.front() != L'.' && !entry.isLinkOut) {
      result.emplace_back(host::toUtf8(folder.path + L"/" + name).erase(0, 1), 1);
    }
  }
  int count = 0;
  for (std::size_t i = before; i < result.size(); ++i) count += result[i].second;
  if (!isUseless || count < 2) return isUseless;
  result.resize(before);
  result.emplace_back(host::toUtf8(folder.path + L"/").erase(0, 1), count);
  return true;
}

}  // namespace check
