// The process that the robot works at.
#pragma once

#include <cstdint>
#include <optional>

#include "robot/windows_api.h"

namespace orvik::robot {

class Program {
 public:
  // Starts the file `path` with `line` behind its name exactly as it stands. Nothing when it can't
  // be started.
  static std::optional<Program> Start(const Text& path, const Text& line);
  Program(Program&& other) noexcept;
  Program& operator=(Program&&) = delete;
  ~Program();

  DWORD id() const { return id_; }
  HANDLE process() const { return process_; }
  bool Alive() const;
  // Processor time used so far, in units of 100 ns.
  std::uint64_t BusyTime() const;
  void Kill() const;

 private:
  Program(HANDLE process, DWORD id) : process_(process), id_(id) {}

  HANDLE process_;
  DWORD id_;
};

}  // namespace orvik::robot
