#include "bench/check/ShapedRepository.h"

#include <QBuffer>
#include <QImage>
#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "bench/check/LinkedFiles.h"
#include "host/meshes/MeshFileWriter.h"

namespace bench {

namespace fs = std::filesystem;

namespace {

std::string name(const char* kind, int number) {
  const std::string digits = std::to_string(number);
  return kind + std::string(6 - std::min<std::size_t>(6, digits.size()), '0') + digits;
}

std::string picture(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x, y, x * y));
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes.toStdString();
}

std::string box(float size) {
  host::Mesh mesh;
  for (const float z : {0.0F, size}) {
    for (const float y : {0.0F, size}) {
      for (const float x : {0.0F, size}) mesh.positions.emplace_back(x, y, z);
    }
  }
  mesh.triangles = {{0, 2, 1}, {1, 2, 3}, {4, 5, 6}, {5, 7, 6}, {0, 1, 4}, {1, 5, 4},
                    {2, 6, 3}, {3, 6, 7}, {0, 4, 2}, {2, 4, 6}, {1, 3, 5}, {3, 7, 5}};
  host::completeMesh(mesh);
  return host::glbBytes(mesh);
}

const char* const LIBRARY =
    R"({"format": "zorvel-material-library", "version": 1, "materials": [{"name": "Plain", "class": "standard",
 "blocks": [[{"id": 0, "type": "color", "value": [0.9, 0.7, 0.6]}, {"id": 1, "type": "float", "value": 0.5}]],
 "subTextures": [null, {"class": "bitmap", "file": "D:\\textures\\plain.png"}]}]})";

const char* const PLACE = R"(" xpos="12.5" ypos="-3.25" zpos="80.125" xrot="0" yrot="0" zrot="90"/>)";

class Writer {
 public:
  Writer(const RepositoryShape& shape, fs::path root) : shape_(shape), root_(std::move(root)) {}

  int write() {
    files_.write(root_ / "overlay110x330.png", clothing_);
    files_.write(root_ / "overlay100x300.png", pose_);
    files_.write(root_ / "maps/plain.png", square_);
    for (int i = 0; i < shape_.unreferencedFiles; ++i) files_.write(root_ / "old" / name("f", i), library_);
    open("zorvel", "");
    writeShared();
    for (int i = 0; i < shape_.characters; ++i) writeCharacter(i);
    close("zorvel");
    std::ofstream(root_ / "zorvel.xml", std::ios::binary) << text_;
    return elements_ - 1;
  }

 private:
  void open(const std::string& tag, const std::string& attributes) {
    text_ += '<' + tag + attributes + ">\n";
    ++elements_;
  }
  void close(const std::string& tag) { text_ += "</" + tag + ">\n"; }
  void add(const std::string& tag, const std::string& attributes) {
    text_ += '<' + tag + attributes + "/>\n";
    ++elements_;
  }
  static std::string named(const std::string& id) { return " id=\"" + id + "\" name=\"" + id + " of the sample\""; }
  static std::string inFolder(const std::string& id) { return named(id) + " folder=\"" + id + '"'; }

  void addMaterials(const fs::path& folder, int count, const std::string& preview) {
    for (int i = 0; i < count; ++i) {
      const std::string id = name("m", i);
      add("material", named(id) + " preview=\"" + id + ".png\" material=\"Plain\"");
      files_.write(folder / (id + ".png"), preview);
    }
    files_.write(folder / "materials.mat", library_);
  }

  void writeAsset(const fs::path& folder, const std::string& attributes) {
    open("asset", attributes + " material=\"Plain\"");
    addMaterials(folder, shape_.materials, square_);
    if (shape_.materials == 0) files_.write(folder / "preview.png", square_);
    files_.write(folder / "asset.vrmesh", smallMesh_);
    close("asset");
  }

  void writeShared() {
    if (shape_.sharedAssets == 0) return;
    open("globalAssets", "");
    for (int i = 0; i < shape_.sharedAssets; ++i) {
      const std::string id = name("g", i);
      writeAsset(root_ / "global_assets" / id, inFolder(id) + " type=\"global\"");
    }
    close("globalAssets");
  }

  void writeCharacter(int number) {
    const std::string id = name("c", number);
    folder_ = root_ / id;
    open("character", inFolder(id));
    files_.write(folder_ / "materials.mat", library_);
    writeSkins();
    writeClothes();
    writePoses();
    open("categories", "");
    for (int i = 0; i < shape_.categories; ++i) add("category", named(name("t", i)) + " selection=\"multiple\"");
    close("categories");
    writeAssets(number == 0 ? shape_.sharedAssets : 0);
    close("character");
  }

  void writeSkins() {
    open("skins", " name=\"Skin\"");
    for (int i = 0; i < shape_.skins; ++i) {
      const std::string id = name("s", i);
      add("skin", named(id) + " preview=\"" + id + ".png\" material=\"Plain\"");
      files_.write(folder_ / "skin" / (id + ".png"), square_);
    }
    files_.write(folder_ / "skin/skin.mat", library_);
    close("skins");
  }

  void writeClothes() {
    open("cloth", " name=\"Style\"");
    for (int i = 0; i < shape_.clothes; ++i) {
      const std::string id = name("k", i);
      open("clothing", inFolder(id));
      addMaterials(folder_ / id, shape_.styles, pose_);
      close("clothing");
      files_.write(folder_ / "previews" / ("preview_" + id + ".png"), clothing_);
      for (int j = 0; j < shape_.poses; ++j)
        files_.write(folder_ / "previews" / (id + '_' + name("p", j) + ".png"), pose_);
      for (int j = 0; j < shape_.poses; ++j) files_.write(folder_ / id / (id + '_' + name("p", j) + ".vrmesh"), mesh_);
    }
    close("cloth");
  }

  void writePoses() {
    open("poses", " name=\"Pose\"");
    for (int i = 0; i < shape_.poses; ++i) {
      const std::string id = name("p", i);
      add("pose", inFolder(id));
      files_.write(folder_ / id / "pose.vrmesh", mesh_);
    }
    close("poses");
  }

  void writeAssets(int sharedAssets) {
    open("assets", "");
    const auto category = [this](int i) { return " category=\"" + name("t", i % shape_.categories) + '"'; };
    for (int i = 0; i < shape_.assets; ++i) {
      const std::string id = name("a", i);
      writeAsset(folder_ / id, inFolder(id) + " type=\"common\"" + category(i));
    }
    for (int i = 0; i < sharedAssets; ++i) {
      add("asset", " id=\"" + name("l", i) + "\" type=\"global\" globalID=\"" + name("g", i) + '"' + category(i));
    }
    close("assets");
    open("AssetMatrix", "");
    for (int i = 0; i < shape_.poses; ++i) {
      for (int j = 0; j < shape_.assets; ++j) addRow(name("p", i), name("a", j));
      for (int j = 0; j < sharedAssets; ++j) addRow(name("p", i), name("l", j));
    }
    close("AssetMatrix");
  }

  void addRow(const std::string& pose, const std::string& asset) {
    text_ += "<matrix poseID=\"" + pose + "\" assetID=\"" + asset + PLACE + '\n';
    ++elements_;
  }

  const RepositoryShape& shape_;
  fs::path root_;
  /// Of the character.
  fs::path folder_;
  std::string text_;
  int elements_ = 0;
  LinkedFiles files_;
  const std::string clothing_ = picture(110, 330);
  const std::string pose_ = picture(100, 300);
  const std::string square_ = picture(150, 150);
  const std::string mesh_ = box(170.0F);
  const std::string smallMesh_ = box(30.0F);
  const std::string library_ = LIBRARY;
};

}  // namespace

RepositoryShape shapeOf(const std::string& name, int size) {
  RepositoryShape shape;
  if (name == "typical") {
    shape.characters = size;
  } else if (name == "poses") {
    shape.poses = size;
    shape.clothes = std::max(1, size / 10);
  } else if (name == "assets") {
    shape.assets = size;
    shape.poses = 1;
    shape.materials = 0;
  } else if (name == "rows") {
    shape.poses = 100;
    shape.assets = std::max(1, size / shape.poses);
    shape.clothes = 1;
  } else if (name == "shared") {
    shape.sharedAssets = size;
    shape.poses = 1;
  } else if (name == "files") {
    shape.unreferencedFiles = size;
  } else {
    throw std::invalid_argument("no shape \"" + name + '"');
  }
  return shape;
}

int writeRepository(const RepositoryShape& shape, const fs::path& root) { return Writer(shape, root).write(); }

}  // namespace bench
