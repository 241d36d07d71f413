#include "host/application/ClassRegistry.h"

#include <plugapi.h>

#include "host/materials/BitmapTexture.h"
#include "host/materials/MaterialClasses.h"
#include "host/scene/CircleShape.h"
#include "host/scene/ProxyObject.h"

namespace host {

// The caller casts the result back to the class that the super class id stands for, so that very pointer is handed out.
void* ClassRegistry::create(SClass_ID superClass, Class_ID id) const {
  if (superClass == SHAPE_CLASS_ID && id == Class_ID(CIRCLE_CLASS_ID, 0)) return static_cast<Object*>(new CircleShape);
  if (superClass == GEOMOBJECT_CLASS_ID && id == PROXY_OBJECT && rendererPresent_) {
    return static_cast<Object*>(new ProxyObject);
  }
  if (superClass == MATERIAL_CLASS_ID) return createMaterial(id);
  if (superClass == TEXMAP_CLASS_ID && id == BITMAP_TEXTURE) return static_cast<Texmap*>(new BitmapTexture(L""));
  return nullptr;
}

}  // namespace host
