#include "samples/repository/RepositoryReadme.h"

#include "samples/repository/Naming.h"

namespace samples {
namespace {

std::string named(const std::vector<CharacterDesign>& people) {
  std::string text = people.front().name;
  for (std::size_t i = 1; i < people.size(); ++i) text += (i + 1 == people.size() ? " and " : ", ") + people[i].name;
  return text;
}

std::string missing(const CharacterDesign& character) {
  std::string text;
  for (const OutfitDesign& outfit : character.outfits) {
    const std::string quoted = "\"" + outfit.name + "\" of " + character.name;
    if (!outfit.hasFolder) {
      text += "- the folder `" + character.key + "\\" + outfit.key + "`: " + quoted + " is shown as not available;\n";
    }
    if (!outfit.missingPose.empty()) {
      const std::string mesh = outfitId(character, outfit) + "_" + character.key + "_" + outfit.missingPose + ".vrmesh";
      text += "- the mesh `" + character.key + "\\" + outfit.key + "\\" + mesh + "`: " + quoted +
              " cannot be worn in the pose \"" + outfit.missingPose + "\";\n";
    }
  }
  return text;
}

std::string missing(const std::vector<CharacterDesign>& people, const std::vector<GlobalAssetDesign>& globals) {
  std::string text;
  for (const CharacterDesign& character : people) text += missing(character);
  for (const GlobalAssetDesign& asset : globals) {
    if (asset.hasFolder) continue;
    text += "- the folder `global_assets\\" + asset.key + "`: the asset \"" + asset.name + "\" is not offered.\n";
  }
  return text;
}

}  // namespace

std::string repositoryReadme(const std::vector<CharacterDesign>& people, const std::vector<GlobalAssetDesign>& globals,
                             std::uint64_t seed) {
  std::string text = "# Sample repository\n\n" + named(people) +
                     ", with poses, clothing, skins and assets, made by `zorvel sample` with the seed " +
                     std::to_string(seed) +
                     ".\nEverything here is computed; nothing was photographed, scanned or modelled by hand. Lengths "
                     "are centimetres, Z is up,\nand the characters face -Y.\n\n";
  const std::string leftOut = missing(people, globals);
  if (!leftOut.empty()) {
    text +=
        "## What is missing on purpose\n\n"
        "A repository that people really use is never complete. This one leaves out\n\n" +
        leftOut + "\n";
  }
  return text +
         "Every pose has a web address in its `url`, where what is missing could be had; the addresses lead "
         "nowhere.\n\n"
         "## Where things are\n\n"
         "- `zorvel.xml` describes everything.\n"
         "- `<character>\\<pose>\\pose.vrmesh` is the body, `<character>\\skin\\skin.mat` its skins.\n"
         "- `<character>\\<clothing>` and `<character>\\<asset>` hold meshes, a material library and pictures.\n"
         "- `<character>\\materials.mat` and `<character>\\props.mat` hold materials that are not in a folder's own "
         "library.\n"
         "- `global_assets` holds what all characters share.\n"
         "- `maps` holds the textures. The libraries name other folders, as libraries do that come from another "
         "machine.\n"
         "- `plaza.json`, no part of the repository, is a scene to put people into: `zorvel create --into`.\n";
}

}  // namespace samples
