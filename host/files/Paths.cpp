#include "host/files/Paths.h"

#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <cstdint>

#include "host/files/DiskTroubles.h"
#include "host/files/FolderListings.h"

namespace host {

namespace {

constexpr std::uint32_t REPLACEMENT = 0xFFFD;
constexpr std::uint32_t ESCAPED_BYTES = 0xDC00;

bool isSurrogate(std::uint32_t c) { return c >= 0xD800 && c <= 0xDFFF; }
bool isEscapedByte(std::uint32_t c) { return c >= ESCAPED_BYTES + 0x80 && c <= ESCAPED_BYTES + 0xFF; }

void appendCodePoint(std::string& bytes, std::uint32_t c) {
  const auto add = [&bytes](std::uint32_t byte) { bytes += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (c < 0x80) return add(c);
  if (c < 0x800) {
    add(0xC0 | (c >> 6));
  } else {
    if (c < 0x10000) {
      add(0xE0 | (c >> 12));
    } else {
      add(0xF0 | (c >> 18));
      add(0x80 | ((c >> 12) & 0x3F));
    }
    add(0x80 | ((c >> 6) & 0x3F));
  }
  add(0x80 | (c & 0x3F));
}

/// The length that a UTF-8 sequence says it has by its first byte, 0 for a byte that begins none.
std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/// Decodes the sequence that `bytes` begins with; its length, 0 when it is not valid.
std::size_t decode(std::string_view bytes, std::uint32_t& character) {
  constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const auto lead = static_cast<unsigned char>(bytes.front());
  const std::size_t length = sequenceLength(lead);
  if (length == 0 || length > bytes.size()) return 0;
  character = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(bytes[i]);
    if ((next & 0xC0) != 0x80) return 0;
    character = (character << 6) | (next & 0x3FU);
  }
  const bool valid = character >= smallest[length] && character <= 0x10FFFF && !isSurrogate(character);
  return valid ? length : 0;
}

std::string withNativeSeparators(const std::string& path) {
  std::string native;
  native.reserve(path.size());
  for (const char c : path) {
    const char separated = c == '\\' ? '/' : c;
    if (separated != '/' || native.empty() || native.back() != '/') native += separated;
  }
  return native;
}

bool exists(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) return true;
  DiskTroubles::instance().note(path, errno);
  return false;
}

std::string resolveNames(const std::string& path) {
  // The machine takes nothing longer, so the walk towards the root is bounded too.
  if (path.empty() || path.size() >= PATH_MAX || exists(path)) return path;
  if (path.back() == '/') return path.size() == 1 ? path : resolveNames(path.substr(0, path.size() - 1)) + '/';
  const std::size_t slash = path.rfind('/');
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  const std::string parent = slash == std::string::npos ? std::string() : path.substr(0, slash);
  const std::string folder = slash == 0 ? "/" : parent.empty() ? "." : resolveNames(parent);
  std::string found = FolderListings::instance().find(folder, name);
  if (slash == std::string::npos) return found;
  return slash == 0 ? folder + found : folder + '/' + found;
}

}  // namespace

std::string toUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const wchar_t wide : text) {
    const auto c = static_cast<std::uint32_t>(wide);
    if (isEscapedByte(c)) {
      bytes += static_cast<char>(static_cast<unsigned char>(c - ESCAPED_BYTES));
    } else {
      appendCodePoint(bytes, isSurrogate(c) || c > 0x10FFFF ? REPLACEMENT : c);
    }
  }
  return bytes;
}

std::wstring toWide(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    std::uint32_t character = 0;
    std::size_t length = decode(bytes, character);
    if (length == 0) {
      character = ESCAPED_BYTES + static_cast<unsigned char>(bytes.front());
      length = 1;
    }
    text += static_cast<wchar_t>(character);
    bytes.remove_prefix(length);
  }
  return text;
}

std::filesystem::path nativePath(std::wstring_view windowsPath) { return withNativeSeparators(toUtf8(windowsPath)); }

std::filesystem::path resolvePath(std::wstring_view windowsPath) {
  return resolveNames(withNativeSeparators(toUtf8(windowsPath)));
}

}  // namespace host
