#include <gtest/gtest.h>

#include <QTextDocument>
#include <QToolTip>
#include <QtTest/QtTest>

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "tests/ui/WindowFixture.h"

namespace {

class DifficultNames : public support::WindowFixture {
 protected:
  static const ZORVEL::CharacterData& ben() { return *ZORVEL::Data2::GetCharacter(L"c2"); }
  static void nameEverything(const wchar_t* name) {
    anna().SetData(L"name", name);
    for (const auto kind : {ZORVEL::SKINS, ZORVEL::CLOTH, ZORVEL::POSES, ZORVEL::CATEGORIES, ZORVEL::ASSETS}) {
      for (int i = 0; i < anna().GetCount(kind); ++i) nameWithChildren(anna().GetContainerElement(kind, i), name);
      anna().SetContainerName(kind, name);
    }
    nameWithChildren(anna().GetCloth(L"kb")->GetChild(ZORVEL::MATERIAL), name);
    nameWithChildren(ZORVEL::Data2::GetGlobalAsset(0), name);
  }
  static void nameWithChildren(ZORVEL::DataContainer* record, const wchar_t* name) {
    record->SetData(L"name", name);
    for (int i = 0; i < record->GetChildCount(); ++i) record->GetChild(i)->SetData(L"name", name);
  }
  static QString readAloud(const QString& toolTip) {
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
  }
  static QString toolTipOf(const QTreeWidgetItem* item) {
    const QPoint place = tree().visualItemRect(item).center();
    QHelpEvent rest(QEvent::ToolTip, place, tree().viewport()->mapToGlobal(place));
    QApplication::sendEvent(tree().viewport(), &rest);
    const QString toolTip = readAloud(QToolTip::text());
    QToolTip::hideText();
    return toolTip;
  }
};

TEST_F(DifficultNames, AreShownAsTheyStandInOneLineAndNeverAsMarkup) {
  const struct {
    std::wstring name;
    QString line;
    QString caption;
  } cases[] = {
      {L"two\r\n  lines\tand a\vtab\u2028\x85", "two    lines\tand a tab  ", "two    lines\tand a tab  "},
      {L"  two  blanks ", "  two  blanks ", "  two  blanks "},
      {L"<b>x</b><img src=\"file:///x\">", "<b>x</b><img src=\"file:///x\">", "<b>x</b><img src=\"file:///x\">"},
      {L"Salt & Pepper &amp; &x", "Salt & Pepper &amp; &x", "Salt && Pepper &&amp; &&x"},
      {L"\u05d0\u05d1\u202e abc", QString::fromUtf8("אב\u202e abc"), QString::fromUtf8("אב\u202e abc")},
      {L"%1 %2 %n", "%1 %2 %n", "%1 %2 %n"},
      {L"", "", ""},
      {std::wstring(256, L'W'), QString(256, 'W'), QString(256, 'W')},
      {std::wstring(1000000, L'W'), QString(256, 'W') + QChar(0x2026), QString(256, 'W') + QChar(0x2026)}};
  open();
  const int rowHeight = tree().visualItemRect(tree().topLevelItem(0)).height();
  for (const auto& one : cases) {
    nameEverything(one.name.c_str());
    open();
    ZORVEL::CharacterTree& shownTree = tree();
    window().Rebuild();
    settle();
    EXPECT_NE(&tree(), &shownTree);
    EXPECT_EQ(tree().topLevelItem(0)->text(0), one.line);
    EXPECT_EQ(tree().topLevelItem(0)->child(0)->text(0), one.line);
    EXPECT_EQ(tree().visualItemRect(tree().topLevelItem(0)).height(), rowHeight) << "one row";
    EXPECT_EQ(toolTipOf(tree().topLevelItem(0)).simplified(), one.line.simplified());
    clickNode(tree().topLevelItem(0));
    EXPECT_EQ(stripNames().front(), one.line);
    clickNode(tree().topLevelItem(0)->child(0));
    ASSERT_EQ(tabs().count(), 7);
    EXPECT_EQ(tabs().tabText(3), one.caption);
    for (int i = 0; i < tabs().count(); ++i) {
      tabs().setCurrentIndex(i);
      shown(window());
    }
    const auto& elements = window().GetGeneralSelectorWidget().GetPages().front()->GetElements();
    EXPECT_EQ(elements.front()->GetCheckBox()->text(), one.caption);
    const QString toolTip = elements.front()->GetPicture()->toolTip();
    EXPECT_LT(toolTip.size(), 4000);
    EXPECT_FALSE(toolTip.contains("<b>") || toolTip.contains("<img"));
    EXPECT_EQ(readAloud(toolTip).simplified().left(40), QString::fromStdWString(one.name).simplified().left(40));
    EXPECT_EQ(window().GetCharacterInfo().GetControl()->textFormat(), Qt::PlainText);
    EXPECT_TRUE(info().startsWith("Character: \"" + QString::fromStdWString(one.name.substr(0, 20))));
    EXPECT_LT(window().GetCharacterInfo().GetControl()->toolTip().size(), 5000);
    click(createButton());
    nameEverything(L"");
  }
  clearLog();
}

}  // namespace
