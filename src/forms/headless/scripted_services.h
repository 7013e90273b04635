// Shell, processes and system as a scripted run shows them to the program.
#pragma once

#include <vector>

#include "forms/headless/answers.h"
#include "forms/headless/clock.h"
#include "forms/headless/locks.h"
#include "forms/headless/transcript.h"
#include "host/host.h"

namespace orvik::forms::headless {

// Whether the programs that the program starts, and the processes that it ends, are real.
enum class Programs { kWritten, kReal };

// The shell's questions are answered by the script; what it does is written down.
class ScriptedShell : public host::Shell {
 public:
  ScriptedShell(const host::Host& host, const Locks& locks, Answers& answers,
                Transcript& transcript, Programs programs)
      : shell_(*host.shell),
        files_(*host.files),
        locks_(locks),
        answers_(answers),
        transcript_(transcript),
        programs_(programs) {}

  bool Recycle(const Text& path, host::Questions questions) override;
  std::optional<host::Shortcut> ReadShortcut(const Text& path) override;
  bool WriteShortcut(const Text& path, const host::Shortcut& shortcut) override;
  bool Start(const Text& command_line, host::WindowState window) override;

 private:
  host::Shell& shell_;
  host::FileSystem& files_;
  const Locks& locks_;
  Answers& answers_;
  Transcript& transcript_;
  const Programs programs_;
};

class ScriptedProcesses : public host::Processes {
 public:
  ScriptedProcesses(host::Processes& inner, Transcript& transcript, Programs programs)
      : inner_(inner), transcript_(transcript), programs_(programs) {}

  std::vector<host::Process> Snapshot() override { return inner_.Snapshot(); }
  bool Terminate(const host::Process& process) override;

 private:
  host::Processes& inner_;
  Transcript& transcript_;
  const Programs programs_;
};

// The clock is the run's, the environment the one of the options where they give one.
class ScriptedSystem : public host::System {
 public:
  ScriptedSystem(host::System& inner, const Clock& clock, std::optional<host::DateTime> now,
                 std::vector<Text> environment)
      : inner_(inner),
        clock_(clock),
        start_(now ? *now : inner.Now()),
        environment_(std::move(environment)) {}

  std::optional<Text> EnvironmentEntry(int index) override;
  int PlatformId() override { return inner_.PlatformId(); }
  Text SystemFolder() override { return inner_.SystemFolder(); }
  Text OwnPath() override { return inner_.OwnPath(); }
  host::MemoryStatus Memory() override { return inner_.Memory(); }
  host::DateTime Now() override;
  std::uint32_t Ticks() override { return static_cast<std::uint32_t>(clock_.Now()); }
  const CodePage& AnsiPage() override { return inner_.AnsiPage(); }
  const CodePage& OemPage() override { return inner_.OemPage(); }

 private:
  host::System& inner_;
  const Clock& clock_;
  const host::DateTime start_;
  const std::vector<Text> environment_;
};

}  // namespace orvik::forms::headless
