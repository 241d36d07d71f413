#include "bench/GeneratedRepository.h"

#include <fstream>
#include <map>
#include <memory>

#include "bench/BenchStore.h"
#include "host/files/Paths.h"
#include "host/meshes/MeshFileWriter.h"

namespace bench {

namespace fs = std::filesystem;

namespace {

constexpr int CLOTHES = 40;
constexpr int POSES = 20;
constexpr int SKINS = 10;
constexpr int CATEGORIES = 15;
constexpr int ASSETS = 100;
constexpr int ROWS = 2000;
/// Every tenth asset is made for each pose, every tenth stands for a global one.
constexpr int GLOBAL_ASSETS = 10;

std::string id(int character, const char* kind, int number) {
  return "c" + std::to_string(character) + kind + std::to_string(number);
}

std::string attributes(const std::string& elementId, const std::string& name) {
  return " id=\"" + elementId + "\" name=\"" + name + " of the sample\"";
}

void write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

}  // namespace

GeneratedRepository::GeneratedRepository(int characters) : folder_("zorvel-bench-") {
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<zorvel>\n<globalAssets>\n";
  for (int i = 0; i < GLOBAL_ASSETS; ++i) {
    text += "<asset" + attributes("g" + std::to_string(i), "Global") + " type=\"global\" folder=\"g" +
            std::to_string(i) + "\"><material id=\"g" + std::to_string(i) +
            "m\" name=\"Oak\" material=\"Oak\"/></asset>\n";
    fs::create_directories(folder() / "global_assets" / ("g" + std::to_string(i)));
    elements_ += 2;
  }
  text += "</globalAssets>\n";
  ++elements_;
  for (int i = 0; i < characters; ++i) {
    text += character(i);
    writeFolders(i);
  }
  write(folder() / "zorvel.xml", text + "</zorvel>\n");
}

const GeneratedRepository& GeneratedRepository::ofSize(int characters) {
  static std::map<int, std::unique_ptr<GeneratedRepository>> made;
  std::unique_ptr<GeneratedRepository>& one = made[characters];
  if (one == nullptr) one = std::make_unique<GeneratedRepository>(characters);
  return *one;
}

std::wstring GeneratedRepository::root() const { return host::toWide(folder().string()) + L"\\"; }

void GeneratedRepository::load() const { loadRepository(folder()); }

std::string GeneratedRepository::character(int number) {
  const auto element = [this](const char* name, const std::string& rest) {
    ++elements_;
    return std::string("<") + name + rest;
  };
  const auto own = [number](const char* kind, int i) { return id(number, kind, i); };
  std::string text =
      element("character", attributes(own("", 0), "Person") + " folder=\"p" + std::to_string(number) + "\">\n");
  text += element("skins", " name=\"Skin\">\n");
  for (int i = 0; i < SKINS; ++i)
    text += element("skin", attributes(own("s", i), "Skin") + " material=\"Skin light\"/>\n");
  text += "</skins>\n" + element("cloth", " name=\"Clothing\">\n");
  for (int i = 0; i < CLOTHES; ++i) {
    text += element("clothing", attributes(own("k", i), "Clothing") + " folder=\"k" + std::to_string(i) + "\">\n");
    for (int j = 0; j < 3; ++j) {
      text +=
          element("material", attributes(own("k", i) + "m" + std::to_string(j), "Style") + " material=\"Blue\"/>\n");
    }
    text += element("exclude", " id=\"" + own("a", i) + "\"/>\n");
    text += element("select", " asset_id=\"" + own("a", i + 1) + "\"/>\n</clothing>\n");
  }
  text += "</cloth>\n" + element("poses", " name=\"Pose\">\n");
  for (int i = 0; i < POSES; ++i) {
    text += element("pose", attributes(own("p", i), "Pose") + " folder=\"o" + std::to_string(i) + "\">");
    text += element("asset", " id=\"" + own("a", 0) + "\"/></pose>\n");
  }
  text += "</poses>\n" + element("categories", ">\n");
  for (int i = 0; i < CATEGORIES; ++i) {
    text += element("category", attributes(own("t", i), "Category") + " selection=\"multiple\" required=\"false\"/>\n");
  }
  text += "</categories>\n" + element("assets", ">\n");
  for (int i = 0; i < ASSETS; ++i) {
    const std::string type =
        i % 10 == 9 ? "global\" globalID=\"g" + std::to_string(i / 10) : (i % 10 == 8 ? "specific" : "common");
    text += element("asset", attributes(own("a", i), "Asset") + " folder=\"a" + std::to_string(i) + "\" type=\"" +
                                 type + "\" category=\"" + own("t", i % CATEGORIES) + "\" material=\"Leather\">");
    for (int j = 0; j < 2; ++j)
      text += element("material", attributes(own("a", i) + "m" + std::to_string(j), "Leather") + "/>");
    text += "</asset>\n";
  }
  text += "</assets>\n" + element("AssetMatrix", ">\n");
  for (int i = 0; i < ROWS; ++i) {
    text +=
        element("matrix", " poseID=\"" + own("p", i % POSES) + "\" assetID=\"" + own("a", i / POSES) +
                              "\" xpos=\"12.5\" ypos=\"-3.25\" zpos=\"80.125\" xrot=\"0\" yrot=\"0\" zrot=\"90\"/>\n");
  }
  return text + "</AssetMatrix>\n</character>\n";
}

void GeneratedRepository::writeFolders(int number) const {
  const fs::path base = folder() / ("p" + std::to_string(number));
  fs::create_directories(base / "skin");
  const auto folders = [&](const char* kind, int count) {
    for (int i = 0; i < count; ++i) fs::create_directories(base / (kind + std::to_string(i)));
  };
  folders("k", CLOTHES);
  folders("o", POSES);
  folders("a", ASSETS);
  for (int i = 0; i < CLOTHES; ++i) write(base / "previews" / ("preview_" + id(number, "k", i) + ".png"), "");
  if (number > 0) return;
  const std::string mesh = host::glbBytes(sheet(100));
  write(base / "o0/pose.vrmesh", mesh);
  write(base / "k0/c0k0_c0p0.vrmesh", mesh);
  for (int i = 0; i < 5; ++i) write(base / ("a" + std::to_string(i)) / "asset.vrmesh", mesh);
}

host::Mesh sheet(int side) {
  host::Mesh mesh;
  for (int y = 0; y <= side; ++y) {
    for (int x = 0; x <= side; ++x) {
      mesh.positions.emplace_back(static_cast<float>(x), static_cast<float>(y), static_cast<float>((x * y) % 7));
    }
  }
  const auto corner = [side](int x, int y) { return static_cast<std::uint32_t>(y * (side + 1) + x); };
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      mesh.triangles.push_back({corner(x, y), corner(x + 1, y), corner(x + 1, y + 1)});
      mesh.triangles.push_back({corner(x, y), corner(x + 1, y + 1), corner(x, y + 1)});
    }
  }
  host::completeMesh(mesh);
  return mesh;
}

}  // namespace bench
