#include "check/Vocabulary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "apps/reference/Documents.h"
#include "apps/support/LoadedRepository.h"
#include "host/files/Paths.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using check::AttributeLookup;
using check::ElementEntry;
using check::ElementLookup;
using check::EntryKind;
using host::toUtf8;

std::string nameOf(const ElementEntry& entry) { return toUtf8(entry.name); }

/// The element with what stands in it, and all that has to stand around it to be read.
std::string around(const ElementEntry& entry, const std::string& inside) {
  const bool isCharacter = entry.kind == EntryKind::Character;
  const std::string element =
      '<' + nameOf(entry) + (isCharacter ? " folder='c'>" : ">") + inside + "</" + nameOf(entry) + '>';
  return entry.kind == entry.parent ? element : around(check::entryOf(entry.parent), element);
}

class Vocabulary : public testing::Test {
 protected:
  Vocabulary() {
    folder_.makeFolder("c/previews");
    folder_.makeFolder("c/skin");
  }

  /// The names that the reader gives with its notes of a kind.
  std::multiset<std::wstring> noted(ZORVEL::ParseNoteKind kind, const std::string& description) const {
    folder_.write("zorvel.xml", description);
    const apps::LoadedRepository loaded(folder_.path());
    EXPECT_EQ(loaded.error(), "");
    std::multiset<std::wstring> names;
    for (const ZORVEL::ParseNote& note : loaded.notes()) {
      const bool isElement = kind == ZORVEL::ParseNoteKind::ElementSkipped;
      if (note.kind == kind) names.insert(isElement ? note.element : note.name);
    }
    return names;
  }

  support::TemporaryFolder folder_;
};

TEST_F(Vocabulary, HoldsEveryKindInItsPlace) {
  for (std::size_t i = 0; i < check::allEntries().size(); ++i) {
    const ElementEntry& entry = check::allEntries()[i];
    EXPECT_EQ(static_cast<std::size_t>(entry.kind), i) << nameOf(entry);
    EXPECT_LE(entry.parent, entry.kind) << nameOf(entry);
  }
  EXPECT_EQ(check::allEntries().back().kind, EntryKind::MatrixRow);
}

TEST_F(Vocabulary, AgreesWithTheReaderAboutEveryNameInEveryElement) {
  std::set<std::wstring> names = {L"bogus", L"Skin", L"assetMatrix"};
  for (const ElementEntry& entry : check::allEntries()) names.insert(entry.name);
  for (const ElementEntry& parent : check::allEntries()) {
    // What stands in an element that holds nothing is not even looked at.
    if (check::childrenOf(parent.kind).empty()) continue;
    std::string inside;
    std::multiset<std::wstring> skipped;
    for (const std::wstring& name : names) {
      inside += '<' + toUtf8(name) + " folder='c'/>";
      if (!check::elementAt(parent.kind, name).isRead()) skipped.insert(name);
    }
    EXPECT_EQ(noted(ZORVEL::ParseNoteKind::ElementSkipped, around(parent, inside)), skipped) << nameOf(parent);
  }
}

TEST_F(Vocabulary, KnowsEveryAttributeThatTheReaderCallsThePlugInsOwn) {
  for (const ElementEntry& entry : check::allEntries()) {
    for (const check::AttributeEntry& attribute : entry.attributes) {
      std::string description = around(entry, "");
      const std::string tag = '<' + nameOf(entry);
      description.insert(description.rfind(tag) + tag.size(), ' ' + toUtf8(attribute.name) + "='c'");
      if (entry.kind == EntryKind::Character && attribute.name == std::wstring(L"folder")) continue;
      const auto own = noted(ZORVEL::ParseNoteKind::AttributeOfTheSystem, description);
      EXPECT_EQ(own.count(attribute.name) == 1, attribute.need == check::Need::Forbidden) << description;
    }
  }
}

TEST_F(Vocabulary, HoldsEveryNameOfTheFormat) {
  std::set<std::string> known;
  for (const ElementEntry& entry : check::allEntries()) {
    known.insert(nameOf(entry));
    for (const check::AttributeEntry& attribute : entry.attributes) known.insert(toUtf8(attribute.name));
  }
  const std::string header = reference::contentOf(ZORVEL_SOURCES "/model/RepositoryFormat.h");
  const std::regex constant("(ELEMENT|FIELD)_[A-Z_]+\\[\\] = L\"([A-Za-z_]+)\"");
  int count = 0;
  for (std::sregex_iterator one(header.begin(), header.end(), constant), end; one != end; ++one, ++count) {
    EXPECT_EQ(known.count((*one)[2]), 1U) << one->str() << " is new: say in the vocabulary what it is";
  }
  EXPECT_GT(count, 40);
}

TEST_F(Vocabulary, SaysWhatIsMeantByANameThatIsNotRead) {
  using Answer = ElementLookup::Answer;
  const struct {
    EntryKind parent;
    const wchar_t* name;
    Answer answer;
    const ElementEntry* entry;
  } cases[] = {
      {EntryKind::Repository, L"character", Answer::Read, &check::entryOf(EntryKind::Character)},
      {EntryKind::Clothing, L"material", Answer::Read, &check::entryOf(EntryKind::Style)},
      {EntryKind::Asset, L"material", Answer::Read, &check::entryOf(EntryKind::AssetMaterial)},
      {EntryKind::SharedAsset, L"note", Answer::ReadUnderAnyName, &check::entryOf(EntryKind::SharedMaterial)},
      {EntryKind::Pose, L"Asset", Answer::ReadUnderAnyName, &check::entryOf(EntryKind::MandatoryAsset)},
      {EntryKind::Character, L"assetMatrix", Answer::LetterCase, &check::entryOf(EntryKind::AssetMatrix)},
      {EntryKind::Character, L"skin", Answer::Elsewhere, &check::entryOf(EntryKind::Skin)},
      {EntryKind::Poses, L"Skin", Answer::Elsewhere, &check::entryOf(EntryKind::Skin)},
      {EntryKind::Clothing, L"exlude", Answer::Unknown, &check::entryOf(EntryKind::Exclude)},
      {EntryKind::Clothing, L"zorvel", Answer::Unknown, nullptr},
      {EntryKind::Skin, L"note", Answer::Unknown, nullptr},
  };
  for (const auto& one : cases) {
    const ElementLookup found = check::elementAt(one.parent, one.name);
    EXPECT_EQ(found.answer, one.answer) << toUtf8(one.name);
    EXPECT_EQ(found.entry, one.entry) << toUtf8(one.name);
  }
  EXPECT_EQ(check::placesOf(L"skin"), "\"skins\"");
  EXPECT_EQ(check::placesOf(L"asset"), "\"globalAssets\", \"pose\" or \"assets\"");
}

TEST_F(Vocabulary, SaysWhatIsMeantByAnAttributeThatIsNotRead) {
  using Answer = AttributeLookup::Answer;
  const struct {
    EntryKind element;
    const wchar_t* name;
    Answer answer;
    const wchar_t* meant;
  } cases[] = {
      {EntryKind::MatrixRow, L"assetID", Answer::Known, L"assetID"},
      {EntryKind::Skin, L"url", Answer::Known, L"url"},
      {EntryKind::MatrixRow, L"assetId", Answer::LetterCase, L"assetID"},
      {EntryKind::Asset, L"GlobalID", Answer::LetterCase, L"globalID"},
      {EntryKind::Select, L"asset_ID", Answer::LetterCase, L"asset_id"},
      {EntryKind::Select, L"materialid", Answer::Unknown, L"material_id"},
      {EntryKind::Style, L"previw", Answer::Unknown, L"preview"},
      {EntryKind::Clothing, L"avialable", Answer::Unknown, nullptr},
      {EntryKind::Skin, L"folder", Answer::Unknown, nullptr},
      {EntryKind::Repository, L"xmlns:xsi", Answer::OfXml, nullptr},
      {EntryKind::Repository, L"xsi:noNamespaceSchemaLocation", Answer::OfXml, nullptr},
      {EntryKind::Skin, L"xml:lang", Answer::OfXml, nullptr},
      {EntryKind::Skin, L"xmlname", Answer::Unknown, nullptr},
  };
  for (const auto& one : cases) {
    const AttributeLookup found = check::attributeAt(check::entryOf(one.element), one.name);
    EXPECT_EQ(found.answer, one.answer) << toUtf8(one.name);
    EXPECT_STREQ(found.entry == nullptr ? nullptr : found.entry->name, one.meant) << toUtf8(one.name);
  }
}

}  // namespace
