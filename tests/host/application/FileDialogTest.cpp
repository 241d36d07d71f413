#include "host/services/FileDialog.h"

#include <commdlg.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/application/Application.h"
#include "host/files/Paths.h"
#include "host/services/ActivationContexts.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using host::FileDialog;

class OpenFile : public testing::Test {
 protected:
  OpenFile() {
    request_.lStructSize = sizeof(request_);
    request_.lpstrFilter = L"ZORVEL XML\0*.XML\0All\0*.*;*\0";
    request_.lpstrFile = file_;
    request_.nMaxFile = MAX_PATH;
    request_.lpstrTitle = L"Select";
    request_.Flags = OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST;
  }
  ~OpenFile() override { dialog().setProvider({}); }

  static FileDialog& dialog() { return host::Application::instance().fileDialog(); }
  void answer(const std::filesystem::path& path) {
    dialog().setProvider([this, path](const FileDialog::Question& question) {
      asked_ = question;
      return std::optional(path);
    });
  }

  OPENFILENAMEW request_{};
  wchar_t file_[MAX_PATH] = L"as before";
  FileDialog::Question asked_;
  support::TemporaryFolder folder_;
};

TEST_F(OpenFile, AnswersAWindowsShapedPathThatLeadsBackToTheFile) {
  const auto chosen = folder_.write("zorvel.xml", "<a/>");
  answer(chosen);
  ASSERT_EQ(GetOpenFileNameW(&request_), TRUE);
  const std::wstring path = file_;
  EXPECT_EQ(path.find(L'/'), std::wstring::npos);
  EXPECT_EQ(host::resolvePath(path), chosen);
  EXPECT_EQ(path.substr(request_.nFileOffset), L"zorvel.xml");
  EXPECT_EQ(path.substr(request_.nFileExtension), L"xml");
  EXPECT_EQ(asked_.title, L"Select");
  ASSERT_EQ(asked_.filters.size(), 2U);
  EXPECT_EQ(asked_.filters[0], std::make_pair(std::wstring(L"ZORVEL XML"), std::wstring(L"*.XML")));
  EXPECT_EQ(asked_.filters[1].second, L"*.*;*");

  request_.nMaxFile = static_cast<DWORD>(path.size() + 1);
  EXPECT_EQ(GetOpenFileNameW(&request_), TRUE);
}

TEST_F(OpenFile, LeavesTheBufferAloneWhenThereIsNothingToAnswer) {
  const auto chosen = folder_.write("zorvel.xml", "<a/>");
  EXPECT_EQ(GetOpenFileNameW(&request_), FALSE) << "no window asks";
  answer(folder_.path() / "absent.xml");
  EXPECT_EQ(GetOpenFileNameW(&request_), FALSE);
  answer(folder_.path());
  EXPECT_EQ(GetOpenFileNameW(&request_), FALSE) << "a folder";
  request_.Flags = OFN_PATHMUSTEXIST;
  answer(folder_.path() / "absent/new.xml");
  EXPECT_EQ(GetOpenFileNameW(&request_), FALSE);
  answer(chosen);
  request_.nMaxFile = static_cast<DWORD>(host::toWide(chosen.string()).size());
  EXPECT_EQ(GetOpenFileNameW(&request_), FALSE) << "no room for the ending zero";
  request_.nMaxFile = MAX_PATH;
  request_.lStructSize = 88;
  EXPECT_EQ(GetOpenFileNameW(&request_), FALSE) << "the size of another system";
  EXPECT_EQ(GetOpenFileNameW(nullptr), FALSE);
  EXPECT_EQ(std::wstring(file_), L"as before");
}

TEST(ActivationContexts, AreDeactivatedInReverseOrderAndReleasedOnce) {
  host::ActivationContexts& contexts = host::ActivationContexts::instance();
  ACTCTXW request{};
  EXPECT_EQ(CreateActCtxW(&request), INVALID_HANDLE_VALUE);
  request.cbSize = sizeof(request);
  request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  request.lpResourceName = MAKEINTRESOURCEW(2);
  EXPECT_EQ(CreateActCtxW(&request), INVALID_HANDLE_VALUE);
  request.hModule = reinterpret_cast<HMODULE>(&request);
  const HANDLE context = CreateActCtxW(&request);
  ULONG_PTR first = 0;
  ULONG_PTR second = 0;
  EXPECT_EQ(ActivateActCtx(context, &first), TRUE);
  EXPECT_EQ(ActivateActCtx(context, &second), TRUE);
  EXPECT_EQ(DeactivateActCtx(0, first), FALSE);
  EXPECT_EQ(DeactivateActCtx(0, second), TRUE);
  EXPECT_EQ(DeactivateActCtx(0, first), TRUE);
  EXPECT_EQ(DeactivateActCtx(0, first), FALSE);
  ReleaseActCtx(context);
  EXPECT_EQ(ActivateActCtx(context, &first), FALSE);
  EXPECT_EQ(contexts.existing(), 0U);
  EXPECT_EQ(contexts.active(), 0U);
}

}  // namespace
