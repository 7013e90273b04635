#include "host/posix/system.h"

#include <time.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>

#include "host/posix/native_files.h"

namespace orvik::host::posix {
namespace {

// The address space of a process, which no file tells.
constexpr std::uint64_t kVirtualBytes = std::uint64_t{1} << 47;

// The bytes of a line such as "MemTotal:  16384 kB"; 0 when it is missing.
std::uint64_t BytesIn(const std::string& lines, const std::string& name) {
  const std::size_t at = ("\n" + lines).find("\n" + name + ":");
  if (at == std::string::npos) return 0;
  return std::strtoull(lines.c_str() + at + name.size() + 1, nullptr, 10) * 1024;
}

}  // namespace

PosixSystem::PosixSystem(std::vector<Text> environment, const DriveMap& drives, int code_page,
                         int oem_page)
    : environment_(std::move(environment)),
      drives_(drives),
      ansi_(CodePage::Numbered(code_page)),
      oem_(CodePage::Numbered(oem_page)) {}

std::optional<Text> PosixSystem::EnvironmentEntry(int index) {
  if (index < 1 || static_cast<std::size_t>(index) > environment_.size()) return std::nullopt;
  return environment_[static_cast<std::size_t>(index) - 1];
}

Text PosixSystem::SystemFolder() {
  constexpr TextView kName = u"windir=";
  for (const Text& entry : environment_) {
    if (EqualNoCase(TextView(entry).substr(0, kName.size()), kName)) {
      return entry.substr(kName.size()) + u"\\system32";
    }
  }
  return u"C:\\Windows\\system32";
}

Text PosixSystem::OwnPath() {
  char path[PATH_MAX];
  const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
  return length > 0 ? drives_.DriveForm({path, static_cast<std::size_t>(length)}) : Text();
}

MemoryStatus PosixSystem::Memory() {
  const std::string lines = ReadNativeFile("/proc/meminfo");
  MemoryStatus memory;
  memory.physical_bytes = BytesIn(lines, "MemTotal");
  memory.virtual_bytes = kVirtualBytes;
  const std::uint64_t available = BytesIn(lines, "MemAvailable");
  if (memory.physical_bytes > 0 && available <= memory.physical_bytes) {
    const std::uint64_t used = memory.physical_bytes - available;
    memory.load_percent = static_cast<std::uint32_t>(used * 100 / memory.physical_bytes);
  }
  return memory;
}

DateTime PosixSystem::Now() {
  const time_t now = ::time(nullptr);
  struct tm local = {};
  ::localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

std::uint32_t PosixSystem::Ticks() {
  struct timespec now = {};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint32_t>(now.tv_sec * 1000 + now.tv_nsec / 1'000'000);
}

}  // namespace orvik::host::posix
