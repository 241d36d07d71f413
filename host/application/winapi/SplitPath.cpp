#include <windows.h>

#include <algorithm>
#include <string_view>

namespace {

void copyPart(std::wstring_view part, wchar_t* buffer, std::size_t size) {
  if (!buffer) return;
  const std::size_t length = std::min(part.size(), size - 1);
  std::copy_n(part.data(), length, buffer);
  buffer[length] = 0;
}

}  // namespace

void _wsplitpath(const wchar_t* path, wchar_t* drive, wchar_t* folder, wchar_t* name, wchar_t* extension) {
  std::wstring_view rest = path ? path : L"";
  const std::size_t driveLength = rest.size() >= 2 && rest[1] == L':' ? 2 : 0;
  copyPart(rest.substr(0, driveLength), drive, _MAX_DRIVE);
  rest.remove_prefix(driveLength);

  const std::size_t separator = rest.find_last_of(L"\\/");
  const std::size_t folderLength = separator == std::wstring_view::npos ? 0 : separator + 1;
  copyPart(rest.substr(0, folderLength), folder, _MAX_DIR);
  rest.remove_prefix(folderLength);

  const std::size_t nameLength = std::min(rest.rfind(L'.'), rest.size());
  copyPart(rest.substr(0, nameLength), name, _MAX_FNAME);
  copyPart(rest.substr(nameLength), extension, _MAX_EXT);
}
