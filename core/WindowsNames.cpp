#include "core/WindowsNames.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

namespace ZORVEL {

namespace {

const std::size_t LONGEST_NAME = 255;  // UTF-16 code units

const wchar_t* const REFUSED_CHARACTERS = L"<>:\"/\\|?*";

bool IsRefused(wchar_t c) {
  return static_cast<unsigned long>(c) < 0x20 || std::wstring(REFUSED_CHARACTERS).find(c) != std::wstring::npos;
}

bool IsNumbered(const std::wstring& stem) {
  const bool named = stem.size() == 4 && (WindowsNames::AreAlike(stem.substr(0, 3), L"COM") ||
                                          WindowsNames::AreAlike(stem.substr(0, 3), L"LPT"));
  // The superscript one, two and three count as digits.
  return named && std::wstring(L"0123456789\u00B9\u00B2\u00B3").find(stem[3]) != std::wstring::npos;
}

bool IsDevice(const std::wstring& stem) {
  const wchar_t* const devices[] = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
  const auto isStem = [&stem](const wchar_t* device) { return WindowsNames::AreAlike(stem, device); };
  return std::any_of(std::begin(devices), std::end(devices), isStem) || IsNumbered(stem);
}

/// What a device is looked up by: blanks and everything from the first dot on do not count.
std::wstring StemOf(const std::wstring& name) {
  const std::wstring stem = name.substr(0, name.find(L'.'));
  return stem.substr(0, stem.find_last_not_of(L' ') + 1);
}

std::wstring Shown(wchar_t c) {
  if (c >= L' ') return std::wstring(1, c);
  wchar_t text[8] = {};
  std::swprintf(text, sizeof text / sizeof *text, L"U+%04X", static_cast<unsigned>(c));
  return text;
}

NameRefusal Refuse(NameFault fault, const std::wstring& concerned = std::wstring()) {
  NameRefusal refusal;
  refusal.fault = fault;
  refusal.concerned = concerned;
  return refusal;
}

}  // namespace

std::wstring NameRefusal::GetText() const {
  switch (fault) {
    case NameFault::None:
      break;
    case NameFault::Empty:
      return L"is empty";
    case NameFault::TooLong:
      return L"is longer than the 255 characters that Windows takes";
    case NameFault::Character:
      return L"has the character " + concerned + L", which Windows takes in no name";
    case NameFault::TrailingDot:
      return L"ends in a dot, which Windows takes away";
    case NameFault::TrailingBlank:
      return L"ends in a blank, which Windows takes away";
    case NameFault::Device:
      return L"is the device " + concerned + L" to Windows, and no file";
  }
  return std::wstring();
}

std::size_t WindowsNames::CountUnits(const std::wstring& text) {
  const auto beyond = std::count_if(text.begin(), text.end(), [](wchar_t c) { return static_cast<long>(c) > 0xFFFF; });
  return text.size() + static_cast<std::size_t>(beyond);
}

NameRefusal WindowsNames::WhyRefused(const std::wstring& name) {
  if (name.empty()) return Refuse(NameFault::Empty);
  if (CountUnits(name) > LONGEST_NAME) return Refuse(NameFault::TooLong);
  const auto refused = std::find_if(name.begin(), name.end(), IsRefused);
  if (refused != name.end()) return Refuse(NameFault::Character, Shown(*refused));
  if (name.back() == L'.') return Refuse(NameFault::TrailingDot);
  if (name.back() == L' ') return Refuse(NameFault::TrailingBlank);
  const std::wstring stem = StemOf(name);
  return IsDevice(stem) ? Refuse(NameFault::Device, stem) : NameRefusal();
}

bool WindowsNames::AreAlike(const std::wstring& left, const std::wstring& right) {
  return CompareStringOrdinal(left.c_str(), static_cast<int>(left.size()), right.c_str(),
                              static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace ZORVEL
