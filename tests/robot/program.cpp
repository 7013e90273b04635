#include "robot/program.h"

#include <utility>

namespace orvik::robot {

std::optional<Program> Program::Start(const Text& path, const Text& line) {
  Text command = u"\"" + path + u"\"";
  if (!line.empty()) command += u" " + line;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(Wide(path), reinterpret_cast<wchar_t*>(command.data()), nullptr, nullptr,
                     FALSE, 0, nullptr, nullptr, &startup, &started) == 0) {
    return std::nullopt;
  }
  CloseHandle(started.hThread);
  return Program(started.hProcess, started.dwProcessId);
}

Program::Program(Program&& other) noexcept
    : process_(std::exchange(other.process_, nullptr)), id_(other.id_) {}

Program::~Program() {
  if (process_ != nullptr) CloseHandle(process_);
}

bool Program::Alive() const { return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT; }

std::uint64_t Program::BusyTime() const {
  FILETIME created, ended, kernel, user;
  if (GetProcessTimes(process_, &created, &ended, &kernel, &user) == 0) return 0;
  const auto count = [](const FILETIME& time) {
    return (std::uint64_t{time.dwHighDateTime} << 32U) + time.dwLowDateTime;
  };
  return count(kernel) + count(user);
}

void Program::Kill() const {
  TerminateProcess(process_, 0);
  WaitForSingleObject(process_, INFINITE);
}

}  // namespace orvik::robot
