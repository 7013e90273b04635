#include "host/win32/win32_shell.h"

#include "host/win32/ansi_text.h"
#include "host/win32/com_pointer.h"
#include "host/win32/handles.h"

namespace orvik::host::win32 {
namespace {

// The full path, closed by the two zeros of a list of one. A relative path would make the shell
// delete for good, without a word.
std::string DoublyTerminated(const std::string& path) {
  char full[MAX_PATH + 1];
  const DWORD length = GetFullPathNameA(path.c_str(), sizeof full, full, nullptr);
  if (length == 0 || length >= sizeof full) return {};
  std::string list(full, length);
  while (list.ends_with('\\')) list.pop_back();
  return list + '\0';
}

// Drives of other kinds have no bin, and what is deleted there is gone.
bool HasBin(const std::string& full_path) {
  return full_path.size() > 2 && full_path[1] == ':' &&
         GetDriveTypeA((full_path.substr(0, 2) + '\\').c_str()) == DRIVE_FIXED;
}

FILEOP_FLAGS FlagsFor(Questions questions) {
  // Where the bin refuses, the user is to be asked before anything is lost.
  constexpr FILEOP_FLAGS kAsked = FOF_ALLOWUNDO | FOF_WANTNUKEWARNING;
  constexpr FILEOP_FLAGS kSilent = kAsked | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
  return questions == Questions::kAsked ? kAsked : kSilent;
}

}  // namespace

Win32Shell::Win32Shell() = default;
Win32Shell::~Win32Shell() = default;

void Win32Shell::NeedCom() {
  if (!com_) com_ = std::make_unique<ComApartment>();
}

bool Win32Shell::Recycle(const Text& path, Questions questions) {
  const auto ansi = AnsiPath(path);
  if (!ansi || !PathFileExistsA(ansi->c_str())) return false;
  const std::string list = DoublyTerminated(*ansi);
  if (list.empty() || (questions == Questions::kSilent && !HasBin(list))) return false;
  SHFILEOPSTRUCTA operation = {};
  operation.wFunc = FO_DELETE;
  operation.pFrom = list.c_str();
  operation.fFlags = FlagsFor(questions);
  if (SHFileOperationA(&operation) != 0 || operation.fAnyOperationsAborted) return false;
  return !PathFileExistsA(ansi->c_str());
}

bool Win32Shell::Start(const Text& command_line, WindowState window) {
  std::string line = ToAnsi(TextView(command_line).substr(0, command_line.find(u'\0')));
  if (line.empty()) return false;
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = window == WindowState::kMinimised ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &process)) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

}  // namespace orvik::host::win32
