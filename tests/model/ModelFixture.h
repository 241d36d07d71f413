#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "tests/support/LogStoreFixture.h"

namespace ZORVEL {

/// A test that starts and ends with an empty store and selection.
class ModelFixture : public support::LogStoreFixture {
 protected:
  void SetUp() override {
    LogStoreFixture::SetUp();
    reset();
  }
  void TearDown() override {
    reset();
    LogStoreFixture::TearDown();
  }

  using Attributes = std::initializer_list<std::pair<const wchar_t*, const wchar_t*>>;

  static DataContainer* fill(DataContainer* record, Attributes fields) {
    for (const auto& [name, text] : fields) record->SetData(name, text);
    return record;
  }
  static DataContainer* add(CharacterData& character, CONTAINER container, Attributes fields) {
    return fill(character.GetContainerElement(container, character.AddContainerElement(container)), fields);
  }
  static CharacterData& addCharacter(Attributes fields = {}) {
    CharacterData* character = Data2::GetCharacter(Data2::AddCharacter());
    fill(character, fields);
    return *character;
  }
  static DataContainer* addGlobalAsset(Attributes fields) {
    return fill(Data2::GetGlobalAsset(Data2::AddGlobalAsset()), fields);
  }

 private:
  static void reset() {
    Data2::Clear();
    Selection2::Reset();
    Selection2::SetStyle(nullptr);
  }
};

}  // namespace ZORVEL
