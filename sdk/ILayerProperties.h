#pragma once

#include <inode.h>

#define LAYERPROPERTIES_INTERFACE Interface_ID(0x202e0798, 0x3589129b)

class ILayerProperties : public BaseInterface {
 public:
  Interface_ID GetID() override { return LAYERPROPERTIES_INTERFACE; }
  /// A null node is passed over.
  virtual void addNode(INode* node) = 0;
  virtual const MCHAR* getName() = 0;
  virtual BOOL Nodes(Tab<INode*>& layerNodes) = 0;
};
