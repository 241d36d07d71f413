#pragma once

namespace ZORVEL {

/// The number that a text begins with, as the C library reads it in the C locale whatever the process's locale is:
/// blanks, sign, digits with a decimal point, exponent. The rest is ignored; 0 when there is no number or no text. A
/// number beyond the range becomes an infinity.
double numberFromText(const wchar_t* text);

}  // namespace ZORVEL
