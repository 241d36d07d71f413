#pragma once

#include "check/rules/Survey.h"

namespace check {

/// Asks for every file that is named after elements of the description, by the layout of a repository, whatever has
/// become of the elements: left out, misspelt or out of place. Who mends them needs their files.
class NamedFiles {
 public:
  explicit NamedFiles(Survey& survey);
  /// False when there were too many to ask for all: each clothing has files for each pose.
  bool refer();

 private:
  using Elements = std::vector<const ZORVEL::XmlElement*>;

  /// At any depth.
  Elements allNamed(const ZORVEL::XmlElement& element, const wchar_t* name);
  void collect(const ZORVEL::XmlElement& element, const wchar_t* name, Elements& found);
  void referShared(const ZORVEL::XmlElement& list);
  void referCharacter(const ZORVEL::XmlElement& character);
  void referPreviews(const ZORVEL::XmlElement& element, const std::wstring& folder);
  void referAssetFiles(const ZORVEL::XmlElement& asset, const std::wstring& folder);
  void referPictures(const ZORVEL::XmlElement& element, const std::wstring& folder);
  void refer(const std::wstring& file);

  Survey& survey_;
  double workLeft_;
};

}  // namespace check
