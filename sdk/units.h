#pragma once

constexpr int UNITS_INCHES = 0;
constexpr int UNITS_FEET = 1;
constexpr int UNITS_MILES = 2;
constexpr int UNITS_MILLIMETERS = 3;
constexpr int UNITS_CENTIMETERS = 4;
constexpr int UNITS_METERS = 5;
constexpr int UNITS_KILOMETERS = 6;

/// How many of `type` one system unit is, the unit scale included; -1.0 for an unknown type.
double GetMasterScale(int type);
/// One system unit is `scale` of `type`.
void GetMasterUnitInfo(int* type, float* scale);
/// 0, and nothing stored, for an unknown type or a scale that is not above zero.
int SetMasterUnitInfo(int type, float scale);
