#include "repository/Parser2.h"

#include "core/Debug.h"
#include "repository/XMLParser2.h"

namespace ZORVEL {

bool Parser2::ParseRepository(const wchar_t* path) {
  if (!path) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Parser2::ParseRepository invalid argument");
    return false;
  }
  Debug::AddDebugMessage(DEBUG_INFO, L"Parser2 checks repository at:");
  Debug::AddDebugMessage(DEBUG_INFO, path);
  return XMLParser2::ParseXML(path);
}

}  // namespace ZORVEL
