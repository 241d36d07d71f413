#pragma once

#include <cstddef>
#include <string>

namespace ZORVEL {

/// What the settings file makes of a path.
enum class PathKeeping {
  Whole,
  Cut,       ///< at a character that does not fit one byte
  TooShort,  ///< to be taken from the file again
  TooLong    ///< the same
};

struct KeptPath {
  PathKeeping keeping;
  /// So many characters of the path stand in the file.
  std::size_t length;
};

/// The one setting, the repository's root folder, kept in "zorvel.ini" in the user's local application-data folder. The
/// file holds the path and nothing else, one byte a character (Latin-1). There is one instance, between LoadSettings
/// and FreeSettings; without it every operation logs and answers false or null.
class Settings {
 public:
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  /// Makes a new instance, replacing an earlier one, and reads the file. Always true, with or without a file.
  static bool LoadSettings();
  static void FreeSettings();
  static bool CheckSingleton();
  /// Borrowed until the instance is freed or replaced; null without one.
  static Settings* GetSingleton();

  static bool GetPathSet();
  /// The root exactly as loaded or stored, empty when no path is set. Valid until the path changes or the instance
  /// goes; null without an instance.
  static const wchar_t* GetPath();

  /// Asks neither the instance nor the file.
  static KeptPath WhatIsKept(const std::wstring& path);
  /// Takes the path over and saves it. A null path changes nothing and answers false.
  static bool StorePath(const wchar_t* path);
  /// False only when the application-data folder is unknown: a file that cannot be written is not reported. The file
  /// holds as much of the path as WhatIsKept says.
  static bool SaveToSettingsFile();
  /// True when a path was taken from the file. Missing, unreadable, too short or too long, it changes nothing.
  static bool LoadFromSettingsFile();
  /// The whole path of the settings file, which need not be there. False when the application-data folder is unknown.
  static bool FindSettingsFile(std::wstring& name);

 private:
  Settings() = default;

  static Settings* m_singleton;

  bool m_pathSet = false;
  std::wstring m_path;
};

}  // namespace ZORVEL
