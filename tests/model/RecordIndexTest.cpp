#include "model/RecordIndex.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <random>

#include "core/LogStore.h"
#include "model/Fields.h"
#include "tests/model/ModelFixture.h"

namespace ZORVEL {

namespace {

constexpr int LONG_LIST = 60;

class RecordIndexTest : public ModelFixture {
 protected:
  /// As it is done where a list is short.
  static DataContainer* walk(const DataContainer& list, const wchar_t* id) {
    for (int i = 0; i < list.GetChildCount(); ++i) {
      const wchar_t* found = Fields::Text(list.GetChild(i), L"id");
      if (found != nullptr && std::wcscmp(found, id) == 0) return list.GetChild(i);
    }
    return nullptr;
  }

  template <class Lookup>
  std::pair<const DataContainer*, std::vector<std::wstring>> logged(Lookup lookup) {
    clearLog();
    std::pair<const DataContainer*, std::vector<std::wstring>> answer;
    answer.first = lookup();
    for (const LogEntry& entry : LogStore::Entries()) answer.second.push_back(entry.text);
    clearLog();
    return answer;
  }

  void expectAnswersAsByWalking(const DataContainer& list) {
    for (const wchar_t* id : {L"a", L"b", L"c", L"d", L"e", L"", L"nobody"}) {
      EXPECT_EQ(logged([&] { return CharacterData::FindElementById(&list, id); }),
                logged([&] { return walk(list, id); }));
    }
  }

  std::wstring anyId() { return std::wstring(1, static_cast<wchar_t>(L'a' + random_() % 5)); }

  std::mt19937 random_{1};
};

TEST_F(RecordIndexTest, AnswersAndLogsAsGoingThroughTheListDoes) {
  DataContainer list;
  for (int i = 0; i < LONG_LIST; ++i) {
    auto* record = new DataContainer;
    if (i % 7 != 0) record->SetData(L"id", anyId().c_str());
    list.AddChild(record);
    expectAnswersAsByWalking(list);
  }
  delete list.GetChild(10);
  list.SetChild(10, nullptr);
  expectAnswersAsByWalking(list);
  for (int i = 11; i < LONG_LIST; i += 3) {
    list.GetChild(i)->SetData(L"id", anyId().c_str());
    list.GetChild(i)->SetData(L"name", L"changes nothing");
    if (i % 2 == 0) list.GetChild(i)->SetInvalid();
    expectAnswersAsByWalking(list);
  }
  list.RemoveInvalidChildren();
  expectAnswersAsByWalking(list);
  EXPECT_EQ(CharacterData::FindElementById(&list, nullptr), nullptr);
}

TEST_F(RecordIndexTest, FindsAssetsOfCategoriesAndStandInsInTheOrderOfTheList) {
  CharacterData& character = addCharacter();
  const DataContainer* category = add(character, CATEGORIES, {{L"id", L"hats"}});
  std::vector<DataContainer*> hats;
  for (int i = 0; i < LONG_LIST; ++i) {
    const std::wstring global = L"g" + std::to_wstring(i / 3);
    DataContainer* asset = add(character, ASSETS,
                               {{L"category", i % 2 == 0 ? L"hats" : L"bags"},
                                {L"type", i % 3 == 0 ? L"specific" : L"global"},
                                {L"globalID", global.c_str()}});
    if (i % 2 == 0) hats.push_back(asset);
    addGlobalAsset({{L"id", global.c_str()}});
  }
  std::vector<DataContainer*> listed;
  for (const ListedAsset& one : character.ListAssetsForCategory(category)) listed.push_back(one.asset);
  EXPECT_EQ(listed, hats);
  // The first of the three is no stand-in, and of several records with one id the first counts.
  DataContainer* standIn = character.GetContainerElement(ASSETS, 13);
  const DataContainer* shared = Data2::GetGlobalAsset(12);
  EXPECT_EQ(Data2::FindGlobalAssetById(L"g4"), shared);
  EXPECT_EQ(character.FindLocalAssetForGlobal(shared), standIn);
  standIn->SetData(L"globalID", L"g5");
  EXPECT_EQ(character.FindLocalAssetForGlobal(shared), character.GetContainerElement(ASSETS, 14));
  Data2::GetGlobalAsset(12)->SetData(L"id", L"other");
  EXPECT_EQ(Data2::FindGlobalAssetById(L"g4"), Data2::GetGlobalAsset(13));
  clearLog();
}

}  // namespace

}  // namespace ZORVEL
