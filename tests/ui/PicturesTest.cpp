#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QtTest/QtTest>

#include "plugin/zorvel.h"
#include "tests/support/HostilePictures.h"
#include "tests/ui/WindowFixture.h"
#include "ui/PictureReader.h"

namespace {

using support::encoded;
using support::hugePng;
using ZORVEL::FileStamp;
using ZORVEL::PictureCache;
using ZORVEL::PictureSource;

class Pictures : public support::WindowFixture {
 protected:
  static PictureSource source(const std::filesystem::path& file, const QSize& box) {
    PictureSource one;
    one.path = QString::fromStdString(file.string()).toStdWString();
    one.stamp = FileStamp::Of(one.path);
    one.box = box;
    return one;
  }
  static int decoded() { return PictureCache::Instance().GetDecodedCount(); }
};

TEST_F(Pictures, ThatCannotBeShownSayWhyInTheirPlace) {
  const std::string good = encoded(QSize(110, 330), "PNG");
  const std::string jpeg = encoded(QSize(110, 330), "JPG");
  const struct {
    std::string bytes;
    QString complaint;
  } cases[] = {{good, ""},
               {jpeg, ""},
               {encoded(QSize(110, 330), "BMP"), ""},
               {"", "it is not a picture"},
               {"no picture at all\n", "it is not a picture"},
               {good.substr(0, 20), "picture cannot be shown"},
               {good.substr(0, good.size() / 2), "picture cannot be shown"},
               {hugePng(), "it is too large (20000 x 20000 pixels)"}};
  open();
  for (const auto& one : cases) {
    files().folder().write("anna/previews/preview_kb.png", one.bytes);
    clickNode(node("Anna"));
    ASSERT_EQ(stripNames().front(), "Blouse");
    const QWidget& picture = *window().GetClothWidget().GetElements().front()->GetPicture();
    const QImage image = shown(picture);
    EXPECT_EQ(image.pixelColor(3, 100), one.complaint.isEmpty() ? QColor(Qt::black) : QColor(68, 68, 68));
    EXPECT_EQ(picture.toolTip().contains("The picture cannot be shown"), !one.complaint.isEmpty()) << one.bytes.size();
    EXPECT_TRUE(picture.toolTip().contains(one.complaint)) << picture.toolTip().toStdString();
    EXPECT_TRUE(picture.toolTip().contains("Blouse"));
  }
  clickNode(node("Anna"));
  files().remove("anna/previews/preview_kb.png");
  const ZORVEL::MainWindowClothPreview& gone = *window().GetClothWidget().GetElements().front();
  shown(*gone.GetPicture());
  click(*gone.GetPicture());
  EXPECT_TRUE(tabs().isVisible()) << "it can be clicked all the same";
}

TEST_F(Pictures, AreFilesAndNoPipesWhichNobodyWaitsFor) {
  const std::filesystem::path pipe = files().folder().path() / "pipe.png";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  QString problem;
  EXPECT_TRUE(ZORVEL::PictureReader::Read(source(pipe, QSize()).path, QSize(100, 300), problem).isNull());
  EXPECT_EQ(problem, "it cannot be opened");
}

TEST_F(Pictures, AreMeasuredWithoutBeingDecoded) {
  const std::string good = encoded(QSize(110, 330), "PNG");
  const struct {
    std::string bytes;
    QSize size;
    const char* problem;
  } cases[] = {{good, QSize(110, 330), ""},
               {encoded(QSize(90, 7), "JPG"), QSize(90, 7), ""},
               {good.substr(0, good.size() / 2), QSize(110, 330), ""},
               {encoded(QSize(8192, 8192), "PNG", QImage::Format_Mono), QSize(8192, 8192), ""},
               {support::pngWithPackedTexts(4), QSize(7, 5), ""},
               {support::jpegWithScans(20), QSize(7, 5), ""},
               {"no picture at all\n", QSize(), "it is not a picture (PNG, JPEG, GIF or BMP)"},
               {encoded(QSize(9, 9), "PPM"), QSize(), "it is not a picture (PNG, JPEG, GIF or BMP)"},
               {"<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", QSize(),
                "it is not a picture (PNG, JPEG, GIF or BMP)"},
               {support::pngWithPackedTexts(9), QSize(), "it holds too much besides its pixels"},
               {support::jpegWithScans(201), QSize(), "it holds too much besides its pixels"},
               {support::gifOnCanvas(100, 90), QSize(100, 90), ""},
               {support::gifOnCanvas(20000, 90), QSize(), "it holds too much besides its pixels"},
               {hugePng(), QSize(), "it is too large (20000 x 20000 pixels)"}};
  for (const auto& one : cases) {
    QByteArray bytes = QByteArray::fromStdString(one.bytes);
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    QString problem = "what was there before";
    EXPECT_EQ(ZORVEL::PictureReader::Measure(device, problem), one.size);
    EXPECT_EQ(problem, one.problem);
  }
}

TEST_F(Pictures, LargerThanTheirPlaceShowTheirUpperLeftCorner) {
  QImage large(4000, 3000, QImage::Format_RGB32);
  large.fill(Qt::red);
  large.setPixelColor(99, 299, Qt::green);
  const std::filesystem::path file = files().folder().write("large.png", "");
  large.save(QString::fromStdString(file.string()));
  QString problem;
  const QImage image = ZORVEL::PictureReader::Read(source(file, QSize()).path, QSize(100, 300), problem);
  EXPECT_EQ(problem, "");
  EXPECT_EQ(image.size(), QSize(100, 300));
  EXPECT_EQ(image.pixelColor(99, 299), QColor(Qt::green));
}

TEST_F(Pictures, AreDecodedOnceAndWhenFirstSeen) {
  const int before = decoded();
  openWithBlouse();
  tabs().grab();
  EXPECT_EQ(decoded() - before, 4) << "three poses and an overlay; nothing of the other tabs";
  openTab("Skin");
  tabs().grab();
  EXPECT_EQ(decoded() - before, 6);
  clickBox("Skin", "Dark");
  clickPicture("Pose", "Sitting");
  clickNode(node("Anna", "Dress"));
  clickNode(node("Anna", "Blouse"));
  openTab("Skin");
  tabs().grab();
  EXPECT_EQ(decoded() - before, 9) << "the poses of the other clothing";
  const std::filesystem::path dark = files().folder().path() / "anna/skin/dark.png";
  const auto written = std::filesystem::last_write_time(dark);
  files().writePicture("anna/skin/dark.png", QSize(150, 300), Qt::green);
  std::filesystem::last_write_time(dark, written);
  clickPicture("Pose", "Sitting");
  openTab("Skin");
  EXPECT_EQ(shown(*element("Skin", "Dark").GetPicture()).pixelColor(5, 5), QColor(Qt::green))
      << "written anew in the same moment";
  EXPECT_EQ(decoded() - before, 10);
}

TEST_F(Pictures, ThatWereNotSeenForLongAreForgottenBeforeMemoryIsFull) {
  const std::filesystem::path file =
      files().folder().write("large.png", encoded(QSize(4000, 4000), "PNG", QImage::Format_Mono));
  const auto get = [&](int height) { PictureCache::Instance().Get(source(file, QSize(4000, height))); };
  const int before = decoded();
  for (int height = 4000; height > 3996; --height) get(height);
  for (int height = 4000; height > 3996; --height) get(height);
  EXPECT_EQ(decoded() - before, 4) << "61 MiB each";
  for (int height = 3996; height > 3994; --height) get(height);
  get(3997);
  EXPECT_EQ(decoded() - before, 6);
  get(4000);
  EXPECT_EQ(decoded() - before, 7);
  ZORVEL::zorvel().Stop();
  get(4000);
  EXPECT_EQ(decoded() - before, 8) << "the plug-in leaves none behind";
}

}  // namespace
