// Files and folders as the operating system gives them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "base/text.h"

namespace orvik::host {

// File attributes, as the bits of Windows.
namespace attribute {
constexpr std::uint32_t kReadOnly = 1;
constexpr std::uint32_t kHidden = 2;
constexpr std::uint32_t kSystem = 4;
constexpr std::uint32_t kFolder = 16;
constexpr std::uint32_t kArchive = 32;
}  // namespace attribute

// The longest path that any operation takes, in characters. A longer one is refused like a missing
// one, on every system alike. Folders to be made must leave room for a short name behind them.
constexpr std::size_t kLongestPath = 259;
constexpr std::size_t kLongestNewFolder = 247;

// One entry of a folder.
struct FindRecord {
  std::uint32_t attributes = 0;
  std::uint32_t size_high = 0;
  std::uint32_t size_low = 0;
  Text name;  // bare; characters outside the ANSI code page stand as "?"
};

// What a search must fill in beside the names. Everything else may stay 0, where it would cost a
// call for each entry.
enum class Details {
  kFolderBit,  // the bit attribute::kFolder alone is right
  kSizes,      // that bit and both size words of files
  kAll,        // all attributes and the sizes
};

// An enumeration in progress. It ends with the object.
class Search {
 public:
  virtual ~Search() = default;
  // Puts the next entry into the record. False, with the record untouched, at the end.
  virtual bool Next(FindRecord& record) = 0;
};

// An open file. It closes with the object.
class File {
 public:
  virtual ~File() = default;
  virtual std::optional<std::int64_t> Length() = 0;
  // Reads up to buffer.size() bytes from a position counted from 0. The answer is the number of
  // bytes read, fewer at the end of the file; nothing when reading failed.
  virtual std::optional<std::size_t> ReadAt(std::int64_t position, std::span<char> buffer) = 0;
  // Writes all the bytes at a position counted from 0. False when not all went out.
  virtual bool WriteAt(std::int64_t position, std::span<const char> bytes) = 0;
};

enum class OpenMode {
  kRead,             // an existing file, for reading, beside other readers and writers
  kReadWriteCreate,  // for both, made empty when missing; only for reading where writing is refused
  kHold,             // made empty when missing; no other process can write or delete it meanwhile
};

struct DiskSpace {
  std::uint64_t total = 0;
  std::uint64_t free = 0;  // of the whole drive, not only the caller's share
};

// The number that the system has for the kind of a drive.
namespace drive_type {
constexpr int kUnknown = 0;
constexpr int kNoRoot = 1;
constexpr int kRemovable = 2;
constexpr int kFixed = 3;
constexpr int kRemote = 4;
constexpr int kCdRom = 5;
constexpr int kRamDisk = 6;
}  // namespace drive_type

// The file system. Paths have backslashes and a drive letter ("T:\a\b"), a share in front
// ("\\server\share\a"), or are relative to the current folder. Names are compared without letter
// case. Names travel through the ANSI code page: a name that it can't express is listed with
// question marks and can't be reached. No operation throws; a failure is false or nothing, whatever
// its cause.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Begins to list what matches a path whose last component is a mask: "*" any run of characters,
  // "?" one character, "*.*" every name; a plain name matches itself. Puts the first entry into the
  // record. No object, with the record untouched, when nothing matches, the folder can't be read,
  // or nothing stands behind the last backslash. Folders but the root of a drive hold "." and
  // ".." too, in front of all others. Links count as what they point to.
  virtual std::unique_ptr<Search> FindFirst(const Text& path_and_mask, Details details,
                                            FindRecord& record) = 0;

  // True for files and folders alike, with or without a closing backslash.
  virtual bool PathExists(const Text& path) = 0;
  virtual std::optional<std::uint32_t> Attributes(const Text& path) = 0;
  // Sets read-only, hidden, system and archive as given, takes off those not given. Works on
  // folders too; the folder bit itself is ignored.
  virtual bool SetAttributes(const Text& path, std::uint32_t attributes) = 0;
  // The length of a file in bytes, also of one that can't be opened. Nothing for a folder.
  virtual std::optional<std::int64_t> FileLength(const Text& path) = 0;

  // Makes one level. False when it exists.
  virtual bool CreateFolder(const Text& path) = 0;
  // Removes one empty folder. False for a read-only one.
  virtual bool RemoveFolder(const Text& path) = 0;
  // Copies a whole file with its attributes and its time of modification. A target that is
  // read-only, in use or a folder is not replaced.
  virtual bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) = 0;
  // Moves or renames a file, or a folder within its volume. Never copies: a move of a file to
  // another volume fails.
  virtual bool MoveFile(const Text& source, const Text& target, bool replace) = 0;
  // Removes a file for good. False for a folder, a read-only file and one in use.
  virtual bool DeleteFile(const Text& path) = 0;
  // No object when the file can't be opened so.
  virtual std::unique_ptr<File> Open(const Text& path, OpenMode mode) = 0;

  // The 8.3 name of an existing file, without its folder.
  virtual std::optional<Text> ShortName(const Text& path) = 0;
  // The bytes of all files below a folder. Nothing when it is missing or can't be read.
  virtual std::optional<std::uint64_t> FolderSize(const Text& path) = 0;

  // Drives: "C:" or "C:\".
  virtual int DriveType(const Text& drive) = 0;
  virtual std::optional<DiskSpace> Space(const Text& path) = 0;
  virtual std::optional<Text> VolumeLabel(const Text& drive) = 0;
};

}  // namespace orvik::host
