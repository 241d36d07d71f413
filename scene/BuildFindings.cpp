#include "scene/BuildFindings.h"

#include "scene/BuildReport.h"

namespace ZORVEL {

namespace {

using Findings = std::vector<BuildFinding>;

std::wstring Quoted(const std::wstring& text) { return L"\"" + text + L"\""; }

const wchar_t* KindText(ElementKind kind) {
  switch (kind) {
    case ElementKind::Body:
      return L"Body";
    case ElementKind::Clothing:
      return L"Clothing";
    case ElementKind::Asset:
      return L"Asset";
    case ElementKind::SharedAsset:
      return L"Shared asset";
    case ElementKind::MandatoryAsset:
      return L"Mandatory asset";
  }
  return L"";
}

/// Kind, name and id, as far as there are any.
std::wstring Title(const BuildElement& element) {
  std::wstring text = KindText(element.kind);
  if (!element.name.empty()) text += L" " + Quoted(element.name);
  if (!element.id.empty()) text += L" (" + element.id + L")";
  return text;
}

std::wstring NotThere(const wchar_t* what, const std::wstring& id) {
  return id.empty() ? std::wstring(L"no ") + what + L" is chosen"
                    : std::wstring(L"there is no ") + what + L" with the id " + Quoted(id);
}

std::wstring ObstacleText(const BuildReport& report) {
  switch (report.obstacle) {
    case BuildObstacle::None:
      break;
    case BuildObstacle::Parent:
      return L"the circle that a character hangs on could not be made";
    case BuildObstacle::RepositoryPath:
      return L"the settings that hold the repository's path are not loaded";
    case BuildObstacle::Character:
      return NotThere(L"character", report.obstacleId);
    case BuildObstacle::CharacterFolder:
      return L"character " + Quoted(report.obstacleId) + L" has no \"folder\"";
    case BuildObstacle::Pose:
      return NotThere(L"pose", report.obstacleId);
    case BuildObstacle::Clothing:
      return NotThere(L"clothing", report.obstacleId);
    case BuildObstacle::Style:
      return NotThere(L"style of the clothing", report.obstacleId);
    case BuildObstacle::Skin:
      return NotThere(L"skin", report.obstacleId);
  }
  return L"";
}

std::wstring ReasonText(const Omission& omission) {
  const std::wstring& subject = omission.subject;
  switch (omission.reason) {
    case OmissionReason::NoField:
      return L"it has no " + Quoted(subject);
    case OmissionReason::UnknownId:
      return L"the character has no asset with the id " + Quoted(subject);
    case OmissionReason::NoSharedRecord:
      return subject.empty() ? L"it names no shared asset: it has no \"globalID\""
                             : L"there is no shared asset with the id " + Quoted(subject);
    case OmissionReason::NotInModel:
      return L"the selection's number " + subject + L" names nothing that is loaded";
    case OmissionReason::NoBody:
      return L"the body that it belongs to was left out";
    case OmissionReason::ProxyClassMissing:
      return L"the renderer's proxy class is missing, for the mesh " + subject;
    case OmissionReason::NodeNotMade:
      return L"no node could be made for the mesh " + subject;
  }
  return L"";
}

/// Empty for a mesh that is there.
std::wstring MeshText(const BuiltPiece& piece) {
  switch (piece.mesh) {
    case MeshState::Found:
    case MeshState::Shared:
      break;
    case MeshState::Missing:
      return L"the mesh " + piece.meshFile + L" is missing";
    case MeshState::Unreadable:
      return L"the mesh " + piece.meshFile + L" cannot be read";
    case MeshState::Refused:
      return L"the proxy object did not take the mesh " + piece.meshFile;
  }
  return L"";
}

const wchar_t* LibraryText(LibraryState state) {
  switch (state) {
    case LibraryState::Missing:
      return L" (missing)";
    case LibraryState::Unreadable:
      return L" (cannot be read)";
    case LibraryState::NameOfMap:
      return L" (has a texture map of that name)";
    case LibraryState::WithoutName:
    case LibraryState::HoldsMaterial:
      break;
  }
  return L"";
}

std::wstring SearchedText(const std::vector<LibrarySearch>& searches) {
  std::wstring text;
  for (const LibrarySearch& one : searches) {
    text += (text.empty() ? L"" : L", ") + one.file + LibraryText(one.state);
  }
  return text;
}

std::wstring NoFieldText(const BuildElement& element) {
  const std::wstring whose = element.kind == ElementKind::Body       ? L"skin "
                             : element.kind == ElementKind::Clothing ? L"style "
                                                                     : L"its material ";
  return (element.materialId.empty() ? L"it" : whose + Quoted(element.materialId)) + L" has no \"material\"";
}

/// Empty where the material was found, or where none is given.
std::wstring MaterialText(const BuiltPiece& piece) {
  const MaterialResult& material = piece.material;
  const std::wstring name = L"the material " + Quoted(material.name);
  switch (material.state) {
    case MaterialState::NotAsked:
    case MaterialState::FromScene:
    case MaterialState::FromLibrary:
      break;
    case MaterialState::NoField:
      return L"no material: " + NoFieldText(piece.element);
    case MaterialState::NameOfMap:
      return name + L" is the name of a texture map; searched: " + SearchedText(material.searches);
    case MaterialState::InNoLibrary:
      return name + L" is in no library; searched: " + SearchedText(material.searches);
  }
  return L"";
}

std::wstring PlacingText(const BuiltPiece& piece, const std::wstring& poseId) {
  const std::wstring effect = L"; it is at the origin, without a material";
  switch (piece.placing) {
    case PlacingState::NotNeeded:
    case PlacingState::ByRow:
      break;
    case PlacingState::NoRow:
      return L"no row of the asset matrix for the pose " + Quoted(poseId) + effect;
    case PlacingState::NotListed:
      return L"the character does not refer to it" + effect;
  }
  return L"";
}

void Add(Findings& findings, FindingKind kind, const BuildElement& element, const std::wstring& text) {
  if (!text.empty()) findings.push_back({kind, Title(element) + L": " + text + L"."});
}

void AddBare(Findings& findings, const BuiltPiece& piece) {
  Add(findings, FindingKind::Bare, piece.element, MeshText(piece));
  Add(findings, FindingKind::Bare, piece.element, MaterialText(piece));
  for (const std::wstring& file : piece.material.missingTextures) {
    Add(findings, FindingKind::Bare, piece.element, L"the texture " + file + L" is missing");
  }
}

}  // namespace

std::vector<BuildFinding> BuildFindings::Describe(const BuildReport& report) {
  if (report.obstacle != BuildObstacle::None) {
    return {{FindingKind::NothingBuilt, L"Nothing was built: " + ObstacleText(report) + L"."}};
  }
  Findings findings;
  for (const Omission& one : report.omissions) {
    Add(findings, FindingKind::LeftOut, one.element, L"left out: " + ReasonText(one));
  }
  for (const BuiltPiece& piece : report.pieces) AddBare(findings, piece);
  for (const BuiltPiece& piece : report.pieces) {
    Add(findings, FindingKind::Unplaced, piece.element, PlacingText(piece, report.poseId));
  }
  if (!report.isGrouped) findings.push_back({FindingKind::Loose, L"The character could not be grouped."});
  if (!report.isOnLayer) findings.push_back({FindingKind::Loose, L"The character's layer could not be made."});
  return findings;
}

}  // namespace ZORVEL
