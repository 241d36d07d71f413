#include "apps/stage/FileCommands.h"

#include <units.h>

#include "apps/stage/document/Surroundings.h"
#include "host/application/Application.h"
#include "host/formats/GltfWriter.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

QString textOf(const std::filesystem::path& file) { return QString::fromStdString(file.string()); }

const char* const SCENE_FILTER = "Scenes (*.json);;All files (*)";

}  // namespace

FileCommands::FileCommands(SceneDocument& document, ViewportWidget& view, QObject* parent)
    : QObject(parent), document_(document), view_(view) {
  connect(&saver_, &PictureSaver::progress, this, &FileCommands::progress);
  connect(&saver_, &PictureSaver::finished, this, [this](const QString& file, const QString& error) {
    emit progress(100);
    tell(error.isEmpty() ? std::string() : (file + ": " + error).toStdString(), tr("Wrote %1").arg(file), false);
  });
}

bool FileCommands::tell(const std::string& error, const QString& success, bool reported) {
  if (!error.empty() && !reported) application().listener().report(error);
  emit said(error.empty() ? success : QString::fromStdString(error));
  return error.empty();
}

bool FileCommands::open(const std::filesystem::path& file) {
  const std::string error = document_.open(file);
  if (error.empty()) view_.frameAll();
  return tell(error, tr("Opened %1").arg(textOf(file)), true);
}

bool FileCommands::save(const std::filesystem::path& file) {
  return tell(document_.save(file), tr("Saved %1").arg(textOf(file)), true);
}

bool FileCommands::importSurroundings(const std::filesystem::path& file) {
  return tell(stage::importSurroundings(file), tr("Imported %1").arg(textOf(file)), false);
}

bool FileCommands::exportGltf(const std::filesystem::path& file) {
  const std::string error = host::writeGltf(application().scene().root(), GetMasterScale(UNITS_METERS), file);
  return tell(error.empty() ? error : file.string() + ": " + error, tr("Wrote %1").arg(textOf(file)), false);
}

QSize FileCommands::pictureSize() const {
  const host::Viewport& view = view_.viewport();
  return {pictureWidth_, qBound(16, pictureWidth_ * view.height() / view.width(), 4 * pictureWidth_)};
}

bool FileCommands::savePictureNow(const std::filesystem::path& file) {
  const std::string error = PictureSaver::saveNow(view_.viewport().camera(), pictureSize(), file);
  return tell(error.empty() ? error : file.string() + ": " + error, tr("Wrote %1").arg(textOf(file)), false);
}

bool FileCommands::mayLeaveScene() {
  if (!document_.modified()) return true;
  switch (questions_->unsavedChanges(document_.name())) {
    case Questions::Unsaved::Save:
      return saveAgain();
    case Questions::Unsaved::Discard:
      return true;
    case Questions::Unsaved::Cancel:
      break;
  }
  return false;
}

void FileCommands::newScene() {
  if (!mayLeaveScene()) return;
  document_.startNew();
  view_.frameAll();
  emit said(tr("New scene"));
}

void FileCommands::openAsked() {
  if (!mayLeaveScene()) return;
  if (const auto file = questions_->openFile(tr("Open Scene"), SCENE_FILTER)) open(*file);
}

bool FileCommands::saveAgain() { return document_.file().empty() ? saveAsAsked() : save(document_.file()); }

bool FileCommands::saveAsAsked() {
  const auto file = questions_->saveFile(tr("Save Scene"), SCENE_FILTER, "json");
  return file && save(*file);
}

void FileCommands::importAsked() {
  const auto file = questions_->openFile(tr("Import Surroundings"), "Meshes (*.glb *.obj *.vrmesh);;All files (*)");
  if (file) importSurroundings(*file);
}

void FileCommands::exportGltfAsked() {
  if (const auto file = questions_->saveFile(tr("Export glTF"), "glTF binary (*.glb)", "glb")) exportGltf(*file);
}

void FileCommands::savePictureAsked() {
  if (saver_.busy()) return emit said(tr("A picture is being drawn already"));
  const auto file = questions_->saveFile(tr("Save Picture"), "Pictures (*.png)", "png");
  if (!file) return;
  emit said(tr("Drawing %1").arg(textOf(*file)));
  saver_.start(view_.viewport().camera(), pictureSize(), *file);
}

}  // namespace stage
