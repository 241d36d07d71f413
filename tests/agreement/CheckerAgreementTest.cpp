#include <gtest/gtest.h>

#include <QImage>

#include "apps/cli/Choice.h"
#include "apps/support/ModelText.h"
#include "apps/support/SettledRoot.h"
#include "check/Checker.h"
#include "check/Description.h"
#include "check/Vocabulary.h"
#include "core/FileStamps.h"
#include "core/Settings.h"
#include "host/application/Application.h"
#include "host/files/Paths.h"
#include "host/files/PrintableText.h"
#include "host/scene/Scene.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/PageOffers.h"
#include "model/PictureSize.h"
#include "model/Selection2.h"
#include "repository/Parser2.h"
#include "scene/BuildFindings.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"
#include "scene/SceneNotifications.h"
#include "tests/agreement/Damage.h"
#include "tests/check/CompleteRepository.h"
#include "ui/PictureReader.h"

namespace {

using check::RuleId;
using check::Severity;
using ZORVEL::BuildReport;
using ZORVEL::BuiltPiece;
using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::ElementKind;
using ZORVEL::OfferedElement;
using ZORVEL::PageKind;
using ZORVEL::PageOffer;
using ZORVEL::Selection2;
using ZORVEL::WhyNot;
using ZORVEL::XmlElement;
using Records = std::vector<const DataContainer*>;

std::wstring idOf(const DataContainer* record) {
  return ZORVEL::Fields::TextOrEmpty(record, ZORVEL::RepositoryFormat::FIELD_ID);
}

/// Which elements of the description are read, as records that may be gone by now.
class ReadElements : public check::Description {
 public:
  void RecordRead(const DataContainer& record, const XmlElement& element) override {
    Description::RecordRead(record, element);
    elements.insert(&element);
  }
  std::set<const XmlElement*> elements;
};

/// A repository as the plug-in has it, next to what the checker says of it.
class CheckedRepository {
 public:
  explicit CheckedRepository(const std::filesystem::path& folder)
      : result_(check::checkRepository(folder, {})), settings_(folder) {
    ZORVEL::SceneNotifications::Register();
    Data2::Clear();
    const ZORVEL::ObservedParsing observed(description_);
    isReadable_ = ZORVEL::Parser2::ParseRepository(ZORVEL::Settings::GetPath());
    Data2::SetValidated(true);
  }
  ~CheckedRepository() {
    ZORVEL::SceneNotifications::Unregister();
    Selection2::Reset();
    Selection2::SetStyle(nullptr);
    Data2::Clear();
  }
  CheckedRepository(const CheckedRepository&) = delete;
  CheckedRepository& operator=(const CheckedRepository&) = delete;

  void expectAllTold() {
    EXPECT_EQ(isReadable_, result_.isReadable);
    if (!isReadable_) {
      EXPECT_EQ(result_.findings.size(), 1U);
      return;
    }
    expectElementsTold(*description_.root());
    expectDroppedClothesTold();
    for (const CharacterData* character : apps::characters()) {
      character_ = character;
      if (expectFound(Data2::GetCharacter(idOf(character).c_str()), character, {})) expectCharacterTold();
    }
  }

 private:
  /// Whether the checker names one of them, or what is around it, at least so severely.
  void expectTold(const std::string& what, const Records& causes, Severity least = Severity::Warning) const {
    for (const DataContainer* cause : causes) {
      if (cause != nullptr && isTold(pathOf(cause), least)) return;
    }
    ADD_FAILURE() << what << ", clothing " << host::toUtf8(idOf(clothing_)) << ", pose " << host::toUtf8(idOf(pose_))
                  << ": nothing is told of " << testing::PrintToString(pathsOf(causes));
  }

  std::string pathOf(const DataContainer* record) const {
    const XmlElement* element = description_.elementOf(record);
    return element != nullptr ? host::printable(description_.pathOf(*element)) : "";
  }
  std::vector<std::string> pathsOf(const Records& records) const {
    std::vector<std::string> paths;
    for (const DataContainer* record : records) paths.push_back(pathOf(record));
    return paths;
  }
  bool isTold(const std::string& path, Severity least) const {
    return std::any_of(result_.findings.begin(), result_.findings.end(), [&](const check::Finding& finding) {
      if (finding.element.empty() || finding.severity > least) return false;
      return path == finding.element || path.compare(0, finding.element.size() + 1, finding.element + '/') == 0;
    });
  }
  bool hasFinding(RuleId rule, const std::string& subject = "") const {
    return std::any_of(result_.findings.begin(), result_.findings.end(), [&](const check::Finding& finding) {
      return finding.rule == rule && (subject.empty() || finding.subject == subject);
    });
  }

  /// False when the id leads to another element, which has to be told.
  template <class Record>
  bool expectFound(const Record* found, const Record* record, const Records& more) const {
    if (found == record) return true;
    Records causes = {record};
    causes.insert(causes.end(), more.begin(), more.end());
    expectTold("never chosen: " + pathOf(record), causes);
    return false;
  }

  /// Every element became a record, or it or one around it is named.
  void expectElementsTold(const XmlElement& parent) const {
    static const std::set<std::wstring> LISTS = {L"globalAssets", L"skins",       L"cloth", L"poses",
                                                 L"categories",   L"AssetMatrix", L"assets"};
    for (const XmlElement* child = parent.firstChild; child != nullptr; child = child->nextSibling) {
      const std::string path = host::printable(description_.pathOf(*child));
      const bool isKnown = description_.elements.count(child) > 0 || LISTS.count(child->name) > 0;
      EXPECT_TRUE(isKnown || isTold(path, Severity::Warning)) << "skipped: " << path;
      expectElementsTold(*child);
    }
  }

  /// A clothing without its picture is no record any more.
  void expectDroppedClothesTold() const {
    std::set<const XmlElement*> kept;
    for (const CharacterData* character : apps::characters()) {
      for (const DataContainer* clothing : apps::elementsOf(*character, ZORVEL::CLOTH)) {
        kept.insert(description_.elementOf(clothing));
      }
    }
    for (const XmlElement* element : description_.elements) {
      if (std::wstring(element->name) != L"clothing" || kept.count(element) > 0) continue;
      const std::string path = host::printable(description_.pathOf(*element));
      EXPECT_TRUE(isTold(path, Severity::Error)) << "dropped: " << path;
    }
  }

  void expectCharacterTold() {
    Selection2::Reset();
    Selection2::SetCharacter(idOf(character_).c_str());
    const auto clothes = apps::elementsOf(*character_, ZORVEL::CLOTH);
    if (clothes.empty() && !hasFinding(RuleId::ClothingPreviewMissing)) expectTold("no clothing", {character_});
    for (const DataContainer* clothing : clothes) {
      clothing_ = clothing;
      pose_ = nullptr;
      if (expectFound<DataContainer>(character_->GetCloth(idOf(clothing).c_str()), clothing, {})) expectClothingTold();
    }
  }

  void expectClothingTold() {
    const auto poses = apps::elementsOf(*character_, ZORVEL::POSES);
    if (poses.empty()) expectTold("no pose", {character_});
    for (const DataContainer* pose : poses) {
      pose_ = pose;
      if (!expectFound<DataContainer>(character_->GetPose(idOf(pose).c_str()), pose, {})) continue;
      isWorn_ = true;
      choose();
      expectPagesTold();
      if (isWorn_) expectBuildsTold();
    }
  }

  void choose() const {
    Selection2::SetCloth(idOf(clothing_).c_str());
    Selection2::SetPose(idOf(pose_).c_str());
    Selection2::SetSkin(nullptr);
    Selection2::SetStyle(nullptr);
    Selection2::ClearAssets();
  }

  void expectPagesTold() {
    offered_.clear();
    const ZORVEL::PageOffers offers(*character_, stamps_);
    offers.VisitAll([this](const PageOffer& page) {
      if (page.kind == PageKind::Poses) return takePoses(page);
      if (!isWorn_) return;
      for (const OfferedElement& element : page.hidden) expectHiddenTold(page, element);
      for (const OfferedElement& element : page.shown) takeShown(page, element);
      if (page.kind == PageKind::Skins && page.shown.empty()) expectTold("no skin", {character_});
      if (page.kind == PageKind::Styles && page.shown.empty()) expectTold("no style", {clothing_});
    });
    if (!isWorn_) return;
    offers.VisitAssetsWithoutPage([this](const OfferedElement& element) {
      const bool needsNone = element.refusal.why == WhyNot::CategoryUnnamed && isAskedForByAPose(element.record);
      if (!needsNone) expectTold("on no page", {element.record});
    });
  }

  /// Such an asset needs no page, and where an entry is wrong, that is told.
  bool isAskedForByAPose(const DataContainer* asset) const {
    for (const DataContainer* pose : apps::elementsOf(*character_, ZORVEL::POSES)) {
      for (const DataContainer* entry : apps::childrenOf(*pose)) {
        if (idOf(entry) == idOf(asset) || isTold(pathOf(entry), Severity::Warning)) return true;
      }
    }
    return false;
  }

  void takePoses(const PageOffer& page) {
    const auto take = [&](const OfferedElement& element) {
      if (element.record != pose_ || element.IsAvailable()) return;
      isWorn_ = false;
      expectTold("not worn", {clothing_, pose_});
    };
    for (const OfferedElement& element : page.shown) {
      take(element);
      expectPictureTold(page, element);
    }
    for (const OfferedElement& element : page.hidden) take(element);
  }

  void expectHiddenTold(const PageOffer& page, const OfferedElement& element) const {
    const std::string what = "hidden, " + host::toUtf8(element.refusal.GetText());
    // That is what an exclude is for.
    if (element.refusal.why == WhyNot::Excluded) return;
    Records causes = {element.style != nullptr ? element.style : element.record, page.category};
    if (element.refusal.why == WhyNot::NoMatrixRow) {
      // A pair that is not told is one of a row that is.
      const bool isMissedByARow = hasFinding(RuleId::MatrixRowIncomplete) || hasFinding(RuleId::MatrixRowUnknownPose) ||
                                  hasFinding(RuleId::MatrixRowUnknownAsset);
      const bool hasSecond = hasFinding(RuleId::GlobalReferencedTwice) || hasFinding(RuleId::AssetIdDuplicate);
      if (isMissedByARow || hasSecond) return;
      const DataContainer* own = character_->FindLocalAssetForGlobal(element.record);
      causes.push_back(own);
      return expectTold(what, causes, Severity::Hint);
    }
    expectTold(what, causes);
  }

  void takeShown(const PageOffer& page, const OfferedElement& element) {
    expectPictureTold(page, element);
    if (page.kind == PageKind::Assets) offered_.push_back(element);
    if (page.kind == PageKind::Skins) {
      if (expectFound<DataContainer>(character_->GetSkin(idOf(element.record).c_str()), element.record, {}))
        skins_.insert(element.record);
    }
    if (page.kind == PageKind::Styles) {
      const DataContainer* found = character_->GetStyle(idOf(clothing_).c_str(), idOf(element.record).c_str());
      if (expectFound<DataContainer>(found, element.record, {})) styles_.insert(element.record);
    }
    const auto isAmong = [&](const auto& set) { return set.count(element.record) > 0; };
    if (Selection2::GetSkin() == nullptr && isAmong(skins_)) Selection2::SetSkin(idOf(element.record).c_str());
    if (Selection2::GetStyle() == nullptr && isAmong(styles_)) Selection2::SetStyle(idOf(element.record).c_str());
  }

  void expectPictureTold(const PageOffer& page, const OfferedElement& element) const {
    const ZORVEL::PictureSize box = ZORVEL::PictureSize::OfBox(page.kind);
    QString problem;
    const QImage image = ZORVEL::PictureReader::Read(element.picturePath, QSize(box.width, box.height), problem);
    const DataContainer* shown = element.style != nullptr ? element.style : element.record;
    if (image.isNull()) expectTold("without a picture", {shown});
  }

  void expectBuildsTold() {
    if (Selection2::GetSkin() == nullptr || Selection2::GetStyle() == nullptr) return;
    expectBuildTold();
    for (const OfferedElement& element : offered_) {
      Selection2::ClearAssets();
      Selection2::AddAsset(element.unique);
      expectBuildTold();
    }
  }

  void expectBuildTold() const {
    host::Application::instance().reset();
    BuildReport report;
    ZORVEL::CharacterBuilder::BuildSelectedCharacter(report);
    EXPECT_EQ(report.obstacle, ZORVEL::BuildObstacle::None);
    for (const ZORVEL::Omission& omission : report.omissions) {
      expectTold("left out", causesOf(omission.element));
    }
    for (const BuiltPiece& piece : report.pieces) expectPieceTold(piece, report);
  }

  void expectPieceTold(const BuiltPiece& piece, const BuildReport& report) const {
    BuildReport alone;
    alone.poseId = report.poseId;
    alone.pieces = {piece};
    for (const ZORVEL::BuildFinding& finding : ZORVEL::BuildFindings::Describe(alone)) {
      const auto isUnread = [this](const ZORVEL::LibrarySearch& search) {
        return hasFinding(RuleId::LibraryUnreadable, shown(search.file)) || hasFinding(RuleId::LibraryNotChecked);
      };
      const auto& searches = piece.material.searches;
      if (std::any_of(searches.begin(), searches.end(), isUnread)) continue;
      expectTold(host::toUtf8(finding.text), causesOf(piece.element));
    }
  }

  static std::string shown(const std::wstring& path) {
    std::string text = host::toUtf8(path.substr(std::wstring(ZORVEL::Settings::GetPath()).size()));
    std::replace(text.begin(), text.end(), '\\', '/');
    return text.substr(text.find_first_not_of('/'));
  }

  Records causesOf(const ZORVEL::BuildElement& element) const {
    switch (element.kind) {
      case ElementKind::Body:
        return {pose_, character_->GetSkin(Selection2::GetSkin())};
      case ElementKind::Clothing:
        return {clothing_, character_->GetStyle(Selection2::GetCloth(), Selection2::GetStyle())};
      default:
        return assetCauses(element);
    }
  }

  Records assetCauses(const ZORVEL::BuildElement& element) const {
    Records causes;
    const auto add = [&](const DataContainer* asset) {
      if (idOf(asset) != element.id) return;
      causes.push_back(asset);
      for (const DataContainer* material : apps::childrenOf(*asset)) {
        if (idOf(material) == element.materialId) causes.push_back(material);
      }
    };
    for (const DataContainer* asset : apps::elementsOf(*character_, ZORVEL::ASSETS)) add(asset);
    for (const DataContainer* asset : apps::globalAssets()) add(asset);
    if (element.kind != ElementKind::MandatoryAsset) return causes;
    for (const DataContainer* entry : apps::childrenOf(*pose_)) causes.push_back(entry);
    return causes;
  }

  check::CheckResult result_;
  apps::SettledRoot settings_;
  ReadElements description_;
  bool isReadable_ = false;
  ZORVEL::FileStamps stamps_;
  const CharacterData* character_ = nullptr;
  const DataContainer* clothing_ = nullptr;
  const DataContainer* pose_ = nullptr;
  bool isWorn_ = false;
  std::set<const DataContainer*> skins_;
  std::set<const DataContainer*> styles_;
  std::vector<OfferedElement> offered_;
};

TEST(CheckerAgreement, TheCheckerTellsWhateverWindowOrBuilderLeaveOut) {
  const unsigned count = support::damages(100);
  int failures = 0;
  for (unsigned seed = 0; seed < count && failures < 5; ++seed) {
    const support::CompleteRepository repository;
    support::Damage damage(repository.folder().path(), seed);
    std::string done;
    for (unsigned i = 0; i <= seed % 3; ++i) done += damage.doOne() + "; ";
    SCOPED_TRACE("seed " + std::to_string(seed) + ": " + done);
    host::Application::instance().reset();
    const bool failed = testing::Test::HasFailure();
    CheckedRepository(repository.folder().path()).expectAllTold();
    if (!failed && testing::Test::HasFailure()) ++failures;
  }
}

}  // namespace
