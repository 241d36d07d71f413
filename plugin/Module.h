#pragma once

#include <windows.h>

namespace ZORVEL {

/// The loaded module: its handle and the texts that it carries.
class Module {
 public:
  Module() = delete;

  /// Null before the module was attached to the process.
  static HINSTANCE GetInstance();
  static void SetInstance(HINSTANCE instance);
  /// A text of the string table, in a buffer that the next call overwrites. Null before the module was attached and for
  /// an id that there is not.
  static wchar_t* GetString(int id);
};

}  // namespace ZORVEL
