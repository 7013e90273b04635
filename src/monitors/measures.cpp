#include "monitors/measures.h"

#include "base/checked.h"
#include "host/host.h"

namespace orvik {

namespace FreeMemory {

MemoryStatus GetMemoryStatus() {
  const auto kilobytes = [](std::uint64_t bytes) {
    return RoundToInt32(static_cast<double>(bytes) / 1024.0);
  };
  const host::MemoryStatus memory = host::TheSystem().Memory();
  MemoryStatus status;
  status.load_percent = static_cast<std::int32_t>(memory.load_percent);
  status.physical_kilobytes = kilobytes(memory.physical_bytes);
  // The address space of a 64-bit process has more kilobytes than fit.
  Attempt([&] { status.virtual_kilobytes = kilobytes(memory.virtual_bytes); });
  return status;
}

}  // namespace FreeMemory

namespace mdlSupport {

host::DiskSpace GetDiskSpace(const Text& path) {
  return host::Files().Space(path).value_or(host::DiskSpace{});
}

std::int32_t GetFolderSize(const Text& path) {
  std::int32_t size = 0;
  Attempt([&] { size = Narrowed<std::int32_t>(host::Files().FolderSize(path).value_or(0)); });
  return size;
}

}  // namespace mdlSupport

}  // namespace orvik
