#pragma once

#include "check/rules/Survey.h"

namespace check {

/// Rows of the asset matrix that nobody ever asks for.
class MatrixRules {
 public:
  explicit MatrixRules(Survey& survey) : survey_(survey) {}
  void run();

 private:
  void lookAt(const ZORVEL::CharacterData& character, const ZORVEL::XmlElement& element);

  Survey& survey_;
};

}  // namespace check
