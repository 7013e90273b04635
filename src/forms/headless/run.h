// A whole run of the program behind the script.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/headless/options.h"
#include "forms/headless/script.h"
#include "forms/headless/transcript.h"
#include "host/host.h"

namespace orvik::forms::headless {

// What a run is of: it gets the raw command line.
using Program = std::function<void(const Text&)>;

namespace exit_status {
constexpr int kDone = 0;
constexpr int kBadInput = 2;  // an option or the script
constexpr int kCalls = 3;
constexpr int kTime = 4;
}  // namespace exit_status

// Runs the program on a host to its end and writes the transcript. The answer is the exit status.
// Forms stay as the run left them; before another one call ForgetForms, while the host is still
// there for the files that they hold open.
int Play(const Options& options, const Script& script, const host::Host& host,
         const Program& program, const Transcript::Output& output);

// The same from the arguments of the process, on the system's host, with the standard handles.
int RunProcess(const std::vector<std::string>& arguments, const Program& program);

}  // namespace orvik::forms::headless
