#include "host/posix/start_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "host/posix/unique_fd.h"

namespace orvik::host::posix {
namespace {

// In the process that becomes the program. Comes back only by ending it, with a byte in the pipe.
// Between fork and exec only plain system calls are allowed.
[[noreturn]] void Become(char* const* words, int pipe) {
  const int nothing = ::open("/dev/null", O_RDWR);
  for (int fd = STDIN_FILENO; fd <= STDERR_FILENO && nothing >= 0; ++fd) ::dup2(nothing, fd);
  ::signal(SIGPIPE, SIG_DFL);
  ::signal(SIGINT, SIG_DFL);
  ::signal(SIGXFSZ, SIG_DFL);
  ::execvp(words[0], words);
  const char failed = 1;
  [[maybe_unused]] const ssize_t told = ::write(pipe, &failed, 1);
  ::_exit(127);
}

}  // namespace

bool StartProgram(const std::vector<std::string>& words) {
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (const std::string& word : words) pointers.push_back(const_cast<char*>(word.c_str()));
  pointers.push_back(nullptr);
  int ends[2];
  if (words.empty() || ::pipe2(ends, O_CLOEXEC) != 0) return false;
  const UniqueFd reading(ends[0]);
  UniqueFd writing(ends[1]);
  const pid_t child = ::fork();
  if (child < 0) return false;
  if (child == 0) {
    ::setsid();
    const pid_t program = ::fork();
    if (program == 0) Become(pointers.data(), ends[1]);
    ::_exit(program < 0 ? 1 : 0);
  }
  writing.Close();
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) return false;
  // The pipe closes by itself when the program runs.
  char failed = 0;
  ssize_t told;
  do told = ::read(reading.get(), &failed, 1);
  while (told < 0 && errno == EINTR);
  return told == 0;
}

}  // namespace orvik::host::posix
