// A folder of its own for each test, on the real Windows (or Wine) below.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "host/win32/win32_host.h"
#include "host/win32/windows_api.h"

namespace orvik::host::win32 {

// Makes an empty folder before a test, removes it afterwards with all that is in it.
class HostTest : public testing::Test {
 protected:
  void SetUp() override {
    wchar_t temp[MAX_PATH];
    const DWORD length = GetTempPathW(MAX_PATH, temp);
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string(info->test_suite_name()) + "-" + info->name();
    folder_ = std::wstring(temp, length) + L"orvik-" + std::wstring(name.begin(), name.end());
    RemoveAll(folder_);
    ASSERT_TRUE(CreateDirectoryW(folder_.c_str(), nullptr));
  }
  void TearDown() override { RemoveAll(folder_); }

  FileSystem& files() { return *host_.services().files; }
  Shell& shell() { return *host_.services().shell; }
  Registry& keys() { return *host_.services().registry; }
  Processes& processes() { return *host_.services().processes; }
  System& system() { return *host_.services().system; }

  // The full path of a name in the test's folder.
  Text In(const Text& name) const { return Text(folder_.begin(), folder_.end()) + u"\\" + name; }
  static std::wstring Wide(const Text& text) { return {text.begin(), text.end()}; }

  // Makes a file by the system's own wide services, so that names of any kind can be made.
  Text Make(const Text& name, const std::string& content = "") const {
    const Text path = In(name);
    const HANDLE file = CreateFileW(Wide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
    DWORD written = 0;
    WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    CloseHandle(file);
    return path;
  }
  Text MakeFolder(const Text& name) const {
    EXPECT_TRUE(CreateDirectoryW(Wide(In(name)).c_str(), nullptr));
    return In(name);
  }

  // The whole content of a file by the interface; "<none>" when it can't be read.
  std::string Content(const Text& path) {
    const auto file = files().Open(path, OpenMode::kRead);
    if (!file) return "<none>";
    std::array<char, 4096> buffer;
    const auto count = file->ReadAt(0, buffer);
    return count ? std::string(buffer.data(), *count) : "<none>";
  }

  static void RemoveAll(const std::wstring& folder) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
      const std::wstring name = data.cFileName;
      if (name == L"." || name == L"..") continue;
      const std::wstring path = folder + L"\\" + name;
      SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
      if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        RemoveAll(path);
      } else {
        DeleteFileW(path.c_str());
      }
    } while (FindNextFileW(search, &data));
    FindClose(search);
    RemoveDirectoryW(folder.c_str());
  }

 private:
  Win32Host host_;
  std::wstring folder_;
};

}  // namespace orvik::host::win32
