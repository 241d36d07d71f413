#include "samples/repository/CharacterPictures.h"

#include <algorithm>

#include "samples/repository/Naming.h"
#include "samples/repository/RepositoryFiles.h"

namespace samples {
namespace {

namespace fs = std::filesystem;

constexpr int CELL_WIDTH = 160;
constexpr int CELL_HEIGHT = 320;

// All figures in one scale, so that the tall look tall.
Previews::View upright(const ImplicitBody& body) {
  const Box box = body.bounds();
  Previews::View view;
  view.target = {0.5 * (box.low.x + box.high.x), 0.5 * (box.low.y + box.high.y), 98};
  view.height = 218;
  return view;
}

void addFiles(std::vector<fs::path>& files, const std::vector<fs::path>& more) {
  files.insert(files.end(), more.begin(), more.end());
}

const StyleDesign& styleOf(const AssetDesign& asset, const std::string& key) {
  for (const StyleDesign& style : asset.styles) {
    if (style.key == key) return style;
  }
  return asset.styles.empty() ? asset.plain : asset.styles.front();
}

}  // namespace

void CharacterPictures::addAsset(Items& items, const CharacterMaker::Posed& posed, const AssetDesign& asset,
                                 const std::string& style) const {
  const std::string mesh = maker_.assetMesh(asset, posed.pose);
  if (asset.kind == AssetDesign::Kind::Worn) {
    items.push_back(previews_.item(store_.find(mesh), styleOf(asset, style).material));
    return;
  }
  const Material* material = &styleOf(asset, style).material;
  if (asset.kind == AssetDesign::Kind::Global) {
    for (const GlobalAssetDesign& global : globals_) {
      if (globalId(global) != asset.global) continue;
      material = global.styles.empty() ? &global.plain.material : &global.styles.front().material;
    }
  }
  items.push_back(previews_.item(store_.find(mesh), *material, propPlacement(asset.prop, *posed.body)));
}

CharacterPictures::Items CharacterPictures::figure(const CharacterMaker::Posed& posed, const Dressed& dressed) const {
  const CharacterDesign& design = maker_.design();
  Items items = {previews_.item(store_.find(maker_.bodyMesh(posed.pose)), skinMaterial(design, *dressed.skin))};
  items.push_back(previews_.item(store_.find(maker_.outfitMesh(*dressed.outfit, posed.pose)), dressed.style->material));
  for (const OutfitDesign::Selected& selected : dressed.assets) {
    const AssetDesign* asset = design.asset(selected.asset);
    if (asset != nullptr) addAsset(items, posed, *asset, selected.style);
  }
  if (const AssetDesign* support = design.support(posed.pose)) addAsset(items, posed, *support, "");
  return items;
}

CharacterPictures::Dressed CharacterPictures::usual(const OutfitDesign& outfit) const {
  return {&outfit, &outfit.styles.front(), &maker_.design().skins.front(), outfit.selects};
}

void CharacterPictures::plan(JobQueue& queue) const {
  for (const OutfitDesign& outfit : maker_.design().outfits) planOutfitPictures(queue, outfit);
  planSkinPictures(queue);
  planAssetPictures(queue);
}

std::vector<fs::path> CharacterPictures::stylePictures(const OutfitDesign& outfit, const StyleDesign& style) const {
  const std::string name = previewName(styleId(outfitId(maker_.design(), outfit), style));
  std::vector<fs::path> files = {maker_.folder() / "previews" / name};
  if (outfit.hasFolder) files.push_back(maker_.folder() / outfit.key / name);
  return files;
}

void CharacterPictures::planOutfitPictures(JobQueue& queue, const OutfitDesign& outfit) const {
  const fs::path folder = maker_.folder();
  const std::string id = outfitId(maker_.design(), outfit);
  for (const CharacterMaker::Posed& posed : maker_.poses()) {
    const std::string pose = poseId(maker_.design(), posed.pose);
    std::vector<fs::path> files = {folder / "previews" / (id + "_" + pose + ".png")};
    // The same picture stands for the pose and for the first style.
    if (&outfit == &maker_.design().outfits.front()) files.push_back(folder / "previews" / previewName(pose));
    if (&posed == &maker_.poses().front()) addFiles(files, stylePictures(outfit, outfit.styles.front()));
    queue.add([this, files, &posed, &outfit] {
      return writePictures(previews_.take(figure(posed, usual(outfit)), upright(*posed.body), 100, 300), files);
    });
  }
  const CharacterMaker::Posed& first = maker_.poses().front();
  for (const StyleDesign& style : outfit.styles) {
    if (&style == &outfit.styles.front()) continue;
    const std::vector<fs::path> files = stylePictures(outfit, style);
    queue.add([this, files, &first, &outfit, &style] {
      Dressed dressed = usual(outfit);
      dressed.style = &style;
      return writePictures(previews_.take(figure(first, dressed), upright(*first.body), 100, 300), files);
    });
  }
  std::vector<fs::path> files = {folder / "previews" / previewName(id)};
  if (&outfit == &maker_.design().outfits.front()) files.push_back(folder / "previews" / "preview.png");
  queue.add([this, files, &first, &outfit] {
    return writePictures(previews_.take(figure(first, usual(outfit)), upright(*first.body), 110, 330), files);
  });
}

void CharacterPictures::planSkinPictures(JobQueue& queue) const {
  const fs::path folder = maker_.folder();
  for (const SkinDesign& skin : maker_.design().skins) {
    const std::string name = previewName(skinId(maker_.design(), skin));
    queue.add([this, folder, name, &skin] {
      const CharacterMaker::Posed& posed = maker_.poses().front();
      Dressed dressed = usual(maker_.design().outfits.front());
      dressed.skin = &skin;
      dressed.assets.clear();
      const HeadShape& head = posed.body->headShape();
      const Previews::View view{head.place(0, 0, 0.36), 1.85 * head.height(), 20, 2, false};
      return writePictures(previews_.take(figure(posed, dressed), view, 150, 150),
                           {folder / "skin" / name, folder / "previews" / name});
    });
  }
}

void CharacterPictures::planAssetPictures(JobQueue& queue) const {
  const fs::path folder = maker_.folder();
  for (const AssetDesign& asset : maker_.design().assets) {
    if (asset.kind == AssetDesign::Kind::Global) continue;
    const std::string id = assetId(maker_.design(), asset.key);
    const std::string mesh = maker_.assetMesh(asset, maker_.poses().front().pose);
    const std::vector<StyleDesign>& styles = asset.styles;
    for (std::size_t i = 0; i < std::max<std::size_t>(styles.size(), 1); ++i) {
      const StyleDesign* style = styles.empty() ? &asset.plain : &styles[i];
      std::vector<fs::path> files;
      if (!styles.empty()) {
        const std::string name = previewName(styleId(id, *style));
        files = {folder / asset.key / name, folder / "previews" / name};
      }
      if (i == 0) {
        files.push_back(folder / asset.key / "preview.png");
        files.push_back(folder / "previews" / previewName(id));
      }
      queue.add([this, mesh, style, files] {
        const Items items = {previews_.item(store_.find(mesh), style->material)};
        return writePictures(previews_.take(items, Previews::around(items, 1), 150, 150), files);
      });
    }
  }
}

// Every style of the outfit in turn, and one thing of each kind that the outfit does not choose or refuse itself.
CharacterPictures::Dressed CharacterPictures::sheetDress(std::size_t row, std::size_t column) const {
  const CharacterDesign& design = maker_.design();
  const OutfitDesign& outfit = design.outfits[row];
  Dressed dressed = usual(outfit);
  dressed.style = &outfit.styles[column % outfit.styles.size()];
  dressed.skin = &design.skins[row % design.skins.size()];
  const auto taken = [&](const std::string& category) {
    return std::any_of(dressed.assets.begin(), dressed.assets.end(), [&](const OutfitDesign::Selected& selected) {
      return design.asset(selected.asset)->category == category;
    });
  };
  const std::map<std::string, bool> shown = {
      {"hand", (row + column) % 4 != 0}, {"bags", (row + column) % 2 == 1}, {"headwear", column % 3 == 1}};
  for (const auto& [category, show] : shown) {
    std::vector<const AssetDesign*> choice;
    for (const AssetDesign& asset : design.assets) {
      const auto& excludes = outfit.excludes;
      const bool excluded = std::find(excludes.begin(), excludes.end(), asset.key) != excludes.end();
      if (asset.category == category && !excluded) choice.push_back(&asset);
    }
    if (choice.empty() || taken(category) || !show) continue;
    const AssetDesign& asset = *choice[(row + column / 2) % choice.size()];
    dressed.assets.push_back({asset.key, asset.styles.empty() ? "" : asset.styles[column % asset.styles.size()].key});
  }
  return dressed;
}

void CharacterPictures::planContactSheet(JobQueue& queue, const fs::path& file) {
  const std::vector<CharacterMaker::Posed>& poses = maker_.poses();
  const std::size_t rows = maker_.design().outfits.size();
  sheet_ =
      QImage(CELL_WIDTH * static_cast<int>(poses.size()), CELL_HEIGHT * static_cast<int>(rows), QImage::Format_RGB32);
  // Jobs run at the same time, and none of them may be the one that copies the picture.
  auto* bits = sheet_.bits();
  const auto stride = sheet_.bytesPerLine();
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < poses.size(); ++column) {
      queue.add([this, row, column, bits, stride]() -> std::string {
        const CharacterMaker::Posed& posed = maker_.poses()[column];
        Previews::View view = upright(*posed.body);
        view.height *= maker_.design().proportions.stature / 175;
        view.target.z *= maker_.design().proportions.stature / 175;
        const QImage cell = previews_.take(figure(posed, sheetDress(row, column)), view, CELL_WIDTH, CELL_HEIGHT);
        const auto left = static_cast<qptrdiff>(column) * CELL_WIDTH * 4;
        for (int y = 0; y < CELL_HEIGHT; ++y) {
          const auto line = static_cast<qptrdiff>(row) * CELL_HEIGHT + y;
          std::copy_n(cell.constScanLine(y), CELL_WIDTH * 4, bits + line * stride + left);
        }
        return {};
      });
    }
  }
  sheetFile_ = file;
}

std::string CharacterPictures::writeContactSheet() const { return writePictures(sheet_, {sheetFile_}); }

}  // namespace samples
