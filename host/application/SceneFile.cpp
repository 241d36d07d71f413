#include "host/application/SceneFile.h"

#include <notify.h>

#include <new>
#include <optional>

#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/files/RegularFile.h"
#include "host/formats/SceneJson.h"
#include "host/formats/SceneReader.h"
#include "host/formats/Unreadable.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/services/UndoStack.h"

namespace host {

namespace {

std::string report(const std::filesystem::path& file, const std::string& done, const std::string& problem) {
  const std::string line = "Scene " + file.string() + " could not be " + done + ": " + problem + ".";
  Listener::instance().report(line);
  return line;
}

std::string contentOf(const std::filesystem::path& file) {
  std::error_code error;
  static_cast<void>(std::filesystem::file_size(file, error));
  if (error) throw Unreadable(error.message());
  RegularFile stream(file);
  std::string content;
  // One byte more than there may be tells that there are too many.
  if (!stream.isOpen() || !stream.readUpTo(MOST_SCENE_BYTES + 1, content)) throw Unreadable("it cannot be read");
  return content;
}

nlohmann::ordered_json parsed(const std::string& text) {
  const std::string excess = excessOf(text);
  if (!excess.empty()) throw Unreadable(excess);
  try {
    return nlohmann::ordered_json::parse(text);
  } catch (const nlohmann::json::out_of_range&) {
    throw Unreadable("a number in it is out of range");
  } catch (const nlohmann::json::exception&) {
    throw Unreadable("it is no scene file, or not a whole one");
  }
}

/// The text is gone before anything is made of the values.
nlohmann::ordered_json documentOf(const std::filesystem::path& file) { return parsed(contentOf(file)); }

/// Nothing, and `problem` says why, when any part of the file cannot be read.
std::optional<SceneReading> read(const std::filesystem::path& file, std::string& problem) {
  try {
    return readScene(documentOf(file));
  } catch (const nlohmann::json::exception& damage) {
    problem = std::string("it is damaged: ") + damage.what();
  } catch (const std::bad_alloc&) {
    problem = "there is not enough memory for it";
  } catch (const std::exception& damage) {
    problem = damage.what();
  }
  return std::nullopt;
}

void takeOver(const SceneReading& reading) {
  Application& application = Application::instance();
  application.undo().clear();
  application.units() = reading.units;
  application.scene().replace(reading.content);
  application.interface().clearMaterials();
}

}  // namespace

std::string openScene(const std::filesystem::path& file) {
  FileIOType type = IOTYPE_MAX;
  std::string problem;
  const std::optional<SceneReading> reading = read(file, problem);
  if (!reading) {
    BroadcastNotification(NOTIFY_FILE_OPEN_FAILED, &type);
    return report(file, "opened", problem);
  }
  BroadcastNotification(NOTIFY_FILE_PRE_OPEN, &type);
  takeOver(*reading);
  BroadcastNotification(NOTIFY_FILE_POST_OPEN, &type);
  return "";
}

std::string saveScene(const std::filesystem::path& file) {
  Application& application = Application::instance();
  const std::string problem = writeSceneJson(application.scene(), application.units(), file);
  return problem.empty() ? "" : report(file, "saved", problem);
}

}  // namespace host
