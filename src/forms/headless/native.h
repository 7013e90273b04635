// The few things that the headless program asks of its system directly.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "forms/headless/options.h"

namespace orvik::forms::headless {

Platform ThisPlatform();

// The arguments behind the program's name, in UTF-8.
std::vector<std::string> Arguments(int argc, char** argv);

// All bytes, to the standard handles; no line end is translated. Failures are dropped.
void WriteOut(std::string_view bytes);
void WriteError(std::string_view bytes);

// A whole file, or standard input for "-". Nothing when it can't be read.
std::optional<std::string> ReadAll(const std::string& file);

// Lets the system's command interpreter run a command and waits for its end. What the command
// writes goes to standard error. False when the interpreter didn't start.
bool RunInterpreter(const Text& command);

}  // namespace orvik::forms::headless
