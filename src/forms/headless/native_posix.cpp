#ifndef _WIN32

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "forms/headless/native.h"

namespace orvik::forms::headless {

namespace {

void WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

// The child: the command's output must not stand between the lines of the transcript.
[[noreturn]] void Become(const char* command) {
  const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
  dup2(nothing, STDIN_FILENO);
  dup2(STDERR_FILENO, STDOUT_FILENO);
  execl("/bin/sh", "sh", "-c", command, static_cast<char*>(nullptr));
  _exit(127);
}

}  // namespace

Platform ThisPlatform() { return Platform::kPosix; }

std::vector<std::string> Arguments(int argc, char** argv) {
  return argc < 1 ? std::vector<std::string>() : std::vector<std::string>(argv + 1, argv + argc);
}

void WriteOut(std::string_view bytes) { WriteAll(STDOUT_FILENO, bytes); }
void WriteError(std::string_view bytes) { WriteAll(STDERR_FILENO, bytes); }

std::optional<std::string> ReadAll(const std::string& file) {
  const bool standard = file == "-";
  const int handle = standard ? STDIN_FILENO : open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) return std::nullopt;
  std::string content;
  char block[1 << 16];
  ssize_t count = 0;
  do {
    count = read(handle, block, sizeof block);
    if (count > 0) content.append(block, static_cast<std::size_t>(count));
  } while (count > 0 || (count < 0 && errno == EINTR));
  if (!standard) close(handle);
  if (count < 0) return std::nullopt;
  return content;
}

bool RunInterpreter(const Text& command) {
  const std::string line = ToUtf8(command);
  const pid_t child = fork();
  if (child < 0) return false;
  if (child == 0) Become(line.c_str());
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return false;
  }
  return true;
}

}  // namespace orvik::forms::headless

#endif
