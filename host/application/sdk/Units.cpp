#include <units.h>

#include "host/application/Application.h"
#include "host/services/Units.h"

namespace {

host::Units& units() { return host::Application::instance().units(); }

}  // namespace

double GetMasterScale(int type) { return units().sceneUnitIn(type); }

void GetMasterUnitInfo(int* type, float* scale) {
  if (type != nullptr) *type = units().type();
  if (scale != nullptr) *scale = units().scale();
}

int SetMasterUnitInfo(int type, float scale) { return units().set(type, scale) ? 1 : 0; }
