#pragma once

namespace ZORVEL {

/// The number that a text begins with, as the C library reads it in the C locale whatever the process's locale is:
/// blanks, sign, then digits with a decimal point and an exponent, hexadecimal ones after "0x", "inf" or "nan". The
/// rest is ignored; 0 when there is no number or no text. A number beyond the range becomes an infinity.
double NumberFromText(const wchar_t* text);

/// Whether there is a number and nothing but blanks around it.
bool IsWhollyNumber(const wchar_t* text);

}  // namespace ZORVEL
