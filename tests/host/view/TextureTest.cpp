#include "host/view/Texture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cmath>

#include "host/view/TextureRoom.h"
#include "tests/support/HostilePictures.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using host::Texture;
using host::TextureRoom;

TEST(Texture, RefusesWhatIsNoFileNoPictureOrOutOfAllProportion) {
  const support::TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder.path() / "pipe.png").c_str(), 0600), 0);
  EXPECT_EQ(Texture::read(folder.path() / "pipe.png").error, "it is no file");
  EXPECT_EQ(Texture::read(folder.path()).error, "it is no file");
  EXPECT_EQ(Texture::read(folder.path() / "missing.png").error, "the file was not found");
  const struct {
    std::string bytes;
    const char* error;
  } cases[] = {{"", "no picture that is read"},
               {"no picture", "no picture that is read"},
               {"P6 90 80 255\n", "no picture that is read"},
               {"<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", "no picture that is read"},
               {std::string("\0\0\1\0\1\0", 6), "no picture that is read"},
               {support::hugePng(), "more pixels than 8192 by 8192"},
               {support::pngWithPackedTexts(9), "too many parts"},
               {support::jpegWithScans(201), "too many scans"},
               {support::gifOnCanvas(20000, 9), "far larger than its picture"}};
  for (const auto& one : cases) {
    const Texture::Result result = Texture::read(folder.write("some.png", one.bytes));
    EXPECT_FALSE(result.texture);
    EXPECT_NE(result.error.find(one.error), std::string::npos) << one.error << ": " << result.error;
    EXPECT_FALSE(result.mayPass);
  }
}

TEST(Texture, IsReadWhateverItsFileIsCalledAndHoldsBesides) {
  const support::TemporaryFolder folder;
  const std::string good[] = {support::encoded({7, 5}, "PNG"), support::encoded({7, 5}, "JPG"),
                              support::encoded({7, 5}, "BMP"), support::pngWithPackedTexts(4),
                              support::progressiveJpeg({7, 5})};
  for (const std::string& bytes : good) {
    const Texture::Result result = Texture::read(folder.write("some.picture", bytes));
    ASSERT_TRUE(result.texture) << result.error;
    EXPECT_EQ(result.texture->picture().size(), QSize(7, 5));
  }
}

TEST(Texture, OfEightThousandPixelsIsKeptSmaller) {
  const support::TemporaryFolder folder;
  for (const QImage::Format format : {QImage::Format_Mono, QImage::Format_Grayscale8}) {
    const auto file = folder.write("large.png", support::encoded({8192, 8192}, "PNG", format, Qt::white));
    const Texture::Result result = Texture::read(file);
    ASSERT_TRUE(result.texture) << result.error;
    EXPECT_EQ(result.texture->picture().size(), QSize(4096, 4096));
    EXPECT_EQ(result.texture->picture().pixelColor(4095, 4095), QColor(Qt::white));
  }
}

TEST(Texture, IsKeptSmallerWhereLittleRoomIsLeft) {
  const support::TemporaryFolder folder;
  host::Room& room = TextureRoom::instance().kept();
  const host::Room::Share most = room.take(room.left() - (1U << 20U));
  for (const char* form : {"PNG", "JPG", "BMP"}) {
    const auto file = folder.write("some.picture", support::encoded({512, 512}, form, QImage::Format_RGB32, Qt::red));
    const Texture::Result result = Texture::read(file);
    ASSERT_TRUE(result.texture) << result.error;
    EXPECT_EQ(result.texture->picture().size(), QSize(256, 256)) << form;
    EXPECT_NEAR(result.texture->picture().pixelColor(100, 255).red(), 255, 2) << form;
  }
}

TEST(TextureRoom, LeavesRoomForMoreAndKeepsSmallOnesAsTheyAre) {
  TextureRoom& room = TextureRoom::instance();
  const std::size_t before = room.kept().left();
  std::vector<host::Room::Share> shares;
  for (int i = 1; i <= 30; ++i) {
    const std::size_t side = 8192U / static_cast<std::size_t>(room.shrinkingOf({8192, 8192}));
    shares.push_back(room.kept().take(side * side * 4));
    ASSERT_TRUE(shares.back()) << i;
    if (i == 10) {
      EXPECT_GE(side, 1000U) << "of ten each is still to be recognised";
      EXPECT_EQ(room.shrinkingOf({1024, 1024}), 1);
    }
  }
  shares.clear();
  EXPECT_EQ(room.kept().left(), before);
  EXPECT_EQ(room.shrinkingOf({4096, 4096}), 1);
}

TEST(TextureRoom, ThatIsUsedUpRefusesUntilThereIsSomeAgain) {
  const support::TemporaryFolder folder;
  const auto file = folder.write("some.png", support::encoded({7, 5}, "PNG"));
  host::Room& room = TextureRoom::instance().decoded();
  host::Room::Share all = room.take(room.left());
  const Texture::Result refused = Texture::read(file);
  EXPECT_NE(refused.error.find("no room"), std::string::npos);
  EXPECT_TRUE(refused.mayPass);
  all.reset();
  EXPECT_TRUE(Texture::read(file).texture);
}

TEST(Texture, MixesNeighboursInLinearLightAndRepeats) {
  QImage pair(2, 1, QImage::Format_RGB32);
  pair.setPixel(0, 0, qRgb(0, 0, 0));
  pair.setPixel(1, 0, qRgb(255, 255, 255));
  const host::Texture texture(pair);
  EXPECT_NEAR(texture.at({0.25F, 0.5F}).r, 0.0F, 1e-5F);
  EXPECT_NEAR(texture.at({0.75F, 0.5F}).g, 1.0F, 1e-5F);
  EXPECT_NEAR(texture.at({0.5F, 0.5F}).b, 0.5F, 1e-5F);
  EXPECT_NEAR(texture.at({-1.25F, 7.5F}).r, 1.0F, 1e-5F);
  EXPECT_NEAR(texture.at({1.0F, 0.0F}).r, 0.5F, 1e-5F);
  const float nothing = std::nanf("");
  EXPECT_TRUE(std::isfinite(texture.at({nothing, 1e30F}).r));
}

}  // namespace
