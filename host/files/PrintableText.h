#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace host {

/// The text as it can stand in one line of any output: control characters, separators of lines and paragraphs, what
/// turns the direction of writing around, and bytes that are no UTF-8 become escapes that a person can see ("\x1b",
/// "\u202e"). Everything else stays, and so does a text that has been through here before.
std::string printable(std::string_view text);

/// The one way to write a line for a person: it is one, and printable, whatever went into it.
void printLine(std::ostream& stream, std::string_view text);

}  // namespace host
