#include "scene/BuildSummary.h"

#include "scene/BuildFindings.h"
#include "scene/BuildReport.h"

namespace ZORVEL {

namespace {

std::wstring WithoutFullStop(const std::wstring& sentence) { return sentence.substr(0, sentence.size() - 1); }

/// As short as a person still knows what is meant.
std::wstring ShortName(const BuildElement& element) {
  if (element.kind == ElementKind::Body) return L"body";
  if (!element.name.empty()) return element.name;
  if (!element.id.empty()) return element.id;
  return element.kind == ElementKind::Clothing ? L"clothing" : L"asset";
}

bool LacksMesh(const BuiltPiece& piece) { return piece.mesh != MeshState::Found && piece.mesh != MeshState::Shared; }

bool LacksMaterial(const BuiltPiece& piece) {
  switch (piece.material.state) {
    case MaterialState::NoField:
    case MaterialState::NameOfMap:
    case MaterialState::InNoLibrary:
      return true;
    case MaterialState::NotAsked:
    case MaterialState::FromScene:
    case MaterialState::FromLibrary:
      break;
  }
  return false;
}

bool LacksPlace(const BuiltPiece& piece) {
  return piece.placing == PlacingState::NoRow || piece.placing == PlacingState::NotListed;
}

void Add(std::wstring& list, const std::wstring& one) { list += (list.empty() ? L"" : L", ") + one; }

void AddLacks(std::wstring& list, const BuiltPiece& piece) {
  const std::wstring whose = L" of " + ShortName(piece.element);
  if (LacksMesh(piece)) Add(list, L"mesh" + whose);
  if (LacksMaterial(piece)) Add(list, L"material" + whose);
  if (!piece.material.missingTextures.empty()) Add(list, L"textures" + whose);
  if (LacksPlace(piece)) Add(list, L"place" + whose);
}

}  // namespace

std::wstring BuildSummary::Describe(const BuildReport& report) {
  if (report.obstacle != BuildObstacle::None) return WithoutFullStop(BuildFindings::Describe(report).front().text);
  std::wstring list;
  for (const Omission& one : report.omissions) Add(list, ShortName(one.element));
  for (const BuiltPiece& piece : report.pieces) AddLacks(list, piece);
  if (!report.isGrouped) Add(list, L"group");
  if (!report.isOnLayer) Add(list, L"layer");
  return list.empty() ? L"" : L"Built without: " + list;
}

}  // namespace ZORVEL
