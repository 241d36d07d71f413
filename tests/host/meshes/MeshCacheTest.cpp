#include "host/meshes/MeshCache.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "host/meshes/MeshFileWriter.h"
#include "tests/host/meshes/Shapes.h"
#include "tests/support/TemporaryFolder.h"

namespace {

constexpr char TRIANGLE[] = "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n";

TEST(MeshCache, SharesAMeshAndLetsItDieWithItsLastUser) {
  const support::TemporaryFolder folder;
  const auto file = folder.write("one.vrmesh", TRIANGLE);
  host::MeshCache cache(host::readMeshFile);
  auto first = cache.get(file).mesh;
  ASSERT_TRUE(first);
  EXPECT_EQ(cache.get(file).mesh, first);
  const std::weak_ptr<const host::Mesh> watched = first;
  first.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(cache.get(file).mesh);
}

TEST(MeshCache, ReadsAFileAnewOnceItChanged) {
  const support::TemporaryFolder folder;
  const auto file = folder.write("one.vrmesh", TRIANGLE);
  host::MeshCache cache(host::readMeshFile);
  const auto first = cache.get(file).mesh;
  EXPECT_EQ(host::writeMeshFile(shapes::square(), file), "");
  const auto second = cache.get(file).mesh;
  ASSERT_TRUE(second);
  EXPECT_NE(first, second);
  EXPECT_EQ(second->triangles.size(), 2U);
}

TEST(MeshCache, SaysWhyAFileCannotBeReadUntilItIsMended) {
  const support::TemporaryFolder folder;
  host::MeshCache cache(host::readMeshFile);
  EXPECT_EQ(cache.get(folder.path() / "one.vrmesh").error, "the file was not found");
  const auto file = folder.write("one.vrmesh", "a real proxy of another program");
  EXPECT_NE(cache.get(file).error.find("not a mesh"), std::string::npos);
  EXPECT_NE(cache.get(file).error.find("not a mesh"), std::string::npos);
  folder.write("one.vrmesh", TRIANGLE);
  EXPECT_TRUE(cache.get(file).mesh);
}

TEST(MeshCache, TakesNoMoreThanThereIsRoomForAndTriesAgain) {
  const support::TemporaryFolder folder;
  const auto file = folder.write("one.vrmesh", TRIANGLE);
  host::Room& room = host::roomForMeshes();
  const std::size_t before = room.left();
  host::Room::Share all = room.take(before);
  EXPECT_NE(host::sharedMeshes().get(file).error.find("no room"), std::string::npos);
  all.reset();
  auto mesh = host::sharedMeshes().get(file).mesh;
  ASSERT_TRUE(mesh);
  EXPECT_LT(room.left(), before);
  mesh.reset();
  EXPECT_EQ(room.left(), before);
}

TEST(MeshCache, ReadsRegularFilesOnly) {
  const support::TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder.path() / "pipe.vrmesh").c_str(), 0600), 0);
  EXPECT_EQ(host::readMeshFile(folder.path() / "pipe.vrmesh").error, "it is no file");
  EXPECT_EQ(host::readMeshFile(folder.path()).error, "it is no file");
  EXPECT_EQ(host::readMeshFile("/dev/zero").error, "it is no file");
}

}  // namespace
