#pragma once

#include <cstddef>
#include <string>

namespace ZORVEL {

/// Why Windows makes no file or folder of a name.
enum class NameFault {
  None,
  Empty,
  TooLong,        ///< more than 255 UTF-16 code units
  Character,      ///< one of < > : " / \ | ? * or a control character
  TrailingDot,    ///< which Windows takes away
  TrailingBlank,  ///< the same
  Device          ///< CON, NUL, COM1 and their like, also with an ending
};

/// An answer with what it concerns: the character or the device.
struct NameRefusal {
  /// What is the matter, to follow the name in a sentence; empty for None.
  std::wstring GetText() const;

  NameFault fault = NameFault::None;
  std::wstring concerned;
};

/// What Windows says of the name of a single file or folder, on whatever machine it is asked.
namespace WindowsNames {

/// The length of a text as Windows counts it: in UTF-16 code units, also where a wide character is a whole code point.
std::size_t CountUnits(const std::wstring& text);

/// The first that is the matter, in the order of the list above.
NameRefusal WhyRefused(const std::wstring& name);

/// True when the two name one and the same file: letter case does not tell names apart.
bool AreAlike(const std::wstring& left, const std::wstring& right);

}  // namespace WindowsNames

}  // namespace ZORVEL
