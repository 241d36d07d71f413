#include "plugin/Module.h"

namespace ZORVEL {

namespace {

const int STRING_LENGTH = 512;

HINSTANCE moduleInstance = nullptr;
wchar_t stringBuffer[STRING_LENGTH];

}  // namespace

HINSTANCE Module::GetInstance() { return moduleInstance; }

void Module::SetInstance(HINSTANCE instance) { moduleInstance = instance; }

wchar_t* Module::GetString(int id) {
  if (moduleInstance == nullptr) return nullptr;
  return LoadStringW(moduleInstance, static_cast<UINT>(id), stringBuffer, STRING_LENGTH) > 0 ? stringBuffer : nullptr;
}

}  // namespace ZORVEL
