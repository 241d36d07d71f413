#pragma once

#include <optional>
#include <string>

#include "check/rules/Survey.h"

namespace check {

/// Folders that are not there, as the check on disk has marked them.
class FolderRules {
 public:
  explicit FolderRules(Survey& survey) : survey_(survey) {}
  void run();

 private:
  void lookAt(const ZORVEL::CharacterData& character);
  void lookAt(const ZORVEL::DataContainer& record, const ZORVEL::CharacterData* character, RuleId missing,
              EntryKind kind);
  void lookAtPictures(const ZORVEL::DataContainer& owner, const std::vector<ZORVEL::DataContainer*>& materials,
                      const std::wstring& around);
  bool leadsOut(const std::wstring& around, const std::wstring& path);
  void lookAtName(const ZORVEL::DataContainer& record, const wchar_t* attribute, const std::wstring& around);

  Survey& survey_;
  std::wstring around_;
  std::optional<int> depth_ = 0;
};

}  // namespace check
