// Open files.
#include <algorithm>

#include "host/win32/ansi_text.h"
#include "host/win32/handles.h"
#include "host/win32/win32_file_system.h"

namespace orvik::host::win32 {
namespace {

constexpr DWORD kReadWrite = GENERIC_READ | GENERIC_WRITE;
// The largest part of one call; its length must fit 32 bits.
constexpr std::size_t kLargestPart = std::size_t{1} << 30;

OVERLAPPED At(std::int64_t position) {
  OVERLAPPED where = {};
  where.Offset = static_cast<DWORD>(position);
  where.OffsetHigh = static_cast<DWORD>(position >> 32);
  return where;
}

class Win32File : public File {
 public:
  explicit Win32File(UniqueHandle handle) : handle_(std::move(handle)) {}

  std::optional<std::int64_t> Length() override {
    LARGE_INTEGER length;
    if (!GetFileSizeEx(handle_.get(), &length)) return std::nullopt;
    return length.QuadPart;
  }

  std::optional<std::size_t> ReadAt(std::int64_t position, std::span<char> buffer) override {
    if (position < 0) return std::nullopt;
    std::size_t done = 0;
    while (done < buffer.size()) {
      OVERLAPPED where = At(position + static_cast<std::int64_t>(done));
      const auto part = static_cast<DWORD>(std::min(buffer.size() - done, kLargestPart));
      DWORD count = 0;
      if (!ReadFile(handle_.get(), buffer.data() + done, part, &count, &where) &&
          GetLastError() != ERROR_HANDLE_EOF) {
        return std::nullopt;
      }
      if (count == 0) break;
      done += count;
    }
    return done;
  }

  bool WriteAt(std::int64_t position, std::span<const char> bytes) override {
    if (position < 0) return false;
    std::size_t done = 0;
    while (done < bytes.size()) {
      OVERLAPPED where = At(position + static_cast<std::int64_t>(done));
      const auto part = static_cast<DWORD>(std::min(bytes.size() - done, kLargestPart));
      DWORD count = 0;
      if (!WriteFile(handle_.get(), bytes.data() + done, part, &count, &where)) return false;
      if (count == 0) return false;
      done += count;
    }
    return true;
  }

 private:
  UniqueHandle handle_;
};

UniqueHandle OpenWith(const std::string& path, DWORD access, DWORD share, DWORD disposition) {
  return Owned(CreateFileA(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                           nullptr));
}

// Refuses a read-only file for writing also where the system lets a privileged user through.
UniqueHandle OpenForWriting(const std::string& path, DWORD share) {
  UniqueHandle handle = OpenWith(path, kReadWrite, share, OPEN_ALWAYS);
  BY_HANDLE_FILE_INFORMATION facts;
  if (handle && GetFileInformationByHandle(handle.get(), &facts) &&
      (facts.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) {
    handle.reset();
  }
  return handle;
}

UniqueHandle OpenAs(const std::string& path, OpenMode mode) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  if (mode == OpenMode::kRead) return OpenWith(path, GENERIC_READ, kShareAll, OPEN_EXISTING);
  const DWORD share =
      mode == OpenMode::kHold ? FILE_SHARE_READ : FILE_SHARE_READ | FILE_SHARE_WRITE;
  UniqueHandle handle = OpenForWriting(path, share);
  // A read-only file can still be read, and held against writers and removal.
  if (!handle) handle = OpenWith(path, GENERIC_READ, share, OPEN_EXISTING);
  return handle;
}

}  // namespace

std::unique_ptr<File> Win32FileSystem::Open(const Text& path, OpenMode mode) {
  const auto ansi = AnsiPath(path);
  if (!ansi || ansi->ends_with('\\') || ansi->ends_with('/')) return nullptr;
  UniqueHandle handle = OpenAs(*ansi, mode);
  if (!handle) return nullptr;
  return std::make_unique<Win32File>(std::move(handle));
}

}  // namespace orvik::host::win32
