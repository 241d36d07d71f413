#include "plugin/RepositoryDialog.h"

#include <commdlg.h>
#include <stdlib.h>
#include <windows.h>

#include <vector>

#include "plugin/Module.h"

namespace ZORVEL {

namespace {

const int FILE_NAME_LENGTH = 520;
const int MANIFEST_RESOURCE = 2;

/// The module's own manifest, in force as long as this lives, so that the dialog uses the controls it asks for.
class ManifestContext {
 public:
  ManifestContext() {
    ACTCTXW request = {};
    request.cbSize = sizeof(request);
    request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.hModule = Module::GetInstance();
    request.lpResourceName = MAKEINTRESOURCEW(MANIFEST_RESOURCE);
    m_context = CreateActCtxW(&request);
    m_active = m_context != INVALID_HANDLE_VALUE && ActivateActCtx(m_context, &m_cookie) != FALSE;
  }
  ~ManifestContext() {
    if (m_active) DeactivateActCtx(0, m_cookie);
    if (m_context != INVALID_HANDLE_VALUE) ReleaseActCtx(m_context);
  }
  ManifestContext(const ManifestContext&) = delete;
  ManifestContext& operator=(const ManifestContext&) = delete;

 private:
  HANDLE m_context = INVALID_HANDLE_VALUE;
  ULONG_PTR m_cookie = 0;
  bool m_active = false;
};

/// One pair of name and pattern; each ends in a null, and so does the list.
std::wstring Filter() { return std::wstring(L"ZORVEL XML") + L'\0' + L"*.XML" + L'\0'; }

std::wstring FolderOf(const wchar_t* file) {
  std::vector<wchar_t> drive(FILE_NAME_LENGTH);
  std::vector<wchar_t> folder(FILE_NAME_LENGTH);
  _wsplitpath(file, drive.data(), folder.data(), nullptr, nullptr);
  return std::wstring(drive.data()) + folder.data();
}

}  // namespace

std::wstring RepositoryDialog::AskForFolder() {
  wchar_t file[FILE_NAME_LENGTH] = L"";
  const std::wstring filter = Filter();
  OPENFILENAMEW request = {};
  request.lStructSize = sizeof(request);
  request.lpstrFilter = filter.c_str();
  request.lpstrFile = file;
  request.nMaxFile = FILE_NAME_LENGTH;
  request.lpstrTitle = L"Select file \"zorvel.xml\"";
  request.Flags = OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST | OFN_ENABLESIZING;
  const ManifestContext manifest;
  if (GetOpenFileNameW(&request) == FALSE) return L"";
  return FolderOf(file);
}

}  // namespace ZORVEL
