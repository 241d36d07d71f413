#include "bench/BenchScene.h"

#include <max.h>

#include <cmath>
#include <stdexcept>

#include "bench/GeneratedRepository.h"
#include "host/application/Application.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "host/services/UndoStack.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"

namespace bench {

using host::Application;
using ZORVEL::Data2;
using ZORVEL::Selection2;

namespace {

/// A little below zero, so that characters stand on the plane and over the ground alike.
void addGround() {
  constexpr int SIDE = 708;
  constexpr float SPACING = 30.0F;
  host::Node* node = Application::instance().scene().create(
      new host::SurroundingsObject(std::make_shared<const host::Mesh>(sheet(SIDE))));
  Matrix3 tm(TRUE);
  tm.Scale(Point3(SPACING, SPACING, 0.5F));
  tm.Translate(Point3(-SIDE * SPACING / 2, -SIDE * SPACING / 2, -10.0F));
  node->SetNodeTM(0, tm);
}

}  // namespace

void chooseCharacter() {
  Application::instance().reset();
  GeneratedRepository::ofSize(1).load();
  Selection2::SetCharacter(L"c00");
  Selection2::SetCloth(L"c0k0");
  Selection2::SetPose(L"c0p0");
  Selection2::SetSkin(L"c0s0");
  Selection2::SetStyle(L"c0k0m0");
  Selection2::ClearAssets();
  const ZORVEL::CharacterData* character = Data2::GetCharacter(0);
  for (int i = 1; i < 5; ++i) {
    Selection2::AddAsset(Data2::GetUnique(character->GetContainerElement(ZORVEL::ASSETS, i)));
  }
}

void fillScene(int characters) {
  chooseCharacter();
  addGround();
  const int side = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(characters))));
  for (int i = 0; i < characters; ++i) {
    ZORVEL::BuildReport report;
    INode* parent = ZORVEL::CharacterBuilder::BuildSelectedCharacter(report);
    if (parent == nullptr) throw std::runtime_error("nothing was built");
    Matrix3 tm(TRUE);
    const int column = i % side - side / 2;
    const int row = i / side - side / 2;
    tm.SetTrans(Point3(static_cast<float>(column) * 200.0F, static_cast<float>(row) * 200.0F, 0));
    parent->GetParentNode()->SetNodeTM(0, tm);
    Application::instance().undo().clear();
  }
}

}  // namespace bench
