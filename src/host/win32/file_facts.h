// What the system knows of a file without opening its contents.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host/win32/windows_api.h"

namespace orvik::host::win32 {

// The attributes that the program knows; the system has more, which differ from volume to volume.
constexpr std::uint32_t kKnownAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                           FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_DIRECTORY |
                                           FILE_ATTRIBUTE_ARCHIVE;

struct FileFacts {
  std::uint32_t attributes = 0;
  std::uint64_t size = 0;
};

// True for an entry that stands for another file, as opposed to one that merely lies elsewhere,
// such as a file in the cloud.
bool IsLink(std::uint32_t attributes, std::uint32_t reparse_tag);

// The facts of what a path leads to, through links. Nothing when it leads nowhere.
std::optional<FileFacts> FactsBehindLink(const std::wstring& path);
// The facts of an existing path, also of a file that can't be opened. The path is in ANSI form.
std::optional<FileFacts> FactsOf(const std::string& path);

bool IsFolder(const std::string& path);
// True for an existing file or folder that is read-only.
bool IsReadOnly(const std::string& path);

}  // namespace orvik::host::win32
