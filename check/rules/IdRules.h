#pragma once

#include "check/rules/Survey.h"

namespace check {

/// Ids that are missing, given twice, or alike for Windows, and names that Windows refuses.
class IdRules {
 public:
  explicit IdRules(Survey& survey) : survey_(survey) {}
  void run();

 private:
  using Records = std::vector<ZORVEL::DataContainer*>;

  void lookAt(const Records& records, EntryKind kind);
  void lookAtMissing(const ZORVEL::DataContainer& record, EntryKind kind);
  void lookAtCharacter(const ZORVEL::CharacterData& character);
  void lookAtPreviewNames(const ZORVEL::CharacterData& character, const std::wstring& folder);
  void lookAtFileNames(const ZORVEL::CharacterData& character);

  Survey& survey_;
};

}  // namespace check
