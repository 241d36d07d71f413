#include "host/meshes/ObjMeshReader.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <map>
#include <string>

#include "host/meshes/Polygon.h"
#include "host/meshes/UnreadableMesh.h"

namespace host {

namespace {

constexpr std::uint32_t NONE = std::numeric_limits<std::uint32_t>::max();

// Of the vertices at one position only the latest are looked through for an equal one; more of them is no real mesh,
// and a vertex too many does no harm.
constexpr std::size_t FURTHEST_BACK = 64;

// Comparisons of corners, of which a convex polygon takes half as many as the square of its corners. Many polygons of
// many corners are no mesh of a person, and to cut them right takes long.
constexpr std::size_t MOST_EFFORT = 200'000'000;
constexpr std::size_t ALWAYS_SPENT = 100'000;
constexpr std::size_t SPENT_ON_A_BYTE = 50;

/// The next word of a line, which is shortened by it; empty at the end.
std::string_view nextWord(std::string_view& line) {
  constexpr std::string_view blanks = " \t\r";
  const std::size_t start = line.find_first_not_of(blanks);
  if (start == std::string_view::npos) return line = {};
  line.remove_prefix(start);
  const std::string_view word = line.substr(0, line.find_first_of(blanks));
  line.remove_prefix(word.size());
  return word;
}

/// Not a number where there is none; read with the point as decimal separator, whatever the locale.
float nextNumber(std::string_view& line) {
  std::string_view word = nextWord(line);
  if (!word.empty() && word.front() == '+') word.remove_prefix(1);
  float number = 0.0F;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool whole = result.ec == std::errc() && result.ptr == word.data() + word.size();
  return whole ? number : std::numeric_limits<float>::quiet_NaN();
}

/// What one corner of a face names, NONE where it names nothing.
struct Corner {
  std::uint32_t position = NONE;
  std::uint32_t texCoord = NONE;
  std::uint32_t normal = NONE;
};

class ObjReader {
 public:
  Mesh read(std::string_view text) {
    effort_ = std::min(MOST_EFFORT, ALWAYS_SPENT + SPENT_ON_A_BYTE * text.size());
    while (!text.empty()) {
      ++lineNumber_;
      const std::size_t end = text.find('\n');
      readLine(text.substr(0, end));
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    if (missesNormals_) fillNormals();
    return std::move(mesh_);
  }

 private:
  /// One vertex of the result; those that share a position are chained by `next`.
  struct Vertex {
    Corner corner;
    std::uint32_t next;
  };

  void readLine(std::string_view line) {
    const std::string_view word = nextWord(line);
    if (word == "v") {
      requireRoom(positions_.size());
      positions_.push_back(nextPoint(line));
      firstVertex_.push_back(NONE);
    } else if (word == "vn") {
      requireRoom(normals_.size());
      normals_.push_back(nextPoint(line));
    } else if (word == "vt") {
      requireRoom(texCoords_.size());
      const float u = nextNumber(line);
      texCoords_.push_back({u, nextNumber(line)});
    } else if (word == "f") {
      readFace(line);
    } else if (word == "usemtl") {
      useMaterial(nextWord(line));
    }
  }

  /// For one more vertex, or what is part of one.
  void requireRoom(std::size_t there) const {
    if (there >= MOST_VERTICES) fail("the mesh is too large");
  }

  Point3 nextPoint(std::string_view& line) const {
    const float x = nextNumber(line);
    const float y = nextNumber(line);
    if (line.empty()) fail("a position is not a usable number");
    return {x, y, nextNumber(line)};
  }

  void useMaterial(std::string_view name) {
    const auto found = materials_.find(name);
    const std::size_t id = found != materials_.end() ? found->second : materials_.size();
    if (id > std::numeric_limits<std::uint16_t>::max()) fail("too many materials");
    materials_.emplace(name, static_cast<std::uint16_t>(id));
    material_ = static_cast<std::uint16_t>(id);
  }

  void readFace(std::string_view line) {
    face_.clear();
    polygon_.clear();
    for (std::string_view word = nextWord(line); !word.empty(); word = nextWord(line)) {
      if (word.front() == '#') break;
      if (face_.size() > MOST_TRIANGLES) fail("the mesh is too large");
      const Corner corner = readCorner(word);
      face_.push_back(vertexFor(corner));
      polygon_.push_back(positions_[corner.position]);
    }
    if (mesh_.triangles.size() + face_.size() > MOST_TRIANGLES) fail("the mesh is too large");
    for (const auto& [a, b, c] : triangulated(polygon_, effort_)) appendTriangle({face_[a], face_[b], face_[c]});
  }

  Corner readCorner(std::string_view word) const {
    Corner corner;
    corner.position = readIndex(word, positions_.size());
    corner.texCoord = readIndex(word, texCoords_.size());
    corner.normal = readIndex(word, normals_.size());
    if (corner.position == NONE || !word.empty()) fail("a corner of a face cannot be understood");
    return corner;
  }

  /// Reads up to the next slash; NONE where nothing stands. Counted from one, or back from the last one read.
  std::uint32_t readIndex(std::string_view& word, std::size_t count) const {
    const std::size_t slash = word.find('/');
    const std::string_view text = word.substr(0, slash);
    word.remove_prefix(slash == std::string_view::npos ? word.size() : slash + 1);
    if (text.empty()) return NONE;
    long long index = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), index);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size())
      fail("a corner of a face cannot be understood");
    const auto last = static_cast<long long>(count);
    if (index == 0 || index > last || index < -last) fail("a face names a vertex that is not there");
    return static_cast<std::uint32_t>(index > 0 ? index - 1 : last + index);
  }

  std::uint32_t vertexFor(const Corner& corner) {
    std::uint32_t& first = firstVertex_[corner.position];
    std::size_t looked = 0;
    for (std::uint32_t i = first; i != NONE && looked < FURTHEST_BACK; i = vertices_[i].next, ++looked) {
      const Corner& other = vertices_[i].corner;
      if (other.texCoord == corner.texCoord && other.normal == corner.normal) return i;
    }
    const auto index = static_cast<std::uint32_t>(vertices_.size());
    requireRoom(index);
    vertices_.push_back({corner, first});
    first = index;
    appendVertex(corner);
    return index;
  }

  void appendVertex(const Corner& corner) {
    mesh_.positions.push_back(positions_[corner.position]);
    mesh_.normals.push_back(corner.normal == NONE ? Point3() : normals_[corner.normal]);
    missesNormals_ = missesNormals_ || corner.normal == NONE;
    if (corner.texCoord != NONE) {
      mesh_.texCoords.resize(mesh_.positions.size() - 1);
      mesh_.texCoords.push_back(texCoords_[corner.texCoord]);
    } else if (!mesh_.texCoords.empty()) {
      mesh_.texCoords.emplace_back();
    }
  }

  void appendTriangle(const Mesh::Triangle& triangle) {
    if (material_ != 0 && mesh_.materialIds.empty()) mesh_.materialIds.resize(mesh_.triangles.size());
    mesh_.triangles.push_back(triangle);
    if (material_ != 0 || !mesh_.materialIds.empty()) mesh_.materialIds.push_back(material_);
  }

  /// Measured over the positions as the file has them, so that a seam of the texture is no edge of the surface.
  void fillNormals() {
    Mesh whole;
    whole.positions = positions_;
    for (const auto& [a, b, c] : mesh_.triangles) {
      whole.triangles.push_back(
          {vertices_[a].corner.position, vertices_[b].corner.position, vertices_[c].corner.position});
    }
    completeMesh(whole);
    for (std::size_t i = 0; i < vertices_.size(); ++i) {
      if (vertices_[i].corner.normal == NONE) mesh_.normals[i] = whole.normals[vertices_[i].corner.position];
    }
  }

  [[noreturn]] void fail(const std::string& reason) const {
    throw UnreadableMesh("line " + std::to_string(lineNumber_) + ": " + reason);
  }

  Mesh mesh_;
  std::vector<Point3> positions_;
  std::vector<Point3> normals_;
  std::vector<TexCoord> texCoords_;
  std::vector<Vertex> vertices_;
  std::vector<std::uint32_t> firstVertex_;
  std::vector<std::uint32_t> face_;
  std::vector<Point3> polygon_;
  std::map<std::string, std::uint16_t, std::less<>> materials_;
  std::uint16_t material_ = 0;
  std::size_t lineNumber_ = 0;
  /// Comparisons that polygons may still take.
  std::size_t effort_ = 0;
  bool missesNormals_ = false;
};

}  // namespace

bool looksLikeObj(std::string_view bytes) {
  if (bytes.find('\0') != std::string_view::npos) return false;
  return bytes.substr(0, 2) == "v " || bytes.find("\nv ") != std::string_view::npos;
}

Mesh readObj(std::string_view text) { return ObjReader().read(text); }

}  // namespace host
