#include "scene/MaterialLibraries.h"

#include "model/RepositoryPaths.h"
#include "scene/BuildContext.h"

namespace ZORVEL {

namespace {

std::vector<std::wstring> WithCharactersOwn(const std::wstring& first, const std::wstring& character) {
  return {first, RepositoryPaths::CharacterLibrary(character), RepositoryPaths::PropsLibrary(character)};
}

}  // namespace

std::vector<std::wstring> MaterialLibraries::OfSkin(const BuildContext& context) {
  return WithCharactersOwn(RepositoryPaths::SkinLibrary(context.characterFolder), context.characterFolder);
}

std::vector<std::wstring> MaterialLibraries::OfElement(const BuildContext& context, const std::wstring& folder) {
  return WithCharactersOwn(RepositoryPaths::Library(folder), context.characterFolder);
}

std::vector<std::wstring> MaterialLibraries::OfSharedAsset(const BuildContext& context, const std::wstring& folder) {
  return {RepositoryPaths::Library(folder), RepositoryPaths::GlobalLibrary(context.repositoryPath)};
}

}  // namespace ZORVEL
