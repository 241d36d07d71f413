#include "apps/cli/author/ReadingChecks.h"

#include <imtl.h>
#include <unistd.h>

#include <QImage>
#include <QImageReader>

#include "apps/support/LoadedRepository.h"
#include "apps/support/ModelText.h"
#include "host/files/Paths.h"
#include "host/files/PictureFile.h"
#include "host/files/TemporaryFolder.h"
#include "host/files/WholeFile.h"
#include "host/formats/MaterialLibraryFile.h"
#include "host/meshes/MeshFile.h"
#include "host/meshes/MeshFileWriter.h"
#include "samples/repository/MaterialLibraryWriter.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

const char* const REINSTALL = "install the program anew: it does not do what it was tested for";
const char* const TRIANGLE = "v 0 0 0\nv 1 0 0\nv 0 0 1\nf 1 2 3\n";

/// `error` is empty when it could be written and read.
Check outcome(const std::string& name, const std::string& error) {
  if (error.empty()) return {name, "written and read"};
  return {name, error, REINSTALL};
}

std::string meshError(const fs::path& file) {
  const host::MeshResult result = host::readMeshFile(file);
  if (!result.mesh) return result.error;
  return result.mesh->triangles.size() == 1 ? "" : "it reads as another mesh";
}

std::string tryObj(const fs::path& file) {
  const std::string error = host::writeWholeFile(file, TRIANGLE);
  return error.empty() ? meshError(file) : error;
}

std::string tryGlb(const fs::path& file) {
  const host::MeshResult triangle = host::readMesh(TRIANGLE);
  if (!triangle.mesh) return triangle.error;
  const std::string error = host::writeMeshFile(*triangle.mesh, file);
  return error.empty() ? meshError(file) : error;
}

std::string tryPicture(const fs::path& file) {
  QImage picture(3, 2, QImage::Format_RGB32);
  picture.fill(qRgb(200, 100, 50));
  const std::string error = host::writePicture(picture, file);
  if (!error.empty()) return error;
  const QImage read(QString::fromStdString(file.string()));
  return read.size() == picture.size() && read.pixel(2, 1) == picture.pixel(2, 1) ? "" : "it reads as another picture";
}

std::string tryLibrary(const fs::path& file) {
  samples::MaterialLibraryWriter library("maps");
  library.add(samples::plain("Trial", Qt::white, 0.5, "trial.png"));
  const std::string error = library.write(file);
  if (!error.empty()) return error;
  const host::MaterialLibraryContent content = host::readMaterialLibrary(host::toWide(file.string()));
  return content.materials.size() == 1 ? "" : content.error;
}

Check pictureForms() {
  std::string names;
  for (const QByteArray& form : QImageReader::supportedImageFormats()) {
    names += (names.empty() ? "" : ", ") + form.toStdString();
  }
  const bool good = QImageReader::supportedImageFormats().contains("jpeg");
  return {"forms of pictures", names, good ? "" : "install Qt's image formats: textures are often JPEG"};
}

}  // namespace

Checks checkReading() {
  const host::TemporaryFolder folder;
  if (folder.path().empty()) return {{"files", "nothing can be tried without a temporary folder", "set TMPDIR"}};
  return {outcome("mesh, glTF binary", tryGlb(folder.path() / "glb.vrmesh")),
          outcome("mesh, OBJ", tryObj(folder.path() / "obj.vrmesh")),
          outcome("picture, PNG", tryPicture(folder.path() / "picture.png")),
          outcome("material library", tryLibrary(folder.path() / "materials.mat")), pictureForms()};
}

Check checkRepository(const fs::path& folder) {
  const apps::LoadedRepository loaded(folder);
  if (!loaded.error().empty()) return {"repository", loaded.error(), "`zorvel init` writes one to begin with"};
  std::error_code error;
  const std::string text = fs::absolute(folder, error).string() + " has " + std::to_string(apps::characters().size()) +
                           (apps::characters().size() == 1 ? " character" : " characters");
  if (::access(folder.c_str(), W_OK) != 0) return {"repository", text + "; nothing can be added", "ask for its rights"};
  return {"repository", text + " and can be written"};
}

}  // namespace cli
