#include <gtest/gtest.h>

#include <QtTest/QtTest>

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "plugin/Commands.h"
#include "tests/ui/OpenedAddresses.h"
#include "tests/ui/WindowFixture.h"
#include "ui/WebAddress.h"

namespace {

namespace Commands = ZORVEL::Commands;

class ElementPages : public support::WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    openWithBlouse();
  }
  /// Of the pictures, in the order of the page.
  static QList<QPoint> places(const QString& title) {
    QList<QPoint> all;
    for (const auto& element : page(title).GetElements()) all.append(element->GetPicture()->pos());
    return all;
  }
  static unsigned int poseUnique(const wchar_t* id) {
    return static_cast<unsigned int>(ZORVEL::Data2::GetUnique(anna().GetPose(id)));
  }
  /// Many assets of one kind, to lay out.
  static void addThings(int count) {
    for (int i = 0; i < count; ++i) {
      anna().AddAssetElement(L"more", L"More", L"specific", L"scarf", L"t1", L"");
      anna()
          .GetContainerElement(ZORVEL::ASSETS, anna().GetCount(ZORVEL::ASSETS) - 1)
          ->SetFastFlag(ZORVEL::FLAG_VALID, true);
    }
    window().UpdateCharacterSelectionFromGUI();
    settle();
  }
};

TEST_F(ElementPages, OfferAMaterialOfTheClothingEvenWithoutItsPicture) {
  files().remove("anna/blouse/red.png");
  files().remove("anna/skin/light.png");
  clickNode(node("Anna", "Dress"));
  clickNode(node("Anna", "Blouse"));
  EXPECT_EQ(names("Fabric"), (QStringList{"Red", "Green"}));
  EXPECT_EQ(checked("Fabric"), QStringList("Red"));
  EXPECT_EQ(element("Fabric", "Red").GetPicture(), nullptr);
  EXPECT_EQ(names("Skin"), QStringList("Dark")) << "poses, skins and assets are shown by their pictures";
}

TEST_F(ElementPages, ShowOneTabForEachKindThatHasSomething) {
  EXPECT_EQ(titles(), (QStringList{"Pose", "Skin", "Fabric", "Things", "Hats", "Shoes", "Seats"}));
  EXPECT_EQ(tabs().currentIndex(), 0);
  EXPECT_EQ(tabs().tabBar()->tabRect(0).height(), 25);
  EXPECT_EQ(names("Pose"), (QStringList{"Standing", "Sitting", "Walking"})) << "what cannot be worn comes last";
  EXPECT_EQ(names("Skin"), (QStringList{"Light", "Dark"}));
  EXPECT_EQ(names("Fabric"), (QStringList{"Red", "Green"}));
  EXPECT_EQ(names("Things"), (QStringList{"Bag : Canvas", "Bag : Leather", "Scarf", "Lamp"}));
  EXPECT_EQ(names("Seats"), (QStringList{"Bench : Oak", "Bench : Pine"}));
  EXPECT_EQ(checked("Pose"), QStringList("Standing"));
  EXPECT_EQ(checked("Skin"), QStringList("Light"));
  EXPECT_EQ(checked("Fabric"), QStringList("Red"));
  EXPECT_EQ(checked("Things"), QStringList("Scarf")) << "the clothing asks for it";
  EXPECT_EQ(checked("Hats"), QStringList("Bowler")) << "instead of the first, which would be required";
  EXPECT_EQ(checked("Shoes"), QStringList());
  EXPECT_EQ(checked("Seats"), QStringList("Bench : Pine"));
  clickNode(node("Anna", "Dress"));
  EXPECT_EQ(titles(), (QStringList{"Pose", "Skin", "Fabric", "Things", "Hats", "Shoes", "Seats", "Gloves"}));
  EXPECT_EQ(names("Fabric"), QStringList());
  EXPECT_EQ(checked("Hats"), QStringList("Cap")) << "required, and nothing asks for another";
  EXPECT_EQ(checked("Gloves"), QStringList("Mitten"));
}

TEST_F(ElementPages, StandInAsManyColumnsAsTheWidthHolds) {
  addThings(5);
  openTab("Things");
  EXPECT_EQ(places("Things"),
            (QList<QPoint>{
                {15, 15}, {180, 15}, {345, 15}, {510, 15}, {15, 230}, {180, 230}, {345, 230}, {510, 230}, {15, 445}}));
  const ZORVEL::MainWindowElementBase& second = element("Things", "Bag : Leather");
  EXPECT_EQ(second.GetPicture()->geometry(), QRect(180, 15, 150, 150));
  EXPECT_EQ(second.GetCheckBox()->geometry(), QRect(180, 165, 150, 50));
  EXPECT_EQ(element("Pose", "Sitting").GetPicture()->geometry(), QRect(130, 15, 100, 300));
  EXPECT_EQ(element("Pose", "Sitting").GetCheckBox()->geometry(), QRect(130, 315, 100, 50));
  scrollTo(*page("Things").GetElements().back()->GetPicture(), QPoint(5, 100));
  EXPECT_GT(page("Things").GetControl()->GetScrollPosition().y(), 0);
  window().SetSize(960, 670);
  settle();
  EXPECT_EQ(page("Things").GetControl()->GetScrollPosition(), QPoint(0, 0)) << "not kept";
  window().SetSize(1300, 670);
  settle();
  EXPECT_EQ(places("Things").at(6), QPoint(15, 230)) << "six columns";
  openTab("Pose");
  window().SetSize(525, 670);
  settle();
  EXPECT_EQ(places("Things").mid(0, 2), (QList<QPoint>{{15, 15}, {15, 230}}));
  EXPECT_EQ(places("Pose"), (QList<QPoint>{{15, 15}, {130, 15}, {15, 380}}));
  window().setMinimumSize(0, 0);
  window().SetSize(300, 670);
  settle();
  click(*element("Pose", "Sitting").GetCheckBox(), QPoint(6, 6));
  EXPECT_EQ(checked("Pose"), QStringList("Sitting"));
  EXPECT_EQ(places("Things").mid(0, 2), (QList<QPoint>{{15, 15}, {15, 230}})) << "narrower than a picture";
}

TEST_F(ElementPages, KeepOneOfPosesSkinsAndStyles) {
  clickBox("Pose", "Standing");
  EXPECT_EQ(checked("Pose"), QStringList("Standing"));
  clickPicture("Pose", "Standing");
  EXPECT_EQ(checked("Pose"), QStringList("Standing"));
  clickBox("Skin", "Light");
  clickPicture("Fabric", "Red");
  EXPECT_EQ(checked("Skin"), QStringList("Light"));
  EXPECT_EQ(checked("Fabric"), QStringList("Red"));
  EXPECT_EQ(commands().take(), QStringList()) << "none is given up for nothing";
  clickBox("Skin", "Dark");
  EXPECT_EQ(checked("Skin"), QStringList("Dark"));
  clickBox("Skin", "Dark");
  EXPECT_EQ(checked("Skin"), QStringList("Dark")) << "back to the last chosen";
  clickPicture("Fabric", "Green");
  clickBox("Fabric", "Green");
  EXPECT_EQ(checked("Fabric"), QStringList("Green"));
  EXPECT_EQ(commands().take(), (QStringList{"skin s2, refresh", "style m2, refresh"}));
  EXPECT_EQ(selection(), "c1 kb p1 s2 m2 a2 a5 g1m2");
  Commands::SetSelectedSkin(static_cast<unsigned int>(ZORVEL::Data2::GetUnique(anna().GetSkin(L"s1"))), true);
  EXPECT_EQ(checked("Skin"), QStringList("Light"));
  clickBox("Skin", "Light");
  EXPECT_EQ(checked("Skin"), QStringList("Light")) << "chosen elsewhere";
}

TEST_F(ElementPages, FollowTheRulesOfTheirCategories) {
  clickBox("Things", "Bag : Leather");
  clickPicture("Things", "Lamp");
  EXPECT_EQ(checked("Things"), (QStringList{"Bag : Leather", "Scarf", "Lamp"})) << "several";
  clickPicture("Things", "Scarf");
  EXPECT_EQ(checked("Things"), (QStringList{"Bag : Leather", "Lamp"}));
  clickBox("Hats", "Bowler");
  EXPECT_EQ(checked("Hats"), QStringList("Bowler")) << "required";
  EXPECT_EQ(commands().take(),
            (QStringList{"asset a1m2, refresh", "asset a3, refresh", "without a2, refresh", "without a5, refresh"}));
  EXPECT_EQ(checked("Seats"), QStringList("Bench : Pine"));
  clickBox("Shoes", "Boot");
  clickBox("Shoes", "Clog");
  EXPECT_EQ(checked("Shoes"), QStringList("Clog")) << "one";
  EXPECT_EQ(checked("Seats"), QStringList()) << "to choose one of a kind gives up what all characters share";
  clickBox("Shoes", "Clog");
  EXPECT_EQ(checked("Shoes"), QStringList()) << "or none";
  clickBox("Hats", "Cap");
  EXPECT_EQ(checked("Hats"), QStringList("Cap"));
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a1m2 a3 a4");
  EXPECT_EQ(info().section('\n', 2), "\"Bag:Leather\", \"Lamp\", \"Cap\", ");
}

TEST_F(ElementPages, OpenTheWebPageOfWhatIsNotThere) {
  support::OpenedAddresses opened;
  const ZORVEL::MainWindowElementBase& walking = element("Pose", "Walking");
  EXPECT_EQ(walking.GetCheckBox(), nullptr);
  EXPECT_EQ(shown(*walking.GetPicture()).pixelColor(50, 5), QColor(Qt::blue));
  EXPECT_EQ(shown(*walking.GetPicture()).pixelColor(50, 25), QColor(Qt::red));
  EXPECT_TRUE(walking.GetPicture()->toolTip().contains("kb_p2.vrmesh"));
  clickPicture("Pose", "Walking");
  EXPECT_EQ(opened.take(), QStringList("https://shop.example/pose?n=2&gid=kb"));
  for (const wchar_t* url : {L"file:///etc/passwd?x", L"javascript:alert(1)", L"", L"ftp://shop.example/?x", L"http:?x",
                             L"smb://shop.example/?x", L"data:text/html,x", L"shop.example", L"//shop.example/?x"}) {
    anna().GetPose(L"p2")->SetData(L"url", url);
    window().UpdateCharacterSelectionFromGUI();
    settle();
    EXPECT_FALSE(element("Pose", "Walking").GetPicture()->toolTip().contains("A click opens"));
    clickPicture("Pose", "Walking");
    expectLogged(ZORVEL::DEBUG_WARNING, L"WebAddress::Open - address was not opened:");
    expectLogged(ZORVEL::DEBUG_WARNING, std::wstring(url) + L"&gid=kb");
  }
  EXPECT_EQ(opened.take(), QStringList());
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2");
  const QString longest = QString("https://shop.example/").leftJustified(2048, 'x');
  EXPECT_TRUE(ZORVEL::WebAddress::IsAllowed(longest));
  EXPECT_FALSE(ZORVEL::WebAddress::IsAllowed(longest + 'x'));
}

TEST_F(ElementPages, APoseRebuildsTheOtherPagesAndNothingStaleReachesTheChoice) {
  clickBox("Skin", "Dark");
  clickBox("Fabric", "Green");
  clickBox("Shoes", "Boot");
  commands().clear();
  const QWidget* poses = page("Pose").GetControl();
  const QCheckBox* box = element("Pose", "Sitting").GetCheckBox();
  const QWidget* skins = page("Skin").GetControl();
  clickBox("Pose", "Sitting");
  EXPECT_EQ(commands().take(), (QStringList{"pose p3, refresh", "skin s1", "style m1", "asset a4", "asset g1m2"}))
      << "the pages begin anew, and what they would choose is refused";
  EXPECT_EQ(selection(), "c1 kb p3 s2 m2 a2 a5 a6");
  EXPECT_EQ(tabs().currentIndex(), 0);
  EXPECT_EQ(page("Pose").GetControl(), poses);
  EXPECT_EQ(element("Pose", "Sitting").GetCheckBox(), box);
  EXPECT_NE(page("Skin").GetControl(), skins);
  EXPECT_EQ(names("Things"), (QStringList{"Bag : Canvas", "Bag : Leather", "Scarf"})) << "the lamp has no place here";
  EXPECT_EQ(checked("Pose") + checked("Skin") + checked("Fabric") + checked("Things") + checked("Hats") +
                checked("Shoes") + checked("Seats"),
            (QStringList{"Sitting", "Dark", "Green", "Scarf", "Bowler", "Boot"}));
  EXPECT_EQ(info(),
            "Character: \"Anna\", Outfit: \"Blouse\"\nPose: \"Sitting\", Skin: \"Dark\", Fabric: \"Green\"\n\"Scarf\", "
            "\"Bowler\", \"Boot\", ");
  clickBox("Skin", "Dark");
  EXPECT_EQ(checked("Skin"), QStringList("Dark"));
}

TEST_F(ElementPages, WhatAPageBeginsWithStaysCheckedThoughItWasRefused) {
  const auto unique = [](const ZORVEL::DataContainer* record) {
    return static_cast<unsigned int>(ZORVEL::Data2::GetUnique(record));
  };
  Commands::SetSelectedClothUnique(unique(&anna()), unique(anna().GetCloth(L"kc")), true);
  Commands::SetSelectedSkin(0, false);
  files().folder().write("anna/coat/kc_p1.vrmesh", "");
  Commands::SetSelectedPose(poseUnique(L"p1"), true);
  EXPECT_EQ(selection(), "c1 kc p1 - -");
  EXPECT_EQ(checked("Skin"), QStringList("Light"));
  clickBox("Skin", "Light");
  EXPECT_EQ(checked("Skin"), QStringList("Light"));
}

TEST_F(ElementPages, APoseWhoseMeshHasGoneMakesTheRestUnavailable) {
  support::OpenedAddresses opened;
  files().remove("anna/blouse/kb_p3.vrmesh");
  clickBox("Pose", "Sitting");
  EXPECT_EQ(commands().take(), (QStringList{"pose p3, refresh", "asset a4"}));
  EXPECT_EQ(selection(), "c1 kb p3 s1 m1 a2 a5 g1m2");
  for (const char* title : {"Skin", "Fabric", "Things", "Hats", "Shoes", "Seats"}) {
    EXPECT_EQ(page(title).GetElements().front()->GetCheckBox(), nullptr) << title;
  }
  clickPicture("Skin", "Dark");
  clickPicture("Things", "Scarf");
  const QString address = "https://shop.example/pose?n=3&gid=kb";
  EXPECT_EQ(opened.take(), (QStringList{address, address}));
}

}  // namespace
