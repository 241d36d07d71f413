#include "apps/stage/document/PictureSaver.h"

#include <system_error>
#include <utility>
#include <vector>

#include "host/application/Application.h"
#include "host/files/PictureFile.h"
#include "host/view/SceneView.h"

namespace stage {

namespace {

std::vector<host::ViewItem> itemsNow() { return host::Application::instance().sceneView().rays().items(); }

std::string draw(std::vector<host::ViewItem> items, const host::Camera& camera, const host::RenderOptions& options,
                 const std::filesystem::path& file) {
  host::RayScene rays;
  rays.setItems(std::move(items));
  if (!rays.complete()) return "there is not enough memory to draw everything";
  const QImage picture = host::render(rays, camera, options);
  return picture.isNull() ? "the picture was given up" : host::writePicture(picture, file);
}

host::RenderOptions optionsFor(const QSize& size) {
  host::RenderOptions options;
  options.width = size.width();
  options.height = size.height();
  return options;
}

}  // namespace

PictureSaver::~PictureSaver() {
  cancel_ = true;
  if (thread_.joinable()) thread_.join();
}

std::string PictureSaver::saveNow(const host::Camera& camera, const QSize& size, const std::filesystem::path& file) {
  return draw(itemsNow(), camera, optionsFor(size), file);
}

bool PictureSaver::start(const host::Camera& camera, const QSize& size, const std::filesystem::path& file) {
  if (busy_) return false;
  if (thread_.joinable()) thread_.join();
  busy_ = true;
  host::RenderOptions options = optionsFor(size);
  options.cancel = &cancel_;
  options.progress = [this](float share) { emit progress(static_cast<int>(share * 100.0F)); };
  const auto work = [this, items = itemsNow(), camera, options, file] {
    const std::string error = draw(items, camera, options, file);
    const auto tell = [this, error, name = QString::fromStdString(file.string())] {
      busy_ = false;
      emit finished(name, QString::fromStdString(error));
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
  };
  try {
    thread_ = std::thread(work);
  } catch (const std::system_error&) {
    work();
  }
  return true;
}

}  // namespace stage
