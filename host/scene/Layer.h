#pragma once

#include <ILayerProperties.h>
#include <ilayer.h>

namespace host {

class Layer final : public ILayer, public ILayerProperties {
 public:
  explicit Layer(const MSTR& name) : name_(name) {}

  void SetName(const MSTR& name) override;
  MSTR GetName() const override { return name_; }
  bool AddToLayer(INode* node) override;
  BaseInterface* GetInterface(Interface_ID id) override;

  void addNode(INode* node) override { AddToLayer(node); }
  const MCHAR* getName() override { return name_; }
  BOOL Nodes(Tab<INode*>& layerNodes) override;

 private:
  MSTR name_;
};

}  // namespace host
