#include "forms/headless/run.h"

#include "base/failure.h"
#include "forms/headless/headless_front_end.h"
#include "forms/headless/limited_file_system.h"
#include "forms/headless/native.h"
#include "forms/headless/pick_host.h"
#include "forms/headless/run_end.h"
#include "forms/headless/scripted_services.h"

namespace orvik::forms::headless {

namespace {

struct End {
  std::string_view reason;
  int status;
};
End Describe(RunEnd end) {
  switch (end) {
    case RunEnd::kShutdown:
      return {"shutdown", exit_status::kDone};
    case RunEnd::kClosed:
      return {"closed", exit_status::kDone};
    case RunEnd::kReturned:
      return {"returned", exit_status::kDone};
    case RunEnd::kScript:
      return {"script", exit_status::kDone};
    case RunEnd::kCalls:
      return {"calls", exit_status::kCalls};
    case RunEnd::kTime:
      return {"time", exit_status::kTime};
  }
  return {};
}

// The host as the options change it: what lies between the program and the system.
class ScriptedHost {
 public:
  ScriptedHost(const Options& options, const host::Host& real, const Clock& clock, Answers& answers,
               Transcript& transcript)
      : programs_(options.run_programs ? Programs::kReal : Programs::kWritten),
        locks_(options.locks, clock),
        locked_(*real.files, locks_),
        limited_(locks_.empty() ? *real.files : locked_, options.max_calls, clock),
        shell_(real, locks_, answers, transcript, programs_),
        processes_(*real.processes, transcript, programs_),
        system_(*real.system, clock, options.now, options.environment) {
    // Nothing stands in the way of a run without locks and limits.
    host::FileSystem* files = locks_.empty() ? real.files : &locked_;
    if (options.max_calls || options.max_time) files = &limited_;
    host::Install({files, real.registry, &shell_, &processes_, &system_});
  }

 private:
  const Programs programs_;
  const Locks locks_;
  LockedFileSystem locked_;
  LimitedFileSystem limited_;
  ScriptedShell shell_;
  ScriptedProcesses processes_;
  ScriptedSystem system_;
};

bool WriteRegistry(host::Registry& registry, const std::vector<RegistryEntry>& entries) {
  for (const RegistryEntry& entry : entries) {
    const host::Registry::Handle key = registry.CreateKey(entry.root, entry.path);
    const bool written =
        registry.SetValue(key, entry.value.name, host::kTextValue, entry.value.data);
    registry.CloseKey(key);
    if (!written) return false;
  }
  return true;
}

int Refuse(const std::string& reason) {
  WriteError("orvik-headless: " + reason + "\n");
  return exit_status::kBadInput;
}

}  // namespace

int Play(const Options& options, const Script& script, const host::Host& host,
         const Program& program, const Transcript::Output& output) {
  Transcript transcript(output);
  Clock clock(options.real_time ? Clock::Pace::kReal : Clock::Pace::kVirtual, options.max_time);
  Answers answers;
  const ScriptedHost scripted(options, host, clock, answers, transcript);
  HeadlessFrontEnd front_end(script, answers, clock, transcript,
                             options.trace ? Tracing::kOn : Tracing::kOff);
  forms::Install(front_end);
  End end = {};
  try {
    Attempt([&] { program(options.line); });
    front_end.Run();
  } catch (const RunEnded& ended) {
    end = Describe(ended.end);
  }
  transcript.Begin("end").Name("reason").String(end.reason);
  transcript.End();
  return end.status;
}

int RunProcess(const std::vector<std::string>& arguments, const Program& program) {
  std::string reason;
  const auto options = ParseOptions(arguments, ThisPlatform(), reason);
  if (!options) return Refuse(reason);
  Script script;
  if (options->script) {
    const auto text = ReadAll(*options->script);
    if (!text) return Refuse("can't read the script " + *options->script);
    auto parsed = ParseScript(*text, reason);
    if (!parsed) return Refuse(reason);
    script = std::move(*parsed);
  }
  const auto host = PickHost(*options);
  const host::Host services = host->services();
  if (!WriteRegistry(*services.registry, options->registry_entries)) {
    return Refuse("can't write a value of --reg");
  }
  return Play(*options, script, services, program, WriteOut);
}

}  // namespace orvik::forms::headless
