#pragma once

#include <ifnpub.h>

/// Runs script text. TRUE when it was understood and ran; otherwise the host's listener says why.
BOOL ExecuteMAXScriptScript(const MCHAR* text, BOOL quietErrors = FALSE, FPValue* value = nullptr);
