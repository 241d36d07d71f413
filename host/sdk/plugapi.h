#pragma once

#include <maxtypes.h>

constexpr SClass_ID BASENODE_CLASS_ID = 0x01;
constexpr SClass_ID PARAMETER_BLOCK2_CLASS_ID = 0x82;
constexpr SClass_ID GEOMOBJECT_CLASS_ID = 0x10;
constexpr SClass_ID SHAPE_CLASS_ID = 0x40;
constexpr SClass_ID HELPER_CLASS_ID = 0x50;
constexpr SClass_ID MATERIAL_CLASS_ID = 0xC00;
constexpr SClass_ID TEXMAP_CLASS_ID = 0xC10;
constexpr SClass_ID LAYER_CLASS_ID = 0x10F0;

constexpr ULONG CIRCLE_CLASS_ID = 0x1999;
constexpr ULONG DUMMY_CLASS_ID = 0x876234;
constexpr ULONG DMTL_CLASS_ID = 0x2;
constexpr ULONG MULTI_CLASS_ID = 0x200;
constexpr ULONG BMTEX_CLASS_ID = 0x240;
