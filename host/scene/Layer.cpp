#include "host/scene/Layer.h"

#include "host/scene/Node.h"
#include "host/scene/Scene.h"
#include "host/services/Change.h"

namespace host {

void Layer::SetName(const MSTR& name) { changeMember(Ref<Layer>(this), &Layer::name_, name); }

bool Layer::AddToLayer(INode* node) {
  if (node == nullptr) return false;
  static_cast<Node*>(node)->setLayer(Ref<Layer>(this));
  return true;
}

BaseInterface* Layer::GetInterface(Interface_ID id) {
  return id == LAYERPROPERTIES_INTERFACE ? static_cast<ILayerProperties*>(this) : nullptr;
}

BOOL Layer::Nodes(Tab<INode*>& layerNodes) {
  layerNodes.ZeroCount();
  for (Node* node : scene_.nodes()) {
    INode* member = node;
    if (node->layer() == this) layerNodes.Append(1, &member);
  }
  return TRUE;
}

}  // namespace host
