// Small files of the host's own, by native paths.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace orvik::host::posix {

// Reads a whole file. False, with errno, when it can't be read; ENOENT for a missing one.
bool ReadNativeFile(const std::string& path, std::string& bytes, struct stat& status);
// The same for those who need no more, empty when it can't be read.
std::string ReadNativeFile(const std::string& path);

// Writes all bytes at the place where an open file is. False when not all went out.
bool WriteNative(int fd, std::string_view bytes);

// Makes a folder and those above it where they are missing. False when it isn't there afterwards.
bool MakeFolders(const std::string& path, mode_t mode = 0777);

// A variable of the process's own environment; the other value when it is missing or empty.
std::string VariableOr(const char* name, const std::string& otherwise);
// The user's home folder.
std::string HomeFolder();
// Where programs keep a user's data and a user's settings, as freedesktop.org describes it.
std::string DataHome();
std::string ConfigHome();

}  // namespace orvik::host::posix
