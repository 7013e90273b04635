#include "host/posix/registry_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "host/posix/native_files.h"
#include "host/posix/unique_fd.h"

namespace orvik::host::posix {
namespace {

// A process holds the lock for less than a millisecond; one that is stopped may hold it for ever.
constexpr int kLockAttempts = 500;
constexpr useconds_t kLockPause = 10'000;

bool IsSameState(const struct stat& a, const struct stat& b) {
  return a.st_ino == b.st_ino && a.st_dev == b.st_dev && a.st_size == b.st_size &&
         a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec &&
         a.st_ctim.tv_sec == b.st_ctim.tv_sec && a.st_ctim.tv_nsec == b.st_ctim.tv_nsec;
}

// Where a file really is, so that a link to it stays a link.
std::string RealPath(const std::string& path) {
  char* const real = ::realpath(path.c_str(), nullptr);
  if (real == nullptr) return path;
  std::string result(real);
  std::free(real);
  return result;
}

}  // namespace

RegistryFile::Lock::Lock(const std::string& path) {
  MakeFolders(path.substr(0, path.rfind('/') + 1));
  fd_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  for (int attempt = 0; fd_ >= 0 && ::flock(fd_, LOCK_EX | LOCK_NB) != 0; ++attempt) {
    if (attempt < kLockAttempts && (errno == EWOULDBLOCK || errno == EINTR)) {
      ::usleep(kLockPause);
      continue;
    }
    ::close(fd_);
    fd_ = -1;
  }
}

RegistryFile::Lock::~Lock() {
  if (fd_ >= 0) ::close(fd_);
}

const RegistryDocument& RegistryFile::Read() {
  struct stat status = {};
  const bool there = ::stat(path_.c_str(), &status) == 0;
  if (!there) status = {};
  if (known_ && IsSameState(status, status_)) return document_;
  if (Load()) return document_;
  bytes_.clear();
  document_ = {};
  known_ = false;
  return document_;
}

// False when there is a file that can't be read.
bool RegistryFile::Load() {
  std::string bytes;
  struct stat status = {};
  if (!ReadNativeFile(path_, bytes, status)) {
    if (errno != ENOENT) return false;
    bytes.clear();
    status = {};
  }
  status_ = status;
  if (known_ && bytes == bytes_) return true;
  RegistryFileText file = DecodeRegistryFile(bytes);
  document_ = ParseRegistry(file.text);
  encoding_ = file.encoding;
  faithful_ = file.faithful;
  bytes_ = std::move(bytes);
  known_ = true;
  return true;
}

// Keeps the file under a free name beside it.
bool RegistryFile::PutAside(const std::string& target) const {
  for (int number = 0; number < 1000; ++number) {
    const std::string kept = target + ".saved" + (number == 0 ? "" : std::to_string(number));
    if (::link(target.c_str(), kept.c_str()) == 0) return true;
    if (errno != EEXIST) break;
  }
  return false;
}

bool RegistryFile::Save() {
  known_ = false;
  // A rename would get round the file's own protection.
  const bool there = status_.st_ino != 0;
  if (there && (status_.st_mode & S_IWUSR) == 0) return false;
  std::string bytes = EncodeRegistryFile(WriteRegistry(document_), encoding_);
  const std::string target = RealPath(path_);
  std::string draft = target + ".XXXXXX";
  UniqueFd fd(::mkostemp(draft.data(), O_CLOEXEC));
  if (!fd) return false;
  const mode_t mode = there ? status_.st_mode & 0777 : 0644;
  bool written = ::fchmod(fd.get(), mode) == 0 && WriteNative(fd.get(), bytes);
  struct stat status = {};
  written = written && ::fstat(fd.get(), &status) == 0;
  written = fd.Close() && written;
  written = written && (faithful_ || PutAside(target));
  if (!written || ::rename(draft.c_str(), target.c_str()) != 0) {
    ::unlink(draft.c_str());
    return false;
  }
  bytes_ = std::move(bytes);
  faithful_ = true;
  known_ = ::stat(path_.c_str(), &status_) == 0;
  return true;
}

}  // namespace orvik::host::posix
