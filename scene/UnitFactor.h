#pragma once

namespace ZORVEL {

/// What a length in centimetres is multiplied by to be in the scene's system unit.
float UnitFactor();

}  // namespace ZORVEL
