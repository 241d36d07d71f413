#pragma once

#include <QObject>
#include <memory>

#include "apps/stage/Questions.h"
#include "apps/stage/document/PictureSaver.h"
#include "apps/stage/document/SceneDocument.h"
#include "apps/stage/viewport/ViewportWidget.h"

namespace stage {

/// The commands of the File menu. What fails is said in one line, the scene stays as it was.
class FileCommands : public QObject {
  Q_OBJECT

 public:
  /// Document and view must outlive this.
  FileCommands(SceneDocument& document, ViewportWidget& view, QObject* parent = nullptr);

  void setQuestions(std::unique_ptr<Questions> questions) { questions_ = std::move(questions); }

  /// Of saved pictures, in pixels; the height follows the view.
  void setPictureWidth(int pixels) { pictureWidth_ = pixels; }

  /// False when a file was asked for and could not be read.
  bool open(const std::filesystem::path& file);
  bool save(const std::filesystem::path& file);
  bool importSurroundings(const std::filesystem::path& file);
  bool exportGltf(const std::filesystem::path& file);
  /// Waits for the drawing; the menu's own command does not.
  bool savePictureNow(const std::filesystem::path& file);
  /// False when the person wants to go on with the scene that is there.
  bool mayLeaveScene();

 public slots:
  void newScene();
  void openAsked();
  /// Into the file it came from; asks where there is none.
  bool saveAgain();
  bool saveAsAsked();
  void importAsked();
  void exportGltfAsked();
  void savePictureAsked();

 signals:
  /// A line for the person; a problem goes into the host's listener as well, where it was not reported already.
  void said(const QString& message);
  void progress(int percent);

 private:
  bool tell(const std::string& error, const QString& success, bool reported);
  QSize pictureSize() const;

  SceneDocument& document_;
  ViewportWidget& view_;
  std::unique_ptr<Questions> questions_ = std::make_unique<Questions>();
  PictureSaver saver_;
  int pictureWidth_ = 1920;
};

}  // namespace stage
