#include "scene/UnitFactor.h"

#include <units.h>

namespace ZORVEL {

float UnitFactor() {
  int type = UNITS_CENTIMETERS;
  float scale = 1.0F;
  GetMasterUnitInfo(&type, &scale);
  return static_cast<float>(GetMasterScale(type) * scale / GetMasterScale(UNITS_CENTIMETERS));
}

}  // namespace ZORVEL
