#include "check/Contents.h"

#include <QBuffer>
#include <QImageReader>
#include <QString>
#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string_view>
#include <vector>

#include "check/ParallelWork.h"
#include "host/files/RegularFile.h"
#include "host/formats/MaterialLibraryFile.h"
#include "host/meshes/GltfMeshReader.h"
#include "host/meshes/MeshFile.h"
#include "host/meshes/ObjMeshReader.h"
#include "ui/PictureForm.h"
#include "ui/PictureReader.h"

namespace check {

namespace {

/// A picture of 8192 by 8192 pixels, each another one, is a file about as large.
constexpr std::size_t LARGEST_PICTURE = std::size_t{256} << 20U;
/// Enough to tell one form from another.
constexpr std::size_t BEGINNING = 4096;
/// What costs a share about as much as a single byte does.
constexpr std::size_t AT_ONCE = std::size_t{64} << 10U;
/// What is read at a time, in bytes of files larger than that; what is made of them takes up to thirty times as much. A
/// larger file is read alone.
constexpr std::uintmax_t MOST_AT_A_TIME = std::uintmax_t{16} << 20U;
/// In pixels, far more than the window shows. Small files can hold pictures that take gigabytes.
constexpr int MOST_DECODED = 1024 * 1024;

/// Shared by those who look at files at the same time.
struct Room {
  std::mutex mutex;
  std::condition_variable changed;
  std::uintmax_t left = MOST_AT_A_TIME;
};

/// Room for one file, for as long as it lives.
class Taken {
 public:
  /// Waits until the file fits.
  Taken(Room& room, std::uintmax_t size) : room_(room), bytes_(std::min(size, MOST_AT_A_TIME)) {
    std::unique_lock<std::mutex> lock(room_.mutex);
    room_.changed.wait(lock, [this] { return room_.left >= bytes_; });
    room_.left -= bytes_;
  }
  ~Taken() {
    const std::lock_guard<std::mutex> lock(room_.mutex);
    room_.left += bytes_;
    room_.changed.notify_all();
  }
  Taken(const Taken&) = delete;
  Taken& operator=(const Taken&) = delete;

 private:
  Room& room_;
  std::uintmax_t bytes_;
};

/// A file that is looked at, and where there is to be room for it.
struct Place {
  const std::string& path;
  Room& room;
  /// Of a larger one only the beginning is read.
  std::size_t most;
};

struct Bytes {
  bool isOpened = false;
  bool isWhole = false;
  std::string text;
  std::unique_ptr<Taken> taken;
};

using Judge = std::function<bool(std::string_view beginning)>;

/// Goes on behind the beginning only when that is what it takes. No path is what nobody should open.
Bytes readFile(const Place& place, const Judge& wantsAll) {
  Bytes bytes;
  if (place.path.empty()) return bytes;
  host::RegularFile file(place.path, host::RegularFile::Seen::InListing);
  bytes.isOpened = file.readUpTo(AT_ONCE, bytes.text);
  if (bytes.text.size() > BEGINNING && !wantsAll(std::string_view(bytes.text).substr(0, BEGINNING))) {
    bytes.text.resize(BEGINNING);
    return bytes;
  }
  if (bytes.isOpened && !file.isAtEnd() && file.size() <= place.most) {
    bytes.taken = std::make_unique<Taken>(place.room, file.size());
    bytes.text.reserve(static_cast<std::size_t>(file.size()) + 1);
    bytes.isOpened = file.readUpTo(place.most + 1, bytes.text);
  }
  bytes.isWhole = file.isAtEnd();
  return bytes;
}

bool isText(std::string_view bytes) { return bytes.find('\0') == std::string_view::npos; }

const char* const NOT_OPENED = "it cannot be opened";

std::string tooLarge(const Place& file) { return "it has more than " + std::to_string(file.most >> 20U) + " MiB"; }

/// A picture whose end is missing is shown in part or not at all. Of PNG, which nearly all are, the last of its chunks
/// tells; others are read.
bool isCutOff(const std::string& bytes, const QByteArray& format) {
  if (format != "png") {
    QBuffer buffer;
    buffer.setData(bytes.data(), static_cast<int>(bytes.size()));
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    return reader.read().isNull();
  }
  const std::string end("IEND\xAE\x42\x60\x82", 8);
  return bytes.find(end) == std::string::npos;
}

void look(const Place& file, PictureContent& picture) {
  const Bytes bytes = readFile(file, [](std::string_view) { return true; });
  picture.form = bytes.isOpened ? Form::Damaged : Form::Unreadable;
  picture.problem = bytes.isOpened ? tooLarge(file) : NOT_OPENED;
  if (!bytes.isWhole) return;
  QBuffer buffer;
  buffer.setData(bytes.text.data(), static_cast<int>(bytes.text.size()));
  buffer.open(QIODevice::ReadOnly);
  QString problem;
  picture.size = ZORVEL::PictureReader::Measure(buffer, problem);
  const bool isSmall = picture.size.width() <= MOST_DECODED / std::max(1, picture.size.height());
  QString ignored;
  if (problem.isEmpty() && isSmall && isCutOff(bytes.text, ZORVEL::PictureForm::Of(buffer, ignored))) {
    problem = QStringLiteral("it is damaged or cut off");
  }
  picture.problem = problem.toStdString();
  if (problem.isEmpty()) picture.form = Form::Open;
}

bool isOpenMesh(std::string_view beginning) { return host::looksLikeGlb(beginning) || host::looksLikeObj(beginning); }

void look(const Place& file, MeshContent& mesh) {
  const Bytes bytes = readFile(file, isOpenMesh);
  mesh.form = bytes.isOpened ? Form::Damaged : Form::Unreadable;
  mesh.problem = bytes.isOpened ? "" : NOT_OPENED;
  if (!bytes.isOpened) return;
  const bool isOpen = isOpenMesh(bytes.text);
  if (!isOpen && !isText(bytes.text)) {
    mesh.form = Form::Closed;
  } else if (isOpen && !bytes.isWhole) {
    mesh.problem = tooLarge(file);
  } else {
    const host::MeshResult result = host::readMesh(bytes.text);
    mesh.problem = result.error;
    if (result.mesh != nullptr) {
      mesh.form = Form::Open;
      mesh.bounds = result.mesh->bounds;
    }
  }
}

void look(const Place& file, LibraryContent& library) {
  Bytes bytes = readFile(file, isText);
  library.form = bytes.isOpened ? Form::Damaged : Form::Unreadable;
  library.problem = bytes.isOpened ? "" : NOT_OPENED;
  if (!bytes.isOpened) return;
  if (!isText(bytes.text)) {
    library.form = Form::Closed;
  } else if (!bytes.isWhole) {
    library.problem = tooLarge(file);
  } else {
    library.form = Form::Open;
    library.text = std::move(bytes.text);
  }
}

using Job = std::function<void()>;

template <class Wanted>
void addJobs(Wanted& wanted, Room& room, std::size_t most, std::vector<Job>& jobs) {
  for (auto& entry : wanted) {
    jobs.push_back([&one = entry.second, &room, most] { look(Place{one.place, room, most}, one.content); });
  }
}

}  // namespace

const LibraryContent* Contents::library(const std::wstring& path) const {
  const auto found = libraries_.find(files_.find(path));
  return found != libraries_.end() ? &found->second.content : nullptr;
}

void Contents::read(const std::function<void(std::size_t, std::size_t)>& progress) {
  std::vector<Job> jobs;
  Room room;
  addJobs(pictures_, room, LARGEST_PICTURE, jobs);
  addJobs(meshes_, room, host::LARGEST_MESH_FILE, jobs);
  addJobs(libraries_, room, host::LARGEST_LIBRARY, jobs);
  ParallelWork<Job>([](const Job& job, std::vector<Job>&) { job(); }, progress).run(std::move(jobs));
}

}  // namespace check
