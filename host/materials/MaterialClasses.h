#pragma once

#include <plugapi.h>

#include "host/materials/Material.h"

namespace host {

constexpr Class_ID STANDARD_MATERIAL(DMTL_CLASS_ID, 0);
constexpr Class_ID MULTI_MATERIAL(MULTI_CLASS_ID, 0);
/// A material with a length among its parameters, which is in scene units once the material is in the scene.
constexpr Class_ID SCALED_MATERIAL(0x3F2C5FAA, 0x750008BC);
constexpr Class_ID BITMAP_TEXTURE(BMTEX_CLASS_ID, 0);

// Parameters of block 0 that standard and scaled materials share, and what the scaled one has besides.
constexpr ParamID DIFFUSE_COLOR = 0;
constexpr ParamID ROUGHNESS = 1;
constexpr ParamID OPACITY = 2;
constexpr ParamID SCALED_DIFFUSE_MAP = 10;
constexpr ParamID SCALED_LENGTH = 22;
/// Sub-texture slot of a standard material.
constexpr int DIFFUSE_SLOT = 1;

/// A material of the class with the values that it starts with; null for a class that the host does not have.
Mtl* createMaterial(Class_ID id);

}  // namespace host
