#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTreeWidget>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "apps/cli/Choice.h"
#include "apps/support/ModelText.h"
#include "core/FileStamps.h"
#include "core/Settings.h"
#include "host/application/Application.h"
#include "host/files/LocalAppData.h"
#include "host/files/TemporaryFolder.h"
#include "host/formats/SceneJson.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/PageOffers.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"
#include "repository/ParseObserver.h"
#include "scene/BuildFindings.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"
#include "scene/SceneNotifications.h"
#include "tests/agreement/Damage.h"
#include "tests/ui/WindowRepository.h"
#include "ui/MainWindowClass.h"

namespace {

using ZORVEL::BuildReport;
using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::ElementKind;
using ZORVEL::MainWindowClass;
using ZORVEL::OfferedElement;
using ZORVEL::PageOffer;
using ZORVEL::Selection2;
using ZORVEL::WhyNot;

std::wstring textOf(const wchar_t* text) { return text != nullptr ? text : L"-"; }

std::wstring selection() {
  std::wostringstream text;
  text << Selection2::GetCharacter() << L' ' << textOf(Selection2::GetCloth()) << L' ' << textOf(Selection2::GetPose())
       << L' ' << textOf(Selection2::GetSkin()) << L' ' << textOf(Selection2::GetStyle());
  for (int i = 0; i < Selection2::GetAssetCount(); ++i) text << L' ' << Selection2::GetAsset(i);
  return text.str();
}

/// One element of a page as the window has it, or as it is offered.
struct Shown {
  int unique;
  bool available;
  bool operator==(const Shown& other) const { return unique == other.unique && available == other.available; }
};

void PrintTo(const Shown& shown, std::ostream* out) { *out << shown.unique << (shown.available ? "" : " grey"); }

/// What the parser has read and what it has left out.
class Notes : public ZORVEL::ParseObserver {
 public:
  void clear() { documents_ = characters_ = skipped_ = records_ = 0; }
  void Noted(const ZORVEL::ParseNote& note) override {
    using Kind = ZORVEL::ParseNoteKind;
    if (note.kind <= Kind::WrongDocumentElement) ++documents_;
    if (note.kind >= Kind::CharacterWithoutAttributes && note.kind <= Kind::CharacterWithoutSkin) ++characters_;
    if (note.kind == Kind::ElementSkipped) ++skipped_;
  }
  void RecordRead(const DataContainer& /*record*/, const ZORVEL::XmlElement& /*element*/) override { ++records_; }
  /// Whether every element has become a record or was told to be left out.
  void expectAll(const std::string& description) const {
    if (documents_ > 0) {
      EXPECT_EQ(Data2::GetCharacterCount(), 0);
      return;
    }
    EXPECT_EQ(Data2::GetCharacterCount() + characters_, countIn(description, "<character"));
    if (characters_ > 0) return;
    EXPECT_EQ(records_ + skipped_, countIn(description, ELEMENTS));
  }

 private:
  /// All but the lists, which are no records.
  static constexpr const char* ELEMENTS =
      "<(character|skin|clothing|material|exclude|select|pose|category|asset|matrix)[ />]";

  static int countIn(const std::string& text, const char* pattern) {
    const std::regex elements(pattern);
    return static_cast<int>(std::distance(std::sregex_iterator(text.begin(), text.end(), elements), {}));
  }

  int documents_ = 0;
  int characters_ = 0;
  int skipped_ = 0;
  int records_ = 0;
};

/// Any repository, in the plug-in's store and its window.
class Agreement : public testing::Test {
 protected:
  void SetUp() override {
    host::Application::instance().reset();
    ZORVEL::SceneNotifications::Register();
    ZORVEL::Settings::LoadSettings();
  }
  void TearDown() override {
    host::Application::instance().modes().returnToStandard();
    ZORVEL::MaxForm::DeleteAll();
    Selection2::Reset();
    Data2::Clear();
    host::Application::instance().reset();
    ZORVEL::SceneNotifications::Unregister();
    ZORVEL::Settings::FreeSettings();
  }

  void load(const std::wstring& root) {
    Data2::Clear();
    Selection2::Reset();
    Selection2::SetStyle(nullptr);
    ZORVEL::Settings::StorePath(root.c_str());
    ZORVEL::Commands::CallMainWindow();
    notes_.clear();
    ZORVEL::Commands::ReloadRepository();
  }

  static MainWindowClass& window() { return *MainWindowClass::window; }

  /// The first character of the tree, then its first clothing.
  static void clickThroughTheTree() {
    QTreeWidget& tree = *window().GetCharacterWidget().GetControl();
    if (tree.topLevelItemCount() == 0) return;
    QTreeWidgetItem* top = tree.topLevelItem(0);
    tree.setCurrentItem(top);
    if (top->childCount() > 0) tree.setCurrentItem(top->child(0));
  }

  static std::vector<std::vector<Shown>> shownPages() {
    std::vector<std::vector<Shown>> pages;
    if (!window().GetGeneralSelectorWidget().GetControl()->isVisibleTo(&window())) return pages;
    for (const auto& page : window().GetGeneralSelectorWidget().GetPages()) {
      pages.emplace_back();
      for (const auto& element : page->GetElements()) {
        pages.back().push_back({element->GetUnique(), element->isAvailable()});
        EXPECT_TRUE(!element->GetSelected() || isChosen(*element)) << element->GetUnique();
      }
    }
    return pages;
  }

  /// The page checks an element without an id too, which a choice by id cannot take.
  static bool isChosen(const ZORVEL::MainWindowElementBase& element) {
    const int unique = element.GetUnique();
    const wchar_t* id = Data2::GetIdForUnique(unique);
    if (id == nullptr || *id == L'\0') return true;
    const CharacterData* character = Data2::GetCharacter(Selection2::GetCharacter());
    const DataContainer* chosen[] = {character->GetPose(Selection2::GetPose()),
                                     character->GetSkin(Selection2::GetSkin()),
                                     character->GetStyle(Selection2::GetCloth(), Selection2::GetStyle())};
    return Selection2::CheckSelectedAsset(unique) ||
           std::any_of(std::begin(chosen), std::end(chosen), [unique](const DataContainer* one) {
             return one != nullptr && Data2::GetUnique(one) == unique;
           });
  }

  static std::string builtScene() {
    host::Application::instance().reset();
    BuildReport report;
    const INode* parent = ZORVEL::CharacterBuilder::BuildSelectedCharacter(report);
    expectAllTold(report);
    if (parent == nullptr) return "nothing";
    EXPECT_EQ(host::Application::instance().scene().nodes().size(), report.pieces.size() + 2) << "with parent and head";
    // Handles go on counting from scene to scene.
    static const std::regex HANDLES("\"handle\": [0-9]+");
    return std::regex_replace(
        host::sceneJson(host::Application::instance().scene(), host::Application::instance().units()), HANDLES, "");
  }

  /// Whatever was chosen, or comes with the pose, was built or has a reason.
  static void expectAllTold(const BuildReport& report) {
    if (report.obstacle != ZORVEL::BuildObstacle::None) {
      EXPECT_EQ(ZORVEL::BuildFindings::Describe(report).size(), 1U);
      return;
    }
    std::map<ElementKind, int> told;
    for (const ZORVEL::BuiltPiece& piece : report.pieces) ++told[piece.element.kind];
    for (const ZORVEL::Omission& omission : report.omissions) ++told[omission.element.kind];
    const CharacterData& character = *Data2::GetCharacter(Selection2::GetCharacter());
    EXPECT_EQ(told[ElementKind::Body], 1);
    EXPECT_EQ(told[ElementKind::Clothing], 1);
    EXPECT_EQ(told[ElementKind::MandatoryAsset], character.GetPose(Selection2::GetPose())->GetChildCount());
    EXPECT_EQ(told[ElementKind::Asset] + told[ElementKind::SharedAsset], Selection2::GetAssetCount());
    EXPECT_GE(ZORVEL::BuildFindings::Describe(report).size(), report.omissions.size());
  }

  host::TemporaryFolder folder_;
  host::LocalAppData settings_{folder_.path()};
  Notes notes_;
  const ZORVEL::ObservedParsing observed_{notes_};
};

/// What the pages of the present choice offer, and that every element of the character is on one of them or has a
/// reason for being on none.
class Offers {
 public:
  explicit Offers(const CharacterData& character) : character_(character) {
    const ZORVEL::PageOffers offers(character, files_);
    offers.VisitAll([this](const PageOffer& page) { take(page); });
    offers.VisitAssetsWithoutPage([this](const OfferedElement& element) { addHidden(element); });
  }

  const std::vector<std::vector<Shown>>& pages() const { return pages_; }

  void expectNothingUnexplained() const {
    expectAll(ZORVEL::POSES);
    expectAll(ZORVEL::SKINS);
    if (const DataContainer* cloth = character_.GetCloth(Selection2::GetCloth())) {
      for (const DataContainer* style : apps::clothChildren(*cloth, ZORVEL::MATERIAL)) expectKnown(style);
    }
    for (const DataContainer* asset : apps::elementsOf(character_, ZORVEL::ASSETS)) {
      const DataContainer* global = Data2::CheckAssetGlobal(asset) ? Data2::GetGlobalAssetForAsset(asset) : nullptr;
      expectKnown(global != nullptr && known_.count(asset) == 0 ? global : asset);
    }
  }

 private:
  void take(const PageOffer& page) {
    if (page.hasTab) pages_.emplace_back();
    for (const OfferedElement& element : page.shown) {
      pages_.back().push_back({element.unique, element.IsAvailable()});
      known_.insert(element.record);
      EXPECT_EQ(element.IsAvailable(), element.refusal.GetText().empty());
    }
    for (const OfferedElement& element : page.hidden) addHidden(element);
  }

  void addHidden(const OfferedElement& element) {
    EXPECT_NE(element.refusal.why, WhyNot::Nothing);
    EXPECT_FALSE(element.refusal.GetText().empty());
    known_.insert(element.record);
  }

  void expectAll(ZORVEL::CONTAINER container) const {
    for (const DataContainer* element : apps::elementsOf(character_, container)) expectKnown(element);
  }
  void expectKnown(const DataContainer* element) const {
    EXPECT_EQ(known_.count(element), 1U) << apps::nameOf(*element) << " is on no page and has no reason";
  }

  const CharacterData& character_;
  ZORVEL::FileStamps files_;
  std::vector<std::vector<Shown>> pages_;
  std::set<const DataContainer*> known_;
};

TEST_F(Agreement, NeedsNoWordsWhereNothingIsMissing) {
  const support::WindowRepository repository;
  load(repository.root());
  clickThroughTheTree();
  const std::wstring clicked = selection();
  const cli::ChoiceResult choice = cli::choose({});
  EXPECT_EQ(selection(), clicked);
  EXPECT_THAT(choice.errors, testing::IsEmpty());
  EXPECT_THAT(choice.notes, testing::IsEmpty()) << "the bowler takes the place of the required cap";
}

TEST_F(Agreement, OfWindowCommandLineAndBuilderSurvivesAnyDamage) {
  const unsigned count = support::damages(60);
  for (unsigned seed = 0; seed < count && !HasFailure(); ++seed) {
    const support::WindowRepository repository;
    support::Damage damage(repository.folder().path(), seed);
    std::string done;
    for (unsigned i = 0; i <= seed % 4; ++i) done += damage.doOne() + "; ";
    SCOPED_TRACE("seed " + std::to_string(seed) + ": " + done);

    load(repository.root());
    notes_.expectAll(repository.folder().read("zorvel.xml"));
    clickThroughTheTree();
    const std::wstring clicked = selection();
    const std::vector<std::vector<Shown>> shown = shownPages();
    const std::string fromWindow = builtScene();

    const CharacterData* character = Data2::GetCharacter(Selection2::GetCharacter());
    if (character != nullptr && Selection2::GetCloth() != nullptr) {
      const Offers offers(*character);
      EXPECT_EQ(offers.pages(), shown);
      offers.expectNothingUnexplained();
    }

    const cli::ChoiceResult choice = cli::choose({});
    // A click on something of a character without an id is no choice.
    if (character != nullptr) {
      EXPECT_EQ(selection(), clicked);
    }
    EXPECT_TRUE(builtScene() == fromWindow);
    EXPECT_EQ(choice.errors.empty(), fromWindow != "nothing") << testing::PrintToString(choice.errors);
  }
}

}  // namespace
