#include "host/posix/file_system.h"

#include "host/posix/attributes.h"
#include "host/posix/change_names.h"
#include "host/posix/copy_file.h"
#include "host/posix/open_file.h"
#include "host/posix/short_name.h"
#include "host/posix/volumes.h"

namespace orvik::host::posix {

std::unique_ptr<Search> PosixFileSystem::FindFirst(const Text& path_and_mask, Details details,
                                                   FindRecord& record) {
  return searcher_.FindFirst(path_and_mask, details, record);
}

bool PosixFileSystem::PathExists(const Text& path) { return finder_.Look(path).has_value(); }

std::optional<std::uint32_t> PosixFileSystem::Attributes(const Text& path) {
  const std::optional<Entry> entry = finder_.Look(path);
  if (!entry) return std::nullopt;
  return AttributesOf(entry->path.c_str(), entry->status);
}

bool PosixFileSystem::SetAttributes(const Text& path, std::uint32_t attributes) {
  const std::optional<Entry> entry = finder_.Look(path);
  return entry && !entry->dangling &&
         SetAttributesOf(entry->path.c_str(), entry->status, attributes);
}

std::optional<std::int64_t> PosixFileSystem::FileLength(const Text& path) {
  const std::optional<Entry> entry = finder_.Look(path);
  if (!entry || entry->IsFolder()) return std::nullopt;
  return entry->IsFile() ? entry->status.st_size : 0;
}

bool PosixFileSystem::CreateFolder(const Text& path) { return CreateFolderAt(finder_, path); }

bool PosixFileSystem::RemoveFolder(const Text& path) { return RemoveFolderAt(finder_, path); }

bool PosixFileSystem::CopyFile(const Text& source, const Text& target, bool fail_if_exists) {
  return CopyOne(finder_, source, target, fail_if_exists);
}

bool PosixFileSystem::MoveFile(const Text& source, const Text& target, bool replace) {
  return MoveEntry(finder_, source, target, replace);
}

bool PosixFileSystem::DeleteFile(const Text& path) { return DeleteFileAt(finder_, path); }

std::unique_ptr<File> PosixFileSystem::Open(const Text& path, OpenMode mode) {
  return OpenFile(finder_, path, mode);
}

std::optional<Text> PosixFileSystem::ShortName(const Text& path) {
  const std::optional<Entry> entry = finder_.Look(path);
  if (!entry || entry->IsFolder()) return std::nullopt;
  Text name;
  codec_.AppendListed(entry->path.Leaf(), name);
  if (FitsShortName(name)) return ToUpper(name);
  const std::size_t folder_end = path.find_last_of(u"\\/:");
  std::vector<Text> names;
  FindRecord record;
  const Text all = path.substr(0, folder_end + 1) + u"*";
  if (const auto search = FindFirst(all, Details::kFolderBit, record)) {
    do names.push_back(record.name);
    while (search->Next(record));
  }
  return ShortNameAmong(name, names);
}

std::optional<std::uint64_t> PosixFileSystem::FolderSize(const Text& path) {
  return SizeOfFolder(finder_, reader_, path);
}

int PosixFileSystem::DriveType(const Text& drive) { return drives_.TypeOf(drive); }

std::optional<DiskSpace> PosixFileSystem::Space(const Text& path) { return SpaceAt(finder_, path); }

std::optional<Text> PosixFileSystem::VolumeLabel(const Text& drive) {
  const std::optional<Entry> entry = finder_.Look(drive);
  if (!entry || !entry->path.IsRoot()) return std::nullopt;
  return Text();
}

}  // namespace orvik::host::posix
