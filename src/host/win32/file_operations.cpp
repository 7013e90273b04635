// Whole files and folders, one call of the system to an operation. Checks in front of a call stand
// where systems that run Windows programs are known to be laxer than Windows itself.
#include "host/win32/ansi_text.h"
#include "host/win32/file_facts.h"
#include "host/win32/win32_file_system.h"

namespace orvik::host::win32 {
namespace {

bool EndsInBackslash(const std::string& path) {
  return path.ends_with('\\') || path.ends_with('/');
}

// The path of something that can't be a folder.
std::optional<std::string> FilePath(const Text& path) {
  auto ansi = AnsiPath(path);
  if (ansi && EndsInBackslash(*ansi)) ansi.reset();
  return ansi;
}

bool CanBeReplaced(const std::string& target) {
  const auto facts = FactsOf(target);
  return !facts || (facts->attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

}  // namespace

bool Win32FileSystem::PathExists(const Text& path) {
  const auto ansi = AnsiPath(path);
  if (!ansi) return false;
  return EndsInBackslash(*ansi) ? IsFolder(*ansi) : PathFileExistsA(ansi->c_str()) != FALSE;
}

std::optional<std::uint32_t> Win32FileSystem::Attributes(const Text& path) {
  const auto ansi = AnsiPath(path);
  if (!ansi) return std::nullopt;
  const auto facts = FactsOf(*ansi);
  if (!facts) return std::nullopt;
  const bool is_folder = (facts->attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (EndsInBackslash(*ansi) && !is_folder) return std::nullopt;
  return facts->attributes & kKnownAttributes;
}

bool Win32FileSystem::SetAttributes(const Text& path, std::uint32_t attributes) {
  const auto ansi = AnsiPath(path);
  if (!ansi || (EndsInBackslash(*ansi) && !IsFolder(*ansi))) return false;
  const DWORD settable = attributes & kKnownAttributes & ~DWORD{FILE_ATTRIBUTE_DIRECTORY};
  return SetFileAttributesA(ansi->c_str(), settable) != FALSE;
}

std::optional<std::int64_t> Win32FileSystem::FileLength(const Text& path) {
  const auto ansi = FilePath(path);
  const auto facts = ansi ? FactsOf(*ansi) : std::nullopt;
  if (!facts || (facts->attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
  return static_cast<std::int64_t>(facts->size);
}

bool Win32FileSystem::CreateFolder(const Text& path) {
  const auto ansi = AnsiPath(path);
  if (!ansi || path.size() > kLongestNewFolder) return false;
  return CreateDirectoryA(ansi->c_str(), nullptr) != FALSE;
}

bool Win32FileSystem::RemoveFolder(const Text& path) {
  const auto ansi = AnsiPath(path);
  return ansi && !IsReadOnly(*ansi) && RemoveDirectoryA(ansi->c_str()) != FALSE;
}

bool Win32FileSystem::CopyFile(const Text& source, const Text& target, bool fail_if_exists) {
  const auto from = FilePath(source);
  const auto to = FilePath(target);
  if (!from || !to || (!fail_if_exists && !CanBeReplaced(*to))) return false;
  return CopyFileA(from->c_str(), to->c_str(), fail_if_exists) != FALSE;
}

bool Win32FileSystem::MoveFile(const Text& source, const Text& target, bool replace) {
  const auto from = AnsiPath(source);
  const auto to = AnsiPath(target);
  if (!from || !to || (EndsInBackslash(*from) && !IsFolder(*from))) return false;
  // A file can change the letter case of its own name, read-only or not. A folder replaces nothing.
  if (replace && !EqualNoCase(source, target) &&
      (!CanBeReplaced(*to) || (IsFolder(*from) && FactsOf(*to)))) {
    return false;
  }
  return MoveFileExA(from->c_str(), to->c_str(), replace ? MOVEFILE_REPLACE_EXISTING : 0) != FALSE;
}

bool Win32FileSystem::DeleteFile(const Text& path) {
  const auto ansi = FilePath(path);
  return ansi && !IsReadOnly(*ansi) && DeleteFileA(ansi->c_str()) != FALSE;
}

std::optional<Text> Win32FileSystem::ShortName(const Text& path) {
  const auto ansi = FilePath(path);
  char buffer[MAX_PATH + 1];
  const DWORD length = ansi ? GetShortPathNameA(ansi->c_str(), buffer, sizeof buffer) : 0;
  if (length == 0 || length >= sizeof buffer || IsFolder(*ansi)) return std::nullopt;
  return FromAnsi(PathFindFileNameA(buffer));
}

}  // namespace orvik::host::win32
