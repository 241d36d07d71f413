#pragma once

namespace ZORVEL {

namespace XMLParser2 {

/// Picks the reader of the description; there is one. Result and effect are its own.
bool ParseXML(const wchar_t* path);

}  // namespace XMLParser2

}  // namespace ZORVEL
