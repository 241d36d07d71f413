#include "check/Contents.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QImageReader>
#include <QString>
#include <algorithm>
#include <string_view>
#include <vector>

#include "check/ParallelWork.h"
#include "host/meshes/GltfMeshReader.h"
#include "host/meshes/MeshFile.h"
#include "host/meshes/ObjMeshReader.h"
#include "ui/PictureReader.h"

namespace check {

namespace fs = std::filesystem;

namespace {

/// More than this nobody sensible puts into one file; to read it would take long and say little.
constexpr std::size_t LARGEST_FILE = std::size_t{64} << 20U;
/// Enough to tell one form from another.
constexpr std::size_t BEGINNING = 4096;
constexpr std::size_t AT_ONCE = std::size_t{64} << 10U;

struct Bytes {
  bool isOpened = false;
  bool isWhole = false;
  std::string text;
};

using Judge = std::function<bool(std::string_view beginning)>;

/// Appends until the text has that many bytes. False when the file cannot be read or has no more.
bool readUpTo(int file, std::size_t wanted, Bytes& bytes) {
  std::size_t size = bytes.text.size();
  bytes.text.resize(wanted);
  ssize_t count = 1;
  while (size < wanted && count > 0) {
    count = ::read(file, bytes.text.data() + size, wanted - size);
    if (count > 0) size += static_cast<std::size_t>(count);
  }
  bytes.text.resize(size);
  bytes.isWhole = count == 0;
  return count > 0;
}

/// Of a share each reading is a way there and back: small files are read in one.
void readContent(int file, std::size_t size, const Judge& wantsAll, Bytes& bytes) {
  const std::size_t first = size == 0 ? BEGINNING : std::min(size, AT_ONCE);
  if (!readUpTo(file, first, bytes)) return;
  if (bytes.text.size() > BEGINNING && !wantsAll(std::string_view(bytes.text).substr(0, BEGINNING))) {
    bytes.text.resize(BEGINNING);
  } else if (size == 0 || size > first) {
    readUpTo(file, std::min(size, LARGEST_FILE), bytes);
  }
  bytes.isWhole = bytes.isWhole || bytes.text.size() == size;
}

/// Goes on behind the beginning only when that is what it takes. No path is what nobody should open.
Bytes readFile(const fs::path& place, const Judge& wantsAll) {
  Bytes bytes;
  // Another may have put a pipe there by now, which would keep its reader waiting.
  const int file = place.empty() ? -1 : ::open(place.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return bytes;
  struct stat status = {};
  bytes.isOpened = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
  if (bytes.isOpened) readContent(file, static_cast<std::size_t>(status.st_size), wantsAll, bytes);
  ::close(file);
  return bytes;
}

bool isText(std::string_view bytes) { return bytes.find('\0') == std::string_view::npos; }

const char* const NOT_OPENED = "it cannot be opened";
const char* const TOO_LARGE = "it has more than 64 MiB";

/// A picture whose end is missing is shown in part or not at all. Of PNG, which nearly all are, the last of its chunks
/// tells; others are read.
bool isCutOff(const std::string& bytes, const QByteArray& format) {
  if (format != "png") {
    QBuffer buffer;
    buffer.setData(bytes.data(), static_cast<int>(bytes.size()));
    QImageReader reader(&buffer);
    return reader.read().isNull();
  }
  const std::string end("IEND\xAE\x42\x60\x82", 8);
  return bytes.find(end) == std::string::npos;
}

void look(const fs::path& file, PictureContent& picture) {
  const Bytes bytes = readFile(file, [](std::string_view) { return true; });
  picture.form = bytes.isOpened ? Form::Damaged : Form::Unreadable;
  picture.problem = bytes.isOpened ? TOO_LARGE : NOT_OPENED;
  if (!bytes.isWhole) return;
  QBuffer buffer;
  buffer.setData(bytes.text.data(), static_cast<int>(bytes.text.size()));
  buffer.open(QIODevice::ReadOnly);
  QString problem;
  picture.size = ZORVEL::PictureReader::Measure(buffer, problem);
  buffer.seek(0);
  if (problem.isEmpty() && isCutOff(bytes.text, QImageReader::imageFormat(&buffer))) {
    problem = QStringLiteral("it is damaged or cut off");
  }
  picture.problem = problem.toStdString();
  if (problem.isEmpty()) picture.form = Form::Open;
}

bool isOpenMesh(std::string_view beginning) { return host::looksLikeGlb(beginning) || host::looksLikeObj(beginning); }

void look(const fs::path& file, MeshContent& mesh) {
  const Bytes bytes = readFile(file, isOpenMesh);
  mesh.form = bytes.isOpened ? Form::Damaged : Form::Unreadable;
  mesh.problem = bytes.isOpened ? "" : NOT_OPENED;
  if (!bytes.isOpened) return;
  const bool isOpen = isOpenMesh(bytes.text);
  if (!isOpen && !isText(bytes.text)) {
    mesh.form = Form::Closed;
  } else if (isOpen && !bytes.isWhole) {
    mesh.problem = TOO_LARGE;
  } else {
    const host::MeshResult result = host::readMesh(bytes.text);
    mesh.problem = result.error;
    if (result.mesh != nullptr) {
      mesh.form = Form::Open;
      mesh.bounds = result.mesh->bounds;
    }
  }
}

void look(const fs::path& file, LibraryContent& library) {
  Bytes bytes = readFile(file, isText);
  library.form = bytes.isOpened ? Form::Damaged : Form::Unreadable;
  library.problem = bytes.isOpened ? "" : NOT_OPENED;
  if (!bytes.isOpened) return;
  if (!isText(bytes.text)) {
    library.form = Form::Closed;
  } else if (!bytes.isWhole) {
    library.problem = TOO_LARGE;
  } else {
    library.form = Form::Open;
    library.text = std::move(bytes.text);
  }
}

using Job = std::function<void()>;

template <class Wanted>
void addJobs(Wanted& wanted, std::vector<Job>& jobs) {
  for (auto& entry : wanted) {
    jobs.push_back([&one = entry.second] { look(one.place, one.content); });
  }
}

}  // namespace

const LibraryContent* Contents::library(const std::wstring& path) const {
  const auto found = libraries_.find(files_.find(path));
  return found != libraries_.end() ? &found->second.content : nullptr;
}

void Contents::read(const std::function<void(std::size_t, std::size_t)>& progress) {
  std::vector<Job> jobs;
  addJobs(pictures_, jobs);
  addJobs(meshes_, jobs);
  addJobs(libraries_, jobs);
  ParallelWork<Job>([](const Job& job, std::vector<Job>&) { job(); }, progress).run(std::move(jobs));
}

}  // namespace check
