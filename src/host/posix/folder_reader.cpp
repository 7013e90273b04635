#include "host/posix/folder_reader.h"

#include <dirent.h>
#include <fcntl.h>

#include <cstddef>

namespace orvik::host::posix {
namespace {
constexpr std::size_t kBufferBytes = std::size_t{128} * 1024;
}

FolderReader::FolderReader() : buffer_(std::make_unique<char[]>(kBufferBytes)) {}

UniqueFd FolderReader::Open(const std::string& folder) {
  return UniqueFd(::open(folder.empty() ? "/" : folder.c_str(),
                         O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK));
}

long FolderReader::Fill(const UniqueFd& folder) {
  return ::getdents64(folder.get(), buffer_.get(), kBufferBytes);
}

FolderReader::Entry FolderReader::EntryAt(long at) const {
  const auto* const entry = reinterpret_cast<const dirent64*>(buffer_.get() + at);
  return {entry->d_name, entry->d_type, entry->d_reclen};
}

}  // namespace orvik::host::posix
