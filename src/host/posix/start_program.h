// Starting programs.
#pragma once

#include <string>
#include <vector>

namespace orvik::host::posix {

// Starts a program apart from this terminal and doesn't wait; the process doesn't become a child of
// this one. The first word is the program: a path with a "/", or a name to be looked for in the
// folders of PATH. It reads nothing and its output is dropped, since this process's belongs to the
// transcript. False when it couldn't be started.
bool StartProgram(const std::vector<std::string>& words);

}  // namespace orvik::host::posix
