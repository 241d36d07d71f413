#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace host {

/// The texts of a resource script's string tables by id. Understands what such tables are written with: comments,
/// `#define NAME NUMBER`, ids as numbers or defined names, BEGIN and END or braces, doubled quotes and the escapes \n
/// \r \t \\ \" \xHHHH in texts. Everything else in the script is passed over; an entry that makes no sense ends its
/// table. UTF-8.
std::map<std::uint32_t, std::wstring> stringTable(std::string_view script);

}  // namespace host
