#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/DiskView.h"

namespace check {

/// Whether what lies at the path is, once links are followed, not in the folder nor in one below it. False for what is
/// not there.
bool leadsOut(const std::filesystem::path& path, const std::filesystem::path& folder);

/// What lies in a repository, from one listing for each folder, for whoever asks Disk while this is its view. Names are
/// found without regard to case, as in Windows. What is asked for counts as referred to. Paths outside the repository,
/// by their names or because a link leads there, are asked of the disk.
class FolderIndex : public ZORVEL::DiskView {
 public:
  struct File {
    /// False for a pipe, a device and the like, which nobody should open.
    bool isRegular = true;
    bool isReferredTo = false;
  };

  /// A file below the root, with slashes, and whether it was found only without regard to case.
  struct CaseDifference {
    std::string wanted;
    std::string found;
    bool operator<(const CaseDifference& other) const {
      return std::tie(wanted, found) < std::tie(other.wanted, other.found);
    }
  };

  /// `prefix` is what the paths of the repository begin with: the root as the settings hold it.
  FolderIndex(std::filesystem::path root, std::wstring prefix);
  ~FolderIndex() override;

  /// Lists all folders. Folders that begin with a dot and links to folders are only listed when something in them is
  /// asked for.
  void read(const std::function<void(std::size_t done, std::size_t known)>& progress);

  ZORVEL::DiskEntry Look(const std::wstring& path) override;
  /// True for every regular file: whether it can be opened shows when it is read.
  bool IsReadable(const std::wstring& path) override;

  /// Null for what is no file of the repository. The same file is the same one however it is written.
  const File* find(const std::wstring& path);
  /// Where it is on this machine, in the letter case of the disk.
  std::filesystem::path nativePath(const std::wstring& path);
  /// For a person: below the root, with slashes and as the description writes it; whole for a path outside.
  std::string shown(const std::wstring& path) const;
  bool isInside(const std::wstring& path);

  /// In the order of their names.
  const std::set<CaseDifference>& caseDifferences() const { return caseDifferences_; }
  /// Files that nobody has asked for, below the root and sorted; a folder of which nothing was asked for stands for all
  /// its files, with a slash at its end and their number.
  std::vector<std::pair<std::string, int>> unreferenced() const;
  /// Files that were asked for and are there, below the root and as they were first asked for.
  const std::vector<std::wstring>& askedFor() const { return askedFor_; }
  /// Links that were asked for and lead out of the repository, each with where it leads.
  const std::map<std::string, std::string>& linksOut() const { return linksOut_; }
  /// Folders that could not be listed, with the reason.
  std::vector<std::pair<std::string, std::string>> unreadableFolders() const;
  int fileCount() const;

 private:
  struct Folder;
  struct Entry;
  /// By its name on disk.
  using Named = std::pair<const std::wstring, Entry>;
  struct Place {
    Folder* folder = nullptr;
    bool isOutside = false;
  };
  struct Found {
    /// The one found, or the one that the file is in.
    Folder* folder = nullptr;
    File* file = nullptr;
    /// As it is on disk; null for what is not there.
    const std::wstring* name = nullptr;
    bool isOutside = false;
  };

  void list(Folder& folder) const;
  void add(const std::filesystem::directory_entry& entry, Folder& folder) const;
  void ensureListed(Folder& folder) const;
  Found findAny(const std::wstring& path);
  Found findIn(Folder& folder, const std::wstring& name);
  /// Null when it is not there.
  Named* onDisk(Folder& folder, const std::wstring& name);
  static void addFolded(std::unordered_map<std::wstring, Named*>& folded, Named& entry);
  void refer(File& file, const std::wstring& path);
  void tellLinkOut(const Folder& folder, const std::wstring& name);
  Place folderAt(const std::wstring& below);
  Place walk(std::wstring_view below);
  ZORVEL::DiskEntry lookOutside(const std::wstring& path);
  /// Makes room for it in `known`, whose paths take `size` bytes.
  template <class Known>
  static void remember(const std::wstring& path, Known& known, std::size_t& size);
  void forEachFolder(const std::function<void(const Folder&)>& visit) const;
  static bool addUnreferenced(const Folder& folder, std::vector<std::pair<std::string, int>>& result);

  std::filesystem::path root_;
  std::wstring prefix_;
  std::unique_ptr<Folder> top_;
  std::unordered_map<std::wstring, Place> asWritten_;
  std::unordered_map<std::wstring, ZORVEL::DiskEntry> outside_;
  std::size_t rememberedInside_ = 0;
  std::size_t rememberedOutside_ = 0;
  std::set<CaseDifference> caseDifferences_;
  std::map<std::string, std::string> linksOut_;
  std::vector<std::wstring> askedFor_;
};

}  // namespace check
