#include "apps/cli/CommandLine.h"

#include <units.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <iostream>
#include <map>

#include "apps/cli/CheckCommand.h"
#include "apps/cli/CreateCommand.h"
#include "apps/cli/ExplainCommand.h"
#include "apps/cli/ListCommand.h"
#include "apps/cli/RulesCommand.h"
#include "apps/cli/SampleCommand.h"
#include "apps/cli/StandardOutput.h"
#include "apps/cli/author/AddCommand.h"
#include "apps/cli/author/DoctorCommand.h"
#include "apps/cli/author/InitCommand.h"
#include "apps/support/ExitStatus.h"
#include "host/files/DiskTroubles.h"
#include "host/files/FilesRead.h"
#include "host/files/PrintableText.h"
#include "host/geometry/Reach.h"

namespace cli {

using namespace apps;

namespace {

const char* const EXIT_TEXT =
    "Exit status: 0 clean, 1 findings or nothing built or added, 2 wrong usage, 3 input unreadable, 4 internal error "
    "or "
    "a result that could not be written.";

const std::map<std::string, int> UNITS = {{"inches", UNITS_INCHES},
                                          {"feet", UNITS_FEET},
                                          {"miles", UNITS_MILES},
                                          {"millimeters", UNITS_MILLIMETERS},
                                          {"centimeters", UNITS_CENTIMETERS},
                                          {"meters", UNITS_METERS},
                                          {"kilometers", UNITS_KILOMETERS}};

/// A command and what it does once its arguments are read.
struct Command {
  CLI::App* app;
  std::function<int()> run;
};

Command addList(CLI::App& app) {
  struct Options {
    std::filesystem::path repository;
    bool json = false;
  };
  const auto options = std::make_shared<Options>();
  CLI::App* command = app.add_subcommand("list", "Print what a repository holds and what of it is usable");
  command->add_option("DIR", options->repository, "Repository folder, the one with zorvel.xml")->required();
  command->add_flag("--json", options->json, "Print JSON");
  return {command, [options] { return runList(options->repository, options->json); }};
}

/// An option of one text that may be given several times.
void addRepeated(CLI::App& command, const char* name, std::vector<std::string>& texts, const char* form,
                 const char* text) {
  command.add_option(name, texts, text)->type_size(1)->allow_extra_args(false)->option_text(form);
}

void addJudgement(CLI::App& command, CheckCommandOptions& options) {
  addRepeated(command, "--ignore", options.ignored, "CODE", "Leave out a rule (ZV113 or unknown-attribute)");
  addRepeated(command, "--only", options.only, "CODE", "Ask for this rule only; may be repeated");
  addRepeated(command, "--severity", options.severities, "CODE=LEVEL",
              "How much a rule matters: error, warning, hint, off");
  command.add_option("--fail-on", options.failOn, "What is a failure: error, warning (unless given), hint, never")
      ->option_text("LEVEL");
  command
      .add_option("--target-root", options.targetRoot,
                  "Where the repository will lie on Windows; how long paths are is measured from there")
      ->option_text("PATH");
  command.add_flag_callback(
      "--no-config", [&options] { options.readsConfiguration = false; },
      "Do not read the .zorvel-check.json of the repositories");
}

Command addCheck(CLI::App& app) {
  const auto options = std::make_shared<CheckCommandOptions>();
  CLI::App* command = app.add_subcommand("check", "Name everything in repositories that will not show or build");
  command->add_option("DIR", options->repositories, "Repository folders, those with zorvel.xml")->required();
  command->add_option("--format", options->format, "text (unless given), json, sarif, junit or csv")
      ->check(CLI::IsMember({"text", "json", "sarif", "junit", "csv"}))
      ->option_text("FORMAT");
  command->add_option("--output", options->output, "Write the report into this file")->option_text("FILE");
  command->add_flag(
      "--matrix", options->showsMatrix,
      "Show which clothing builds in which pose, and why not, in place of the findings (text, json, csv)");
  command->add_flag("--all", options->showsAll, "Text: show all findings of a rule, however many there are");
  addJudgement(*command, *options);
  command->add_option("--color", options->color, "Text: always, never, or auto for on a terminal")
      ->check(CLI::IsMember({"always", "never", "auto"}))
      ->option_text("WHEN");
  return {command, [options] { return runCheck(*options); }};
}

Command addExplain(CLI::App& app) {
  struct Options {
    std::filesystem::path repository;
    std::string id;
    bool json = false;
  };
  const auto options = std::make_shared<Options>();
  CLI::App* command = app.add_subcommand(
      "explain", "Say step by step why an element is offered and built, or why not; the status is 1 when it never is");
  command->add_option("DIR", options->repository, "Repository folder, the one with zorvel.xml")->required();
  command
      ->add_option("ID", options->id,
                   "Id of a character, clothing, style, pose, skin, category, asset, or material of an asset")
      ->required();
  command->add_flag("--json", options->json, "Print JSON");
  return {command, [options] { return runExplain(options->repository, options->id, options->json); }};
}

Command addRules(CLI::App& app) {
  const auto format = std::make_shared<std::string>("text");
  CLI::App* command = app.add_subcommand("rules", "Print what zorvel check can find, and what to do about it");
  command->add_option("--format", *format, "text (unless given), md or json")
      ->check(CLI::IsMember({"text", "md", "json"}))
      ->option_text("FORMAT");
  return {command, [format] { return runRules(*format); }};
}

/// Farther away nothing is shown.
const CLI::Validator IS_PLACE(
    [](std::string& text) -> std::string {
      double number = 0.0;
      const bool good = CLI::detail::lexical_cast(text, number) && std::abs(number) <= double(host::FARTHEST_PLACE);
      return good ? "" : text + " is no number from -10,000,000,000 to 10,000,000,000";
    },
    "");

void addCamera(CLI::App& command, CreateOptions& options) {
  const auto add = [&](const char* name, std::optional<std::array<float, 3>>& place, const char* text) {
    return command.add_option(name, place, text)->delimiter(',')->check(IS_PLACE)->option_text("X,Y,Z");
  };
  CLI::Option* eye = add("--eye", options.eye, "From where the picture is taken, in scene units");
  CLI::Option* target = add("--target", options.target, "What it looks at; everything is in the picture without both");
  eye->needs(target);
  target->needs(eye);
}

Command addCreate(CLI::App& app) {
  const auto options = std::make_shared<CreateOptions>();
  options->unit = UNITS_CENTIMETERS;
  CLI::App* command = app.add_subcommand(
      "create", "Build a character of a repository in a scene; what is not chosen is the first that is usable");
  command->add_option("DIR", options->repository, "Repository folder, the one with zorvel.xml")->required();
  command->add_option("--character", options->character, "Id of the character");
  command->add_option("--cloth", options->cloth, "Id of the clothing");
  command->add_option("--pose", options->pose, "Id of the pose");
  command->add_option("--skin", options->skin, "Id of the skin");
  command->add_option("--style", options->style, "Id of the clothing's material");
  command->add_option("--asset", options->assets, "ID or ID:MATERIAL of an asset; may be repeated")
      ->type_size(1)
      ->allow_extra_args(false);
  command->add_flag("--bare", options->bare, "No assets besides those given: not those that belong to the clothing");
  CLI::Option* unit =
      command->add_option("--unit", options->unit, "System unit of the scene (centimeters unless given)")
          ->transform(CLI::CheckedTransformer(UNITS, CLI::ignore_case))
          ->option_text("UNIT");
  command->add_option("--into", options->into, "Build into this scene, a file that --json or the stage has written")
      ->excludes(unit);
  command->add_option("--at", options->at, "Where the character stands, in scene units")
      ->delimiter(',')
      ->check(IS_PLACE)
      ->option_text("X,Y,Z");
  command->add_option("--turn", options->turn, "How far it is turned about the vertical axis")
      ->check(IS_PLACE)
      ->option_text("DEGREES");
  command->add_option("--picture", options->picture, "Write a picture of the scene (PNG)");
  command->add_option("--width", options->width, "Of the picture, in pixels")->check(CLI::Range(16, 8192));
  command->add_option("--height", options->height, "Of the picture, in pixels")->check(CLI::Range(16, 8192));
  addCamera(*command, *options);
  command->add_option("--gltf", options->gltf, "Write the scene as glTF binary (GLB)");
  command->add_option("--json", options->json, "Write the scene as JSON");
  return {command, [options] { return runCreate(*options); }};
}

Command addSample(CLI::App& app) {
  const auto options = std::make_shared<SampleCommandOptions>();
  CLI::App* command = app.add_subcommand("sample", "Write a sample repository that uses every feature");
  command->add_option("DIR", options->folder, "Folder to write; must be empty or not exist")->required();
  command->add_option("--characters", options->characters, "How many people; after six they come again, varied")
      ->check(CLI::Range(1, 1000))
      ->option_text("N");
  command->add_option("--seed", options->seed, "Varies colours and patterns; the same seed writes the same files");
  command
      ->add_option("--contact-sheets", options->contactSheets, "Folder for one picture of all outfits and poses each")
      ->option_text("FOLDER");
  command->add_flag("--complete", options->complete, "Leave nothing out; otherwise some things are missing on purpose");
  command->add_flag("--force", options->force, "Write into a folder that is not empty");
  return {command, [options] { return runSample(*options); }};
}

Command addInit(CLI::App& app) {
  const auto folder = std::make_shared<std::filesystem::path>();
  CLI::App* command = app.add_subcommand("init", "Write a small repository to begin with: one character that builds");
  command->add_option("DIR", *folder, "Folder to write; must be empty or not exist")->required();
  return {command, [folder] { return runInit(*folder); }};
}

Command addAdd(CLI::App& app) {
  const auto options = std::make_shared<AddOptions>();
  CLI::App* command = app.add_subcommand(
      "add", "Add an entry to zorvel.xml, which stays as it is elsewhere, and name the files that it needs");
  const auto add = [command](const char* name, std::optional<std::string>& text, const char* help) {
    return command->add_option(name, text, help);
  };
  command->add_option("DIR", options->repository, "Repository folder, the one with zorvel.xml")->required();
  command->add_option("KIND", options->kind, "character, clothing, pose, skin, style, category or asset")
      ->required()
      ->check(CLI::IsMember({"character", "clothing", "pose", "skin", "style", "category", "asset"}));
  command->add_option("ID", options->id, "Id of the entry, which is part of file names")->required();
  add("--to", options->to, "Id of the character that it belongs to; needed where there are several");
  add("--clothing", options->clothing, "style: id of the clothing; needed where there are several");
  add("--name", options->name, "For people to read; made from the id unless given");
  add("--folder", options->folder, "Made from the id unless given");
  add("--material", options->material, "Name of the material; begins with the character's name unless given");
  add("--preview", options->preview, "skin, style: file of the picture");
  add("--category", options->category, "asset: id of the category; needed where there are several");
  add("--type", options->type,
      "asset: common (placed by the matrix), specific (a mesh for each pose), global (shared by all characters)")
      ->check(CLI::IsMember({"common", "specific", "global"}));
  add("--global", options->global, "asset: id of the shared asset that it stands for");
  command->add_flag("--multiple", options->multiple, "category: several of its assets at once");
  command->add_flag("--required", options->required, "category: one of its assets is always chosen");
  command->add_flag("--no-style", options->noStyle, "clothing: without a first style");
  command->add_flag(
      "--no-rows", options->noRows,
      "pose, asset: without rows of the asset matrix (a pose gets one for each asset that every other has one for)");
  return {command, [options] { return runAdd(*options); }};
}

Command addDoctor(CLI::App& app) {
  struct Options {
    std::filesystem::path repository;
    bool json = false;
  };
  const auto options = std::make_shared<Options>();
  CLI::App* command =
      app.add_subcommand("doctor", "Say what of this machine is well and what is not, and what to do about it");
  command->add_option("DIR", options->repository, "Look at this repository, too");
  command->add_flag("--json", options->json, "Print JSON");
  return {command, [options] { return runDoctor(options->repository, options->json); }};
}

int report(const CLI::App& app, const CLI::ParseError& error) {
  // The help, or the version.
  if (error.get_exit_code() == 0) return app.exit(error);
  host::printLine(std::cerr, std::string("zorvel: ") + error.what() + " (--help says more)");
  return EXIT_USAGE;
}

int runCommand(int argc, const char* const* argv) try {
  CLI::App app("zorvel: makes, checks, lists, builds and previews character repositories");
  app.footer(EXIT_TEXT);
  app.set_version_flag("--version", "zorvel " ZORVEL_VERSION);
  app.require_subcommand(1);
  const std::vector<Command> commands = {addSample(app), addInit(app), addAdd(app),    addCheck(app), addExplain(app),
                                         addRules(app),  addList(app), addCreate(app), addDoctor(app)};
  for (const Command& command : commands) command.app->footer(EXIT_TEXT);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return report(app, error);
  }
  for (const Command& command : commands) {
    if (command.app->parsed()) return command.run();
  }
  return EXIT_USAGE;
} catch (const std::exception& error) {
  host::printLine(std::cerr, std::string("zorvel: internal error: ") + error.what());
  return EXIT_INTERNAL;
}

/// What the disk gave no answer to looks in every command as if it were not there. Nothing is clean then.
int tellTroubles(int status) {
  const std::vector<std::string> troubles = host::DiskTroubles::instance().take();
  for (const std::string& line : troubles) host::printLine(std::cerr, "zorvel: cannot be read: " + line);
  return troubles.empty() ? status : std::max(status, int{EXIT_UNREADABLE});
}

}  // namespace

int run(int argc, const char* const* argv) {
  const ClosedPipesAreErrors guard;
  host::FilesRead::forget();
  const int status = tellTroubles(runCommand(argc, argv));
  const std::string error = finishStandardOutput();
  if (error.empty()) return status;
  host::printLine(std::cerr, "zorvel: " + error);
  return EXIT_INTERNAL;
}

}  // namespace cli
