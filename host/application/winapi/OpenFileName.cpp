#include <commdlg.h>

#include <algorithm>
#include <cwchar>

#include "host/application/Application.h"
#include "host/files/Paths.h"
#include "host/services/FileDialog.h"
#include "host/services/Listener.h"

namespace {

constexpr int MOST_FILTERS = 100;

host::FileDialog::Question questionOf(const OPENFILENAMEW& request) {
  host::FileDialog::Question question;
  if (request.lpstrTitle != nullptr) question.title = request.lpstrTitle;
  if (request.lpstrInitialDir != nullptr) question.folder = request.lpstrInitialDir;
  const wchar_t* at = request.lpstrFilter;
  for (int i = 0; at != nullptr && *at != 0 && i < MOST_FILTERS; ++i) {
    const std::wstring text = at;
    const std::wstring patterns = at + text.size() + 1;
    at += text.size() + patterns.size() + 2;
    question.filters.emplace_back(text, patterns);
  }
  return question;
}

std::wstring windowsShaped(const std::filesystem::path& path) {
  std::wstring text = host::toWide(path.string());
  std::replace(text.begin(), text.end(), L'/', L'\\');
  return text;
}

/// Empty when the file may be answered, else what is wrong with it.
std::string objection(const OPENFILENAMEW& request, const std::filesystem::path& file, std::size_t length) {
  std::error_code error;
  if ((request.Flags & OFN_FILEMUSTEXIST) != 0 && !std::filesystem::is_regular_file(file, error)) {
    return "there is no such file";
  }
  if ((request.Flags & OFN_PATHMUSTEXIST) != 0 && !std::filesystem::is_directory(file.parent_path(), error)) {
    return "there is no such folder";
  }
  return length < request.nMaxFile ? "" : "its path is too long";
}

void answer(OPENFILENAMEW& request, const std::wstring& path) {
  std::copy_n(path.c_str(), path.size() + 1, request.lpstrFile);
  const std::size_t name = path.rfind(L'\\') + 1;
  const std::size_t dot = path.rfind(L'.');
  request.nFileOffset = static_cast<WORD>(name);
  request.nFileExtension = static_cast<WORD>(dot != std::wstring::npos && dot >= name ? dot + 1 : 0);
}

}  // namespace

BOOL WINAPI GetOpenFileNameW(OPENFILENAMEW* request) {
  if (request == nullptr || request->lStructSize != sizeof(OPENFILENAMEW) || request->lpstrFile == nullptr)
    return FALSE;
  host::Application& application = host::Application::instance();
  const auto file = application.fileDialog().ask(questionOf(*request));
  if (!file || file->empty()) return FALSE;
  const std::wstring path = windowsShaped(*file);
  const std::string problem = objection(*request, *file, path.size());
  if (!problem.empty()) {
    host::Listener::instance().report("File " + file->string() + " cannot be taken: " + problem + ".");
    return FALSE;
  }
  answer(*request, path);
  return TRUE;
}
