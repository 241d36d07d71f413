#pragma once

#include <string>

#include "core/Settings.h"
#include "tests/model/ModelFixture.h"
#include "tests/support/LocalAppData.h"
#include "tests/support/TemporaryFolder.h"

namespace ZORVEL {

/// A test with an empty repository folder that is the one of the settings.
class RepositoryFixture : public ModelFixture {
 protected:
  void SetUp() override {
    ModelFixture::SetUp();
    Settings::LoadSettings();
    Settings::StorePath(root_.wide().c_str());
    clearLog();
  }
  void TearDown() override {
    Settings::FreeSettings();
    ModelFixture::TearDown();
  }

  void writeDescription(const std::string& xml) const { root_.write("zorvel.xml", xml); }
  /// What a character folder must have.
  void makeCharacterFolder(const std::string& name) const {
    root_.makeFolder(name + "/previews");
    root_.makeFolder(name + "/skin");
  }
  static std::wstring text(const DataContainer* record, const wchar_t* field) {
    bool found = false;
    const wchar_t* value = record && record->CheckDatafield(field) ? record->GetData(field, found) : nullptr;
    return value ? value : L"(missing)";
  }

  support::LocalAppData appData_;
  support::TemporaryFolder root_;
};

}  // namespace ZORVEL
