#include "core/Debug.h"

namespace ZORVEL {

void Debug::AddDebugMessage(DEBUG_TYPE /*level*/, const wchar_t* /*text*/) {}

void Debug::ShowInfoWindow() {}

}  // namespace ZORVEL
