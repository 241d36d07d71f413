#include "check/Contents.h"

#include <QBuffer>
#include <QImageReader>
#include <QString>
#include <algorithm>
#include <fstream>
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

struct Bytes {
  bool isOpened = false;
  bool isWhole = false;
  std::string text;
};

/// Goes on behind the beginning only when that is what it takes.
Bytes readFile(const fs::path& file, const std::function<bool(const std::string& beginning)>& wantsAll) {
  Bytes bytes;
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return bytes;
  std::ifstream stream;
  stream.rdbuf()->pubsetbuf(nullptr, 0);
  stream.open(file, std::ios::binary);
  bytes.isOpened = stream.is_open();
  std::size_t wanted = BEGINNING;
  while (bytes.isOpened && stream && bytes.text.size() < wanted) {
    const std::size_t before = bytes.text.size();
    bytes.text.resize(wanted);
    stream.read(bytes.text.data() + before, static_cast<std::streamsize>(wanted - before));
    bytes.text.resize(before + static_cast<std::size_t>(stream.gcount()));
    if (bytes.text.size() == BEGINNING && wantsAll(bytes.text)) {
      wanted = std::max<std::size_t>(BEGINNING, std::min(fs::file_size(file, error), LARGEST_FILE) + 1);
    }
  }
  bytes.isWhole = stream.eof();
  return bytes;
}

bool isText(const std::string& bytes) { return bytes.find('\0') == std::string::npos; }

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
  const Bytes bytes = readFile(file, [](const std::string&) { return true; });
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

bool isOpenMesh(const std::string& beginning) { return host::looksLikeGlb(beginning) || host::looksLikeObj(beginning); }

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

template <class Content>
void addJobs(std::map<fs::path, Content>& contents, std::vector<Job>& jobs) {
  for (auto& [file, content] : contents) {
    jobs.push_back([&path = file, &result = content] { look(path, result); });
  }
}

}  // namespace

void Contents::read(const std::function<void(std::size_t, std::size_t)>& progress) {
  std::vector<Job> jobs;
  addJobs(pictures_, jobs);
  addJobs(meshes_, jobs);
  addJobs(libraries_, jobs);
  ParallelWork<Job>([](const Job& job, std::vector<Job>&) { job(); }, progress).run(std::move(jobs));
}

}  // namespace check
