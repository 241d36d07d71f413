#include "apps/cli/author/DescriptionFile.h"

#include <algorithm>

#include "apps/cli/author/XmlInsertion.h"
#include "apps/support/ParseNoteText.h"
#include "core/Disk.h"
#include "host/files/Paths.h"
#include "host/files/RegularFile.h"
#include "host/files/TemporaryFolder.h"
#include "host/files/WholeFile.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "repository/DescriptionLimits.h"
#include "repository/ParseNotes.h"
#include "repository/XmlDocument.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// What the parser would say of a description, in its own words.
class Complaint : public ZORVEL::ParseObserver {
 public:
  explicit Complaint(const fs::path& repository) : repository_(repository) {}
  void Noted(const ZORVEL::ParseNote& note) override { text_ = apps::lineOf(note, repository_); }
  const std::string& text() const { return text_; }

 private:
  fs::path repository_;
  std::string text_;
};

/// What is edited is held several times over, to be compared.
ZORVEL::XmlOptions bounds() {
  ZORVEL::XmlOptions options = ZORVEL::DescriptionLimits::Get();
  options.budgetFor = [](std::size_t) { return std::size_t{100} << 20U; };
  return options;
}

/// Of a file that was parsed, which bounds it.
std::string bytesOf(const fs::path& path) {
  host::RegularFile file(path);
  std::string bytes;
  return file.readUpTo(ZORVEL::XmlOptions().largestFile, bytes) ? bytes : std::string();
}

bool haveSameShape(const XmlSpan& span, const Element& element) {
  return std::equal(span.children.begin(), span.children.end(), element.children.begin(), element.children.end(),
                    &haveSameShape);
}

/// As its owner has marked it, which a new file in its place would pass over.
bool isWriteProtected(const fs::path& file) {
  constexpr fs::perms ANYBODY = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code error;
  const fs::perms rights = fs::status(file, error).permissions();
  return !error && (rights & ANYBODY) == fs::perms::none;
}

/// Nothing when the text is not well formed.
std::optional<Element> parsed(const std::string& text) {
  const host::TemporaryFolder folder;
  const fs::path file = folder.path() / "description.xml";
  if (folder.path().empty() || !host::writeWholeFile(file, text).empty()) return std::nullopt;
  ZORVEL::XmlError error;
  const auto document = ZORVEL::XmlDocument::Load(host::toWide(file.string()).c_str(), error, bounds());
  return document ? std::optional(elementOf(document->GetRoot())) : std::nullopt;
}

}  // namespace

DescriptionFile::DescriptionFile(const fs::path& repository) { error_ = read(repository); }

std::string DescriptionFile::read(const fs::path& repository) {
  std::error_code ignored;
  const fs::path root = fs::absolute(repository, ignored);
  if (root.empty() || !fs::is_directory(repository, ignored)) return repository.string() + " is not a folder.";
  Complaint complaint(repository);
  const ZORVEL::ObservedParsing observed(complaint);
  const std::wstring path = ZORVEL::RepositoryPaths::Description(host::toWide(root.string()));
  if (!ZORVEL::Disk::FileExists(path)) {
    ZORVEL::ParseNotes::TellMissing(path);
    return complaint.text();
  }
  ZORVEL::XmlError error;
  const auto document = ZORVEL::XmlDocument::Load(path.c_str(), error, bounds());
  if (!document) {
    ZORVEL::ParseNotes::TellUnreadable(path, error);
    return complaint.text();
  }
  root_ = elementOf(document->GetRoot());
  if (root_.name != ZORVEL::RepositoryFormat::ELEMENT_ZORVEL || !root_.text(L"xmlns").empty()) {
    ZORVEL::ParseNotes::TellWrongDocumentElement(path, document->GetRoot());
    return complaint.text();
  }
  file_ = host::resolvePath(path);
  bytes_ = bytesOf(file_);
  encoding_ = encodingOf(bytes_);
  if (!encoding_.hasPlainMarkup) {
    return file_.string() + " is in " + encoding_.name + ", which is not edited here; save it as UTF-8.";
  }
  const std::optional<XmlSpan> spans = findSpans(bytes_);
  if (!spans || !haveSameShape(*spans, root_)) {
    return file_.string() + " has a document type declaration, with which it is not edited here.";
  }
  spans_ = *spans;
  return {};
}

std::string DescriptionFile::add(const std::vector<Addition>& additions) const {
  const std::string text = XmlInsertion(bytes_, spans_, encoding_).withAdditions(additions);
  const std::optional<Element> written = parsed(text);
  if (!written || !(*written == withAdditions(root_, additions))) {
    return file_.string() + " would not read as what was there and the addition; nothing was written.";
  }
  if (isWriteProtected(file_)) return file_.string() + " is write-protected; nothing was written.";
  if (bytesOf(file_) != bytes_) return file_.string() + " was changed meanwhile; nothing was written.";
  return host::writeWholeFile(file_, text);
}

}  // namespace cli
