#include "bench/PictureRepository.h"

#include <QBuffer>
#include <QImage>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <vector>

#include "bench/BenchStore.h"

namespace bench {

namespace fs = std::filesystem;

namespace {

constexpr int SKINS = 24;
constexpr int STYLES = 24;
constexpr int CATEGORIES = 15;
constexpr int ASSETS = PictureRepository::ELEMENTS - PictureRepository::POSES - SKINS - STYLES;
/// Clothes with pictures of their own.
constexpr int WORN = 2;

void write(const fs::path& file, const QByteArray& bytes = {}) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary).write(bytes.constData(), bytes.size());
}

std::string name(const char* kind, int number) { return kind + std::to_string(number); }

/// Several elements of one kind; `rest` continues the tag of each.
template <class Rest>
std::string elements(const char* tag, const char* kind, int count, const Rest& rest) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += std::string("<") + tag + " id=\"" + name(kind, i) + "\" name=\"" + kind + " number " + std::to_string(i) +
            "\" " + rest(i) + "\n";
  }
  return text;
}

std::string clothes() {
  return elements("clothing", "k", PictureRepository::CLOTHES, [](int i) {
    const auto style = [](int j) { return "preview=\"" + name("m", j) + ".png\" material=\"Blue\"/>"; };
    return "folder=\"" + name("k", i) + "\">" + elements("material", "m", i < WORN ? STYLES : 1, style) + "</clothing>";
  });
}

/// A place for every asset in every pose.
std::string matrix() {
  std::string text = "<AssetMatrix>\n";
  for (int i = 0; i < PictureRepository::POSES * ASSETS; ++i) {
    text += "<matrix poseID=\"" + name("p", i % PictureRepository::POSES) + "\" assetID=\"" +
            name("a", i / PictureRepository::POSES) +
            "\" xpos=\"12.5\" ypos=\"0\" zpos=\"80\" xrot=\"0\" yrot=\"0\" zrot=\"90\"/>\n";
  }
  return text + "</AssetMatrix>\n";
}

std::string richCharacter() {
  const auto skin = [](int i) { return "preview=\"" + name("s", i) + ".png\" material=\"Skin\"/>"; };
  const auto pose = [](int i) { return "folder=\"" + name("p", i) + "\" url=\"https://example.com\"/>"; };
  const auto category = [](int) { return std::string("selection=\"multiple\" required=\"false\"/>"); };
  const auto asset = [](int i) {
    return "folder=\"" + name("a", i) + "\" type=\"common\" material=\"Oak\" category=\"" + name("t", i % CATEGORIES) +
           "\"/>";
  };
  return "<character id=\"c0\" name=\"Rich\" folder=\"rich\"><skins name=\"Skin\">\n" +
         elements("skin", "s", SKINS, skin) + "</skins><cloth name=\"Style\">\n" + clothes() +
         "</cloth><poses name=\"Pose\">\n" + elements("pose", "p", PictureRepository::POSES, pose) +
         "</poses><categories>\n" + elements("category", "t", CATEGORIES, category) + "</categories><assets>\n" +
         elements("asset", "a", ASSETS, asset) + "</assets>" + matrix() + "</character>\n";
}

std::string plainCharacter(int number) {
  const auto clothing = [](int i) { return "folder=\"" + name("k", i) + "\"/>"; };
  return "<character id=\"" + name("c", number) + "\" name=\"Person " + std::to_string(number) +
         "\" folder=\"plain\"><cloth name=\"Style\">\n" +
         elements("clothing", "k", PictureRepository::CLOTHES, clothing) + "</cloth></character>\n";
}

/// Soft colours with the grain of a photo, as a PNG file.
QByteArray photo(int width, int height, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> grain(-6, 6);
  QImage image(width, height, QImage::Format_RGB32);
  const int base = static_cast<int>(seed % 7) * 20;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int noise = grain(random);
      image.setPixel(x, y,
                     qRgb(qBound(0, 40 + base + x * 80 / width + noise, 255),
                          qBound(0, 200 - y * 120 / height + noise, 255), qBound(0, 90 + base / 2 + noise, 255)));
    }
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

/// A few different ones, over and over.
class Photos {
 public:
  Photos(int width, int height) {
    for (unsigned seed = 0; seed < 12; ++seed) photos_.push_back(photo(width, height, seed));
  }
  const QByteArray& next() { return photos_[next_++ % photos_.size()]; }

 private:
  std::vector<QByteArray> photos_;
  std::size_t next_ = 0;
};

}  // namespace

PictureRepository::PictureRepository(int characters) : folder_("zorvel-bench-") {
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<zorvel>\n" + richCharacter();
  for (int i = 1; i < characters; ++i) text += plainCharacter(i);
  write(folder() / "zorvel.xml", QByteArray::fromStdString(text + "</zorvel>\n"));
  writePictures();
  writeMeshes();
}

const PictureRepository& PictureRepository::ofSize(int characters) {
  static std::map<int, std::unique_ptr<PictureRepository>> made;
  std::unique_ptr<PictureRepository>& one = made[characters];
  if (one == nullptr) one = std::make_unique<PictureRepository>(characters);
  return *one;
}

void PictureRepository::load() const { loadRepository(folder()); }

fs::path PictureRepository::posePicture(int pose) const {
  return folder() / "rich/previews" / ("k0_" + name("p", pose) + ".png");
}

void PictureRepository::writePictures() const {
  const fs::path rich = folder() / "rich";
  Photos tall(100, 300);
  Photos square(150, 150);
  Photos clothing(110, 330);
  for (int i = 0; i < CLOTHES; ++i) {
    const std::string file = "previews/preview_" + name("k", i) + ".png";
    write(rich / file, clothing.next());
    write(folder() / "plain" / file, clothing.next());
  }
  for (int cloth = 0; cloth < WORN; ++cloth) {
    for (int i = 0; i < POSES; ++i) {
      write(rich / "previews" / (name("k", cloth) + "_" + name("p", i) + ".png"), tall.next());
    }
    for (int i = 0; i < STYLES; ++i) write(rich / name("k", cloth) / (name("m", i) + ".png"), tall.next());
  }
  for (int i = 0; i < SKINS; ++i) write(rich / "skin" / (name("s", i) + ".png"), square.next());
  for (int i = 0; i < ASSETS; ++i) write(rich / name("a", i) / "preview.png", square.next());
}

void PictureRepository::writeMeshes() const {
  fs::create_directories(folder() / "plain/skin");
  for (int i = 0; i < CLOTHES; ++i) {
    fs::create_directories(folder() / "rich" / name("k", i));
    fs::create_directories(folder() / "plain" / name("k", i));
  }
  for (int i = 0; i < POSES; ++i) {
    fs::create_directories(folder() / "rich" / name("p", i));
    for (int cloth = 0; cloth < WORN; ++cloth) {
      write(folder() / "rich" / name("k", cloth) / (name("k", cloth) + "_" + name("p", i) + ".vrmesh"));
    }
  }
}

}  // namespace bench
