#include "apps/cli/Choice.h"

#include <algorithm>

#include "apps/cli/AssetChoice.h"
#include "apps/support/ModelText.h"
#include "apps/support/NearestIds.h"
#include "core/FileStamps.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/PageOffers.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryValidation.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"
#include "plugin/InitialChoice.h"

namespace cli {

using namespace apps;

namespace {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::OfferedElement;
using ZORVEL::PageKind;
using ZORVEL::PageOffer;
using ZORVEL::RepositoryValidation;
using ZORVEL::Selection2;
using ZORVEL::Commands::SetSelectedCharacterUnique;
using ZORVEL::Commands::SetSelectedClothUnique;

using Wish = std::optional<std::string>;

unsigned int uniqueOf(const DataContainer& record) { return static_cast<unsigned int>(Data2::GetUnique(&record)); }

/// Does what a person does with the window: clicks on a character and a clothing, and on whatever is asked for on the
/// pages that this brings; the rest is as the pages begin.
class Chooser {
 public:
  explicit Chooser(const CreateOptions& options) : options_(options) {}

  ChoiceResult run() {
    Selection2::Reset();
    Selection2::SetStyle(nullptr);
    character_ = chooseCharacter();
    if (character_ != nullptr) cloth_ = chooseCloth();
    if (cloth_ != nullptr) choosePages();
    return std::move(result_);
  }

 private:
  CharacterData* chooseCharacter() {
    const auto whyNot = [](const CharacterData& one) { return RepositoryValidation::WhyUnmarked(one, &one); };
    CharacterData* character = pick("character", options_.character, characters(), whyNot);
    if (character == nullptr) return nullptr;
    SetSelectedCharacterUnique(uniqueOf(*character), false);
    return confirm("character", *character, Data2::GetCharacter(Selection2::GetCharacter()));
  }

  DataContainer* chooseCloth() {
    const auto whyNot = [this](const DataContainer& one) { return RepositoryValidation::WhyUnmarked(one, character_); };
    DataContainer* cloth = pick("clothing", options_.cloth, elementsOf(*character_, ZORVEL::CLOTH), whyNot);
    if (cloth == nullptr) return nullptr;
    SetSelectedClothUnique(uniqueOf(*character_), uniqueOf(*cloth), false);
    return confirm("clothing", *cloth, character_->GetCloth(Selection2::GetCloth()));
  }

  void choosePages() {
    ZORVEL::FileStamps files;
    AssetChoice assets(*character_, result_);
    if (!assets.wish(options_.assets)) return;
    const ZORVEL::PageOffers offers(*character_, files);
    offers.VisitAll([&](const PageOffer& page) {
      // Once something is missing, the rest is chosen as the window does, and what follows from it is not told.
      if (result_.errors.empty()) return choosePage(page, assets);
      ZORVEL::InitialChoice::Make(page);
    });
    if (!result_.errors.empty()) return;
    offers.VisitAssetsWithoutPage([&](const OfferedElement& element) { assets.lookAtHidden(element); });
    assets.select();
  }

  void choosePage(const PageOffer& page, AssetChoice& assets) {
    switch (page.kind) {
      case PageKind::Clothing:
        return;
      case PageKind::Poses:
        chooseOne("pose", options_.pose, page);
        return confirmChosen("pose", page, character_->GetPose(Selection2::GetPose()));
      case PageKind::Skins:
        chooseOne("skin", options_.skin, page);
        return confirmChosen("skin", page, character_->GetSkin(Selection2::GetSkin()));
      case PageKind::Styles:
        chooseOne(styleOfCloth(), options_.style, page);
        return confirmChosen(styleOfCloth(), page,
                             character_->GetStyle(Selection2::GetCloth(), Selection2::GetStyle()));
      case PageKind::Assets:
        assets.visit(page, !options_.bare);
    }
  }

  std::string styleOfCloth() const { return "style of " + field(cloth_, ZORVEL::RepositoryFormat::FIELD_ID); }

  /// What is asked for, or the first that is offered.
  template <class Record, class WhyNot>
  Record* pick(const std::string& kind, const Wish& wish, const std::vector<Record*>& records, WhyNot whyNot) {
    const auto fits = [&](const Record* record) {
      return wish ? field(record, ZORVEL::RepositoryFormat::FIELD_ID) == *wish
                  : whyNot(*record).why == ZORVEL::WhyNot::Nothing;
    };
    const auto found = std::find_if(records.begin(), records.end(), fits);
    if (found == records.end()) {
      if (wish) {
        fail(unknownId(kind, *wish, idsOf(records)));
      } else {
        fail("There is no usable " + kind + " to choose.");
        for (const Record* record : records) failFor(kind, *record, whyNot(*record));
      }
      return nullptr;
    }
    const ZORVEL::Refusal refusal = whyNot(**found);
    if (refusal.why == ZORVEL::WhyNot::Nothing) return *found;
    failFor(kind, **found, refusal);
    return nullptr;
  }

  void chooseOne(const std::string& kind, const Wish& wish, PageOffer page) {
    if (wish) {
      const OfferedElement* element = find(kind, *wish, page);
      page.choice.clear();
      if (element != nullptr) page.choice.push_back(element->unique);
    } else if (page.choice.empty()) {
      fail("There is no usable " + kind + " to choose.");
      for (const auto* list : {&page.shown, &page.hidden}) {
        for (const OfferedElement& element : *list) failFor(kind, *element.record, element.refusal);
      }
    }
    wanted_ = page.choice.empty() ? 0 : page.choice.front();
    ZORVEL::InitialChoice::Make(page);
  }

  /// Null, with the reason, for an id that there is not and an element that cannot be clicked.
  const OfferedElement* find(const std::string& kind, const std::string& id, const PageOffer& page) {
    std::vector<const DataContainer*> known;
    for (const auto* list : {&page.shown, &page.hidden}) {
      for (const OfferedElement& element : *list) {
        known.push_back(element.record);
        if (field(element.record, ZORVEL::RepositoryFormat::FIELD_ID) != id) continue;
        if (element.IsAvailable()) return &element;
        failFor(kind, *element.record, element.refusal);
        return nullptr;
      }
    }
    fail(unknownId(kind, id, idsOf(known)));
    return nullptr;
  }

  void confirmChosen(const std::string& kind, const PageOffer& page, const DataContainer* chosen) {
    const auto wanted = std::find_if(page.shown.begin(), page.shown.end(),
                                     [this](const OfferedElement& one) { return one.unique == wanted_; });
    if (wanted != page.shown.end()) confirm(kind, *wanted->record, chosen);
  }

  /// What a click chooses is found again by its id. Answers `chosen`.
  template <class Record>
  Record* confirm(const std::string& kind, const DataContainer& wanted, Record* chosen) {
    const std::string name = kind + " " + nameOf(wanted);
    if (chosen == nullptr) {
      fail("The " + name + " cannot be chosen: it has no id, or an empty one.");
    } else if (chosen != &wanted) {
      result_.notes.push_back("The " + name + " is another one: the first with its id, " + nameOf(*chosen) + ".");
    }
    return chosen;
  }

  void fail(const std::string& text) { result_.errors.push_back(text); }
  void failFor(const std::string& kind, const DataContainer& record, const ZORVEL::Refusal& refusal) {
    fail("The " + kind + " " + nameOf(record) + " cannot be chosen: " + host::toUtf8(refusal.GetText()) + ".");
  }

  const CreateOptions& options_;
  CharacterData* character_ = nullptr;
  DataContainer* cloth_ = nullptr;
  /// The unique id of what was clicked on last; 0 for nothing.
  int wanted_ = 0;
  ChoiceResult result_;
};

}  // namespace

ChoiceResult choose(const CreateOptions& options) { return Chooser(options).run(); }

}  // namespace cli
