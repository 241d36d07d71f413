#pragma once

constexpr int PIV_NONE = 0;
constexpr int PIV_PIVOT_ONLY = 1;
constexpr int PIV_OBJECT_ONLY = 2;
constexpr int PIV_HIERARCHY_ONLY = 3;
