// What the size monitor measures.
#pragma once

#include <cstdint>

#include "base/text.h"
#include "host/file_system.h"

namespace orvik::FreeMemory {

struct MemoryStatus {
  std::int32_t load_percent = 0;
  std::int32_t physical_kilobytes = 0;
  std::int32_t virtual_kilobytes = 0;  // of the address space; nobody reads it
};

// Throws Failure where 32 bits don't hold an amount.
MemoryStatus GetMemoryStatus();

}  // namespace orvik::FreeMemory

namespace orvik::mdlSupport {

// The bytes of a drive and those of it that are free. Zeros for a drive that isn't ready.
host::DiskSpace GetDiskSpace(const Text& path);

// The bytes of all files below a folder. 0 for a missing or unreadable one, and from 2 GiB on.
std::int32_t GetFolderSize(const Text& path);

}  // namespace orvik::mdlSupport
