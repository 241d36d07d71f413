#pragma once

#include "core/Debug.h"

namespace ZORVEL {

inline void LogInfo(const wchar_t* text) { Debug::AddDebugMessage(DEBUG_INFO, text); }

}  // namespace ZORVEL
