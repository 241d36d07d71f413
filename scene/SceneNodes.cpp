#include "scene/SceneNodes.h"

#include <ILayerProperties.h>
#include <maxapi.h>

#include "core/Debug.h"
#include "scene/ProxyObjectDatabase.h"

namespace ZORVEL {

namespace {

const Class_ID PROXY_CLASS(0x6CF53873, 0x1FF85498);
const ParamID PROXY_FILE = 0;
const ParamID PROXY_SCALE = 2;
const Class_ID CIRCLE_CLASS(CIRCLE_CLASS_ID, 0);
const int CIRCLE_RADIUS = 0;
const float PARENT_RADIUS = 50.0F;
const wchar_t* const LAYER_NAME = L"ZORVEL Characters";

/// Null when no node of the scene shows the file.
Object* SharedProxy(const std::wstring& meshFile) {
  Object* shared = ProxyObjectDatabase::LookUp(meshFile.c_str());
  if (shared != nullptr) Debug::AddDebugMessage(DEBUG_INFO, L"use instance...");
  return shared;
}

/// Null when the host has no proxy class. A failed attempt is registered too, so the next one tries again.
Object* NewProxy(const std::wstring& meshFile) {
  auto* object = static_cast<Object*>(GetCOREInterface()->CreateInstance(GEOMOBJECT_CLASS_ID, PROXY_CLASS));
  ProxyObjectDatabase::Add(object, meshFile.c_str());
  return object;
}

/// False when the object does not take it.
bool SetMeshFile(Object& object, const std::wstring& meshFile) {
  IParamBlock2* block = object.GetParamBlock(0);
  if (block == nullptr) return false;
  const TimeValue now = GetCOREInterface()->GetTime();
  block->SetValue(PROXY_SCALE, now, 1.0F);
  return block->SetValue(PROXY_FILE, now, meshFile.c_str()) != FALSE;
}

ILayer* CharacterLayer() {
  ILayerManager* manager = GetCOREInterface13()->GetLayerManager();
  if (manager == nullptr) return nullptr;
  MSTR name(LAYER_NAME);
  ILayer* layer = manager->GetLayer(name);
  return layer != nullptr ? layer : manager->CreateLayer(name);
}

}  // namespace

ProxyNode SceneNodes::AddProxy(const std::wstring& meshFile, const wchar_t* name, INode& parent) {
  Debug::AddDebugMessage(DEBUG_INFO, L"proxy mesh:");
  Debug::AddDebugMessage(DEBUG_INFO, meshFile.c_str());
  ProxyNode added;
  Object* object = SharedProxy(meshFile);
  const bool isShared = object != nullptr;
  if (!isShared) object = NewProxy(meshFile);
  if (object == nullptr) return added;
  added.mesh = isShared ? MeshState::Shared : MeshFiles::Look(meshFile);
  if (!SetMeshFile(*object, meshFile)) added.mesh = MeshState::Refused;
  Interface* host = GetCOREInterface();
  added.node = host->CreateObjectNode(object);
  added.problem = OmissionReason::NodeNotMade;
  if (added.node == nullptr) return added;
  Matrix3 origin = host->GetRootNode()->GetNodeTM(0);
  added.node->SetNodeTM(0, origin);
  added.node->SetName(name);
  parent.AttachChild(added.node, 1);
  AddToCharacterLayer(added.node);
  return added;
}

INode* SceneNodes::AddParent(const std::wstring& name) {
  Interface* host = GetCOREInterface();
  auto* circle = static_cast<Object*>(host->CreateInstance(SHAPE_CLASS_ID, CIRCLE_CLASS));
  if (circle == nullptr) return nullptr;
  if (IParamArray* parameters = circle->GetParamBlock()) parameters->SetValue(CIRCLE_RADIUS, 0, PARENT_RADIUS);
  INode* node = host->CreateObjectNode(circle);
  if (node == nullptr) return nullptr;
  Matrix3 identity(TRUE);
  node->SetNodeTM(0, identity);
  node->SetName(name.c_str());
  node->SetUserPropBool(L"ZORVEL_PARENT", TRUE);
  return node;
}

bool SceneNodes::AddToCharacterLayer(INode* node) {
  ILayer* layer = CharacterLayer();
  if (layer == nullptr) return false;
  auto* properties = static_cast<ILayerProperties*>(layer->GetInterface(LAYERPROPERTIES_INTERFACE));
  if (properties != nullptr) properties->addNode(node);
  return properties != nullptr;
}

}  // namespace ZORVEL
