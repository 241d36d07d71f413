#include "apps/cli/CreateCommand.h"

#include <units.h>

#include <algorithm>
#include <iostream>
#include <set>

#include "apps/cli/Choice.h"
#include "apps/cli/LabelFonts.h"
#include "apps/cli/PlaceByClicks.h"
#include "apps/cli/Progress.h"
#include "apps/cli/ResultFiles.h"
#include "apps/support/ExitStatus.h"
#include "apps/support/LoadedRepository.h"
#include "apps/support/OutsideFiles.h"
#include "check/Checker.h"
#include "host/application/Application.h"
#include "host/application/SceneFile.h"
#include "host/files/FilesRead.h"
#include "host/files/Paths.h"
#include "host/files/PictureFile.h"
#include "host/files/PrintableText.h"
#include "host/formats/GltfWriter.h"
#include "host/formats/SceneJson.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/services/Units.h"
#include "host/view/Renderer.h"
#include "host/view/SceneItems.h"
#include "scene/BuildFindings.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"

namespace cli {

using namespace apps;

namespace {

void complain(const std::string& text) { host::printLine(std::cerr, "zorvel create: " + text); }

/// Everything that keeps the result from being what was asked for, each once, in the order met.
class Findings {
 public:
  void add(const std::string& text) {
    if (known_.insert(text).second) lines_.push_back(text);
  }
  const std::vector<std::string>& lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
  std::set<std::string> known_;
};

std::string describe(const ZORVEL::BuiltPiece& piece) {
  using ZORVEL::MaterialState;
  std::string text = "  " + host::toUtf8(piece.meshFile);
  if (piece.mesh == ZORVEL::MeshState::Shared) text += "  (mesh shared)";
  const MaterialState state = piece.material.state;
  if (state != MaterialState::FromScene && state != MaterialState::FromLibrary) return text;
  text += "  material " + host::toUtf8(piece.material.name);
  return state == MaterialState::FromScene ? text + " (shared)" : text;
}

void tell(const ZORVEL::BuildReport& report, Findings& findings) {
  for (const ZORVEL::BuiltPiece& piece : report.pieces) host::printLine(std::cout, describe(piece));
  for (const ZORVEL::BuildFinding& finding : ZORVEL::BuildFindings::Describe(report)) {
    findings.add(host::toUtf8(finding.text));
  }
}

bool written(const std::filesystem::path& file, const std::string& error) {
  if (error.empty()) {
    host::printLine(std::cout, "Wrote " + file.string());
  } else {
    complain(error);
  }
  return error.empty();
}

Point3 pointOf(const std::array<float, 3>& numbers) { return {numbers[0], numbers[1], numbers[2]}; }

host::Camera cameraFor(const CreateOptions& options, const Box3& bounds) {
  if (options.eye && options.target) return {pointOf(*options.eye), pointOf(*options.target)};
  return host::Camera::framing(bounds, static_cast<float>(options.width) / static_cast<float>(options.height));
}

/// Of the processor: several times what a picture of that size takes.
double mostSecondsToDraw(const CreateOptions& options) { return 6.0 + 20e-6 * options.width * options.height; }

std::string writePicture(const CreateOptions& options, std::vector<host::ViewItem> items) {
  const LabelFonts fonts(items);
  host::RayScene rays;
  rays.setItems(std::move(items));
  if (!rays.complete()) return "there is not enough memory to draw everything";
  Progress progress("Drawing");
  host::RenderOptions render;
  render.width = options.width;
  render.height = options.height;
  render.progress = [&progress](float done) { progress.report(done); };
  render.mostSeconds = mostSecondsToDraw(options);
  const QImage picture = host::render(rays, cameraFor(options, rays.bounds()), render);
  if (picture.isNull()) return "it takes too long to draw: too many triangles lie in one place";
  return host::writePicture(picture, options.picture);
}

/// False when one of them could not be written.
bool writeFiles(const CreateOptions& options, std::vector<host::ViewItem> items) {
  host::Scene& scene = host::Application::instance().scene();
  bool good = true;
  if (!options.gltf.empty()) {
    const double metres = host::Application::instance().units().sceneUnitIn(UNITS_METERS);
    good = written(options.gltf, host::writeGltf(scene.root(), metres, options.gltf)) && good;
  }
  if (!options.json.empty())
    good =
        written(options.json, host::writeSceneJson(scene, host::Application::instance().units(), options.json)) && good;
  if (!options.picture.empty()) good = written(options.picture, writePicture(options, std::move(items))) && good;
  return good;
}

/// False when the scene to build into cannot be read.
bool prepareScene(const CreateOptions& options) {
  host::Application& application = host::Application::instance();
  application.reset();
  application.listener().clear();
  if (options.into.empty()) {
    application.units().set(options.unit, 1.0F);
    return true;
  }
  const std::string error = host::openScene(options.into);
  if (!error.empty()) complain(error);
  return error.empty();
}

ResultFiles resultsOf(const CreateOptions& options) {
  ResultFiles results;
  results.add("--gltf", options.gltf);
  results.add("--json", options.json);
  results.add("--picture", options.picture);
  return results;
}

/// Empty when the results may be written over what is there. A scene may replace the one that it was built into.
std::string whyTaken(const CreateOptions& options, ResultFiles::Paths files) {
  files.push_back(options.into);
  return resultsOf(options).whyTaken(files, "--json", options.into);
}

/// That is how preview pictures are made. Whether it is a texture that is drawn shows when it has been read.
bool mayBeRemade(const std::filesystem::path& file, const std::filesystem::path& picture) {
  std::error_code error;
  return file.extension() == ".png" && std::filesystem::equivalent(file, picture, error);
}

/// Before anything is built.
std::string whyRefused(const CreateOptions& options) {
  const ResultFiles results = resultsOf(options);
  const std::string same = results.whyTheSame();
  if (!same.empty()) return same;
  if (!results.mayReplaceIn(options.repository)) return whyTaken(options, {});
  check::CheckerOptions wanted;
  wanted.wantsFiles = true;
  ResultFiles::Paths files = check::checkRepository(options.repository, wanted).files;
  // The checker looks into more than is needed to build.
  host::FilesRead::forget();
  const auto isRemade = [&options](const std::filesystem::path& file) { return mayBeRemade(file, options.picture); };
  files.erase(std::remove_if(files.begin(), files.end(), isRemade), files.end());
  return whyTaken(options, std::move(files));
}

int build(const CreateOptions& options, Findings& findings) {
  if (!prepareScene(options)) return EXIT_UNREADABLE;
  host::Application& application = host::Application::instance();
  const std::size_t nodesBefore = application.scene().nodes().size();
  ZORVEL::BuildReport report;
  INode* parent = ZORVEL::CharacterBuilder::BuildSelectedCharacter(report);
  if (parent == nullptr) {
    tell(report, findings);
    return EXIT_FINDINGS;
  }
  placeByClicks(*parent, pointOf(options.at), options.turn);
  const std::size_t count = application.scene().nodes().size() - nodesBefore;
  host::printLine(std::cout, "Built " + host::toUtf8(parent->GetName()) + ", " + std::to_string(count) + " nodes");
  tell(report, findings);
  // Reads every mesh and texture, so that those which cannot be read are named even when no file is asked for.
  std::vector<host::ViewItem> items = host::viewItems(application.scene());
  if (const std::string refusal = whyTaken(options, host::FilesRead::list()); !refusal.empty()) {
    complain(refusal);
    return EXIT_USAGE;
  }
  const bool good = writeFiles(options, std::move(items));
  for (const std::string& line : application.listener().lines()) findings.add(line);
  return good ? EXIT_CLEAN : EXIT_INTERNAL;
}

}  // namespace

int runCreate(const CreateOptions& options) {
  if (const std::string refusal = whyRefused(options); !refusal.empty()) {
    complain(refusal);
    return EXIT_USAGE;
  }
  const apps::LoadedRepository repository(options.repository);
  if (!repository.error().empty()) {
    complain(repository.error());
    return EXIT_UNREADABLE;
  }
  const ChoiceResult choice = choose(options);
  for (const std::string& error : choice.errors) complain(error);
  if (!choice.errors.empty()) return EXIT_FINDINGS;
  Findings findings;
  for (const std::string& note : choice.notes) findings.add(note);
  const int status = build(options, findings);
  for (const std::string& finding : findings.lines()) host::printLine(std::cerr, "finding: " + finding);
  for (const std::string& note : apps::notesOnOutsideFiles(options.repository, options.into)) {
    host::printLine(std::cerr, note);
  }
  // The scene's objects name files of this repository; nothing of them may outlive it.
  host::Application::instance().reset();
  return status == EXIT_CLEAN && !findings.lines().empty() ? EXIT_FINDINGS : status;
}

}  // namespace cli
