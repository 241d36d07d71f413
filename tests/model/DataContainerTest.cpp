#include "model/DataContainer.h"

#include "model/Utf16Order.h"
#include "tests/support/LogStoreFixture.h"

namespace ZORVEL {

class DataContainerTest : public support::LogStoreFixture {
 protected:
  std::wstring text(const DataContainer& record, const wchar_t* field) {
    bool found = false;
    const wchar_t* value = record.GetData(field, found);
    EXPECT_EQ(found, value != nullptr);
    return value ? value : L"(missing)";
  }
};

TEST_F(DataContainerTest, StartsWithNothingAndTellsSoOnlyWhereItIsAsked) {
  DataContainer record;
  EXPECT_EQ(record.GetChildCount(), 0);
  EXPECT_TRUE(record.IsValid());
  EXPECT_EQ(record.GetType(), TYPE_NONE);
  for (int flag = 0; flag < 5; ++flag) EXPECT_FALSE(record.GetFastFlag(flag));
  EXPECT_FALSE(record.CheckDatafield(L"name"));
  EXPECT_TRUE(LogStore::Entries().empty());
  EXPECT_EQ(text(record, L"name"), L"(missing)");
  expectComplaints({L"Missing datafield:", L"name"});
}

TEST_F(DataContainerTest, ATextStaysWhereItIsUntilItsOwnFieldIsSetAgain) {
  DataContainer record;
  const FieldText fields[] = {{FieldName(L"id"), L"first"}, {FieldName(L"empty"), L""}, {FieldName(L"id"), L"c1"}};
  record.SetAllData(fields, 3);
  record.SetData(L"name", L"Anna");
  bool found = false;
  const wchar_t* const id = record.GetData(L"id", found);
  const wchar_t* const name = record.GetData(L"name", found);
  for (int i = 0; i < 100; ++i) record.SetData((L"field" + std::to_wstring(i)).c_str(), L"x");
  EXPECT_EQ(record.GetData(L"id", found), id);
  EXPECT_EQ(record.GetData(L"name", found), name);
  EXPECT_STREQ(id, L"c1");
  EXPECT_STREQ(name, L"Anna");
  EXPECT_EQ(text(record, L"empty"), L"");

  record.SetData(L"name", record.GetData(L"name", found) + 1);
  record.SetAllData(fields, 1);
  EXPECT_EQ(text(record, L"name"), L"nna");
  EXPECT_EQ(text(record, L"id"), L"first");
}

TEST_F(DataContainerTest, RefusesMissingArgumentsInItsOwnWords) {
  DataContainer record;
  bool found = true;
  record.SetData(nullptr, L"x");
  record.SetData(L"x", nullptr);
  EXPECT_EQ(record.GetData(nullptr, found), nullptr);
  EXPECT_FALSE(found);
  EXPECT_FALSE(record.CheckDatafield(nullptr));
  EXPECT_FALSE(record.AddChild(nullptr));
  expectComplaints({L"SetData: invalida argument field", L"SetData: invalida argument data",
                    L"GetData: invalida argument field", L"CheckDatafield: invalida argument field",
                    L"AddChild: invalid argument child"});
}

TEST_F(DataContainerTest, NegativeIndexesFailSilentlyAndLargeOnesAreLogged) {
  DataContainer record;
  auto* const child = new DataContainer;
  record.AddChild(child);
  EXPECT_EQ(record.GetChild(0), child);
  EXPECT_EQ(record.GetChild(-1), nullptr);
  EXPECT_FALSE(record.SetChild(-1, nullptr));
  EXPECT_TRUE(LogStore::Entries().empty());
  EXPECT_EQ(record.GetChild(1), nullptr);
  EXPECT_FALSE(record.SetChild(1, nullptr));
  EXPECT_FALSE(record.GetFastFlag(5));
  record.SetFastFlag(-1, true);
  expectComplaints({L"GetChild: index out of range", L"SetChild: index out of range",
                    L"DataContainer::GetFastFlag : flag out of range!",
                    L"DataContainer::SetFastFlag : flag out of range!"});
  record.SetFastFlag(4, true);
  EXPECT_TRUE(record.GetFastFlag(4));
  EXPECT_TRUE(record.SetChild(0, nullptr)) << "the child is ours now";
  delete child;
}

TEST_F(DataContainerTest, RemovesInvalidChildrenAndKeepsTheOrderOfTheOthers) {
  DataContainer record;
  DataContainer* children[4];
  for (DataContainer*& child : children) record.AddChild(child = new DataContainer);
  children[1]->SetInvalid();
  record.RemoveInvalidChildren();
  record.RemoveInvalidChildren();
  ASSERT_EQ(record.GetChildCount(), 3);
  EXPECT_EQ(record.GetChild(0), children[0]);
  EXPECT_EQ(record.GetChild(1), children[2]);
  EXPECT_EQ(record.GetChild(2), children[3]);
}

TEST_F(DataContainerTest, TakesATypeOnceAndClassifiesByTheExactWord) {
  DataContainer record;
  record.SetType(TYPE_COMMON);
  record.SetType(TYPE_SPECIFIC);
  EXPECT_EQ(record.GetType(), TYPE_COMMON);
  expectComplaints({L"SetType: type already set"});
  EXPECT_EQ(DataContainer::ClassifyType(nullptr), TYPE_NONE);
  EXPECT_EQ(DataContainer::ClassifyType(&record), TYPE_NONE);
  const std::pair<const wchar_t*, DataType> cases[] = {
      {L"common", TYPE_COMMON}, {L"specific", TYPE_SPECIFIC}, {L"Common", TYPE_NONE}, {L"", TYPE_NONE}};
  for (const auto& [word, type] : cases) {
    record.SetData(L"type", word);
    EXPECT_EQ(DataContainer::ClassifyType(&record), type);
  }
}

TEST(Utf16Order, PutsCharactersBeyondTheBasicPlaneWhereTheirSurrogatesAre) {
  const wchar_t* const ascending[] = {L"",       L"1",          L"B",          L"Ba",         L"a",      L"b",
                                      L"\uD7FF", L"\U00010000", L"\U00010001", L"\U0010FFFF", L"\uE000", L"\uFFFD"};
  for (const auto* left = std::begin(ascending); left != std::end(ascending); ++left) {
    EXPECT_EQ(CompareUtf16(*left, *left), 0);
    for (const auto* right = left + 1; right != std::end(ascending); ++right) {
      EXPECT_LT(CompareUtf16(*left, *right), 0);
      EXPECT_GT(CompareUtf16(*right, *left), 0);
    }
  }
}

}  // namespace ZORVEL
