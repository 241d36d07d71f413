#include "scene/BuildPaths.h"

#include "scene/BuildContext.h"

namespace ZORVEL {

namespace {

const wchar_t* const LIBRARY = L"\\materials.mat";
const wchar_t* const SHARED_ASSETS = L"\\global_assets";

std::vector<std::wstring> WithCharactersOwn(const std::wstring& first, const BuildContext& context) {
  return {first, context.characterFolder + LIBRARY, context.characterFolder + L"\\props.mat"};
}

}  // namespace

std::wstring BuildPaths::CharacterMaps(const std::wstring& characterFolder) { return characterFolder + L"\\maps\\"; }

std::wstring BuildPaths::GlobalMaps(const std::wstring& repositoryPath) { return repositoryPath + L"maps\\"; }

std::wstring BuildPaths::OwnFolder(const BuildContext& context, const wchar_t* folder) {
  return context.characterFolder + L"\\" + folder;
}

std::wstring BuildPaths::SharedFolder(const BuildContext& context, const wchar_t* folder) {
  return context.repositoryPath + SHARED_ASSETS + L"\\" + folder;
}

std::wstring BuildPaths::BodyMesh(const std::wstring& folder) { return folder + L"\\pose.vrmesh"; }

std::wstring BuildPaths::ClothMesh(const BuildContext& context, const std::wstring& folder) {
  return folder + L"\\" + context.clothId + L"_" + context.poseId + L".vrmesh";
}

std::wstring BuildPaths::AssetMesh(const std::wstring& folder) { return folder + L"\\asset.vrmesh"; }

std::wstring BuildPaths::PoseAssetMesh(const BuildContext& context, const std::wstring& folder) {
  return folder + L"\\" + context.poseId + L".vrmesh";
}

std::vector<std::wstring> BuildPaths::SkinLibraries(const BuildContext& context) {
  return WithCharactersOwn(context.characterFolder + L"\\skin\\skin.mat", context);
}

std::vector<std::wstring> BuildPaths::OwnLibraries(const BuildContext& context, const std::wstring& folder) {
  return WithCharactersOwn(folder + LIBRARY, context);
}

std::vector<std::wstring> BuildPaths::SharedLibraries(const BuildContext& context, const std::wstring& folder) {
  return {folder + LIBRARY, context.repositoryPath + SHARED_ASSETS + LIBRARY};
}

}  // namespace ZORVEL
