#include "host/posix/processes.h"

#include <dirent.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <charconv>
#include <csignal>
#include <memory>
#include <optional>
#include <string>

#include "host/posix/native_files.h"
#include "host/posix/unique_fd.h"

namespace orvik::host::posix {
namespace {

// The kernel cuts its names of processes to this length.
constexpr std::size_t kCutName = 15;

std::optional<std::uint32_t> NumberIn(std::string_view name) {
  std::uint32_t number = 0;
  const char* const end = name.data() + name.size();
  const auto [stop, error] = std::from_chars(name.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

// The name of a process's file; empty when it isn't a running program. A long name is completed
// from the command line, where interpreters put other things than the file, but never for a name
// that fits.
std::string NameOf(std::uint32_t id) {
  const std::string folder = "/proc/" + std::to_string(id);
  const std::string command = ReadNativeFile(folder + "/cmdline");
  if (command.empty()) return {};
  std::string name = ReadNativeFile(folder + "/comm");
  if (name.ends_with('\n')) name.pop_back();
  if (name.size() < kCutName) return name;
  const std::string first = command.c_str();
  const std::string whole = first.substr(first.find_last_of("/\\") + 1);
  return whole.starts_with(name) ? whole : name;
}

}  // namespace

std::vector<Process> PosixProcesses::Snapshot() {
  std::vector<Process> processes;
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir("/proc"), ::closedir);
  if (!folder) return processes;
  while (const dirent* const entry = ::readdir(folder.get())) {
    const auto id = NumberIn(entry->d_name);
    if (!id) continue;
    const std::string name = NameOf(*id);
    if (!name.empty()) processes.push_back({*id, FromUtf8(name)});
  }
  return processes;
}

bool PosixProcesses::Terminate(const Process& process) {
  if (process.id == 0) return false;
  // The handle stays with the process that has the number now, so the name is checked behind it.
  const UniqueFd handle(static_cast<int>(::syscall(SYS_pidfd_open, process.id, 0)));
  if (!handle || FromUtf8(NameOf(process.id)) != process.file_name) return false;
  return ::syscall(SYS_pidfd_send_signal, handle.get(), SIGKILL, nullptr, 0) == 0;
}

}  // namespace orvik::host::posix
