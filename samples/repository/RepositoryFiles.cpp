#include "samples/repository/RepositoryFiles.h"

#include "host/files/PictureFile.h"
#include "host/files/Uninterrupted.h"
#include "host/files/WholeFile.h"
#include "host/meshes/MeshFileWriter.h"

namespace samples {
namespace {

// Whoever writes into a folder that could not be made tells what went wrong.
void makeFolderOf(const std::filesystem::path& file) {
  std::error_code error;
  const host::Uninterrupted whole;
  std::filesystem::create_directories(file.parent_path(), error);
}

}  // namespace

std::string writeText(const std::filesystem::path& file, std::string_view text) {
  makeFolderOf(file);
  return host::writeWholeFile(file, text);
}

std::string writePictures(const QImage& picture, const std::vector<std::filesystem::path>& files) {
  for (const std::filesystem::path& file : files) {
    makeFolderOf(file);
    if (std::string error = host::writePicture(picture, file); !error.empty()) return error;
  }
  return {};
}

std::string writeMesh(const host::Mesh& mesh, const std::filesystem::path& file) {
  makeFolderOf(file);
  return host::writeMeshFile(mesh, file, host::VertexPrecision::Compact);
}

}  // namespace samples
