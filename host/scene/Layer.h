#pragma once

#include <ILayerProperties.h>
#include <ilayer.h>

namespace host {

class Scene;

class Layer final : public ILayer, public ILayerProperties {
 public:
  Layer(Scene& scene, const MSTR& name) : scene_(scene), name_(name) {}

  void SetName(const MSTR& name) override;
  MSTR GetName() const override { return name_; }
  bool AddToLayer(INode* node) override;
  BaseInterface* GetInterface(Interface_ID id) override;

  void addNode(INode* node) override { AddToLayer(node); }
  const MCHAR* getName() override { return name_; }
  BOOL Nodes(Tab<INode*>& layerNodes) override;

 private:
  Scene& scene_;
  MSTR name_;
};

}  // namespace host
