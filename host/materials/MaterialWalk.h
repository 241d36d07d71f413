#pragma once

#include <stdmat.h>

#include <functional>

namespace host {

/// Visits the bitmaps of one material, those inside other maps included; its sub-materials are not entered.
void forEachBitmap(Mtl& material, const std::function<void(BitmapTex&)>& visit);

/// Visits the bitmap itself, or those inside a map of another class. Null has none.
void forEachBitmapIn(Texmap* map, const std::function<void(BitmapTex&)>& visit);

}  // namespace host
