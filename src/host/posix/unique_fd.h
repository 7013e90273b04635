// A file descriptor that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace orvik::host::posix {

class UniqueFd {
 public:
  UniqueFd() = default;
  explicit UniqueFd(int fd) : fd_(fd) {}
  UniqueFd(UniqueFd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  UniqueFd& operator=(UniqueFd&& other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }
  UniqueFd(const UniqueFd&) = delete;
  UniqueFd& operator=(const UniqueFd&) = delete;
  ~UniqueFd() { Close(); }

  int get() const { return fd_; }
  explicit operator bool() const { return fd_ >= 0; }

  // Closes at once. False when the system reports that something was lost on the way to the disk.
  bool Close() {
    const int fd = std::exchange(fd_, -1);
    return fd < 0 || ::close(fd) == 0;
  }

 private:
  int fd_ = -1;
};

}  // namespace orvik::host::posix
