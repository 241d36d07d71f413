#include "core/Debug.h"
#include "core/LogStore.h"

namespace ZORVEL {

void Debug::AddDebugMessage(DEBUG_TYPE level, const wchar_t* text) { LogStore::Add(level, text); }

}  // namespace ZORVEL
