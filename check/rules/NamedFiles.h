#pragma once

#include "check/rules/Survey.h"

namespace check {

/// Asks for every file that is named after elements of the description, by the layout of a repository, whatever has
/// become of the elements: left out, misspelt or out of place. Who mends them needs their files.
class NamedFiles {
 public:
  explicit NamedFiles(Survey& survey) : survey_(survey) {}
  void refer() const;

 private:
  void referShared(const ZORVEL::XmlElement& list) const;
  void referCharacter(const ZORVEL::XmlElement& character) const;
  void referPreviews(const ZORVEL::XmlElement& element, const std::wstring& folder) const;
  void referAssetFiles(const ZORVEL::XmlElement& asset, const std::wstring& folder) const;
  void referPictures(const ZORVEL::XmlElement& element, const std::wstring& folder) const;
  void refer(const std::wstring& file) const { survey_.files.Look(file); }

  Survey& survey_;
};

}  // namespace check
