// DOS attributes on a system that has none of its own.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string_view>

namespace orvik::host::posix {

// They live where Samba and Wine keep them: in the extended attribute "user.DOSATTRIB", as a text
// such as "0x3". What its owner may not write is read-only as well. A file without any is plain:
// the archive bit isn't set by default.

// The attributes that such a text tells: the number in front of whatever Samba puts behind it.
// Anything else tells none.
std::uint32_t ParseAttributes(std::string_view text);

// The attributes of what a path leads to, whose status is known. Never fails: what can't be read
// isn't set.
std::uint32_t AttributesOf(const char* path, const struct stat& status);
std::uint32_t AttributesOf(int fd, const struct stat& status);

// Sets them, the folder bit aside. False when the owner or the disk doesn't let it; a disk without
// extended attributes can keep read-only, and isn't blamed for the archive bit.
bool SetAttributesOf(const char* path, const struct stat& status, std::uint32_t attributes);

// Gives an open file, which may be written and has the attributes told, those of another one.
void PassAttributesOn(int from, const struct stat& from_status, int to,
                      const struct stat& to_status, std::uint32_t present);

}  // namespace orvik::host::posix
