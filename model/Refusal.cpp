#include "model/Refusal.h"

namespace ZORVEL {

namespace {

/// The words before and after what is concerned.
struct Sentence {
  const wchar_t* before;
  const wchar_t* after;
};

Sentence SentenceFor(WhyNot why) {
  switch (why) {
    case WhyNot::Nothing:
      break;
    case WhyNot::FolderUnnamed:
    case WhyNot::CategoryUnnamed:
    case WhyNot::GlobalUnnamed:
      return {L"it has no \"", L"\""};
    case WhyNot::FolderMissing:
      return {L"its folder is missing: ", L""};
    case WhyNot::NeverChecked:
      return {L"the folder of its character is missing: ", L""};
    case WhyNot::PictureMissing:
      return {L"its picture is missing: ", L""};
    case WhyNot::MeshMissing:
      return {L"the clothing has no mesh in this pose: ", L""};
    case WhyNot::NoClothing:
      return {L"no clothing is chosen that there is: \"", L"\""};
    case WhyNot::NoPose:
      return {L"no pose is chosen that there is: \"", L"\""};
    case WhyNot::CategoryUnknown:
      return {L"there is no category with the id \"", L"\""};
    case WhyNot::NoMatrixRow:
      return {L"the asset matrix has no row for ", L""};
    case WhyNot::Excluded:
      return {L"the clothing excludes \"", L"\""};
    case WhyNot::GlobalUnknown:
      return {L"there is no global asset with the id \"", L"\""};
  }
  return {L"", L""};
}

}  // namespace

std::wstring Refusal::GetText() const {
  const Sentence sentence = SentenceFor(why);
  return why == WhyNot::Nothing ? std::wstring() : sentence.before + concerned + sentence.after;
}

}  // namespace ZORVEL
