#ifndef _WIN32
#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "conformance/real_host.h"
#include "host/posix/posix_host.h"

namespace orvik::host {
namespace {

std::string MakeTemporaryFolder() {
  const char* const place = std::getenv("TMPDIR");
  std::string folder = std::string(place != nullptr ? place : "/tmp") + "/orvik-XXXXXX";
  return ::mkdtemp(folder.data()) != nullptr ? folder : std::string();
}

int RemoveOne(const char* path, const struct stat*, int, FTW*) { return ::remove(path); }

posix::Options OptionsFor(const std::string& folder) {
  posix::Options options;
  options.drives = {{u'T', folder}, {u'Z', "/"}};
  options.registry_file = folder + "/registry.reg";
  options.environment = {u"windir=C:\\Windows"};
  return options;
}

}  // namespace

struct RealHost::System {
  explicit System(const std::string& temporary) : folder(temporary), host(OptionsFor(temporary)) {}

  std::string PathOf(TextView name) const {
    std::string path = folder + "/scratch/" + ToUtf8(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
  }

  std::string folder;
  posix::PosixHost host;
};

RealHost::RealHost()
    : system_(std::make_unique<System>(MakeTemporaryFolder())), scratch_(u"T:\\scratch") {
  ::mkdir((system_->folder + "/scratch").c_str(), 0777);
  // The trash must be the test's own, too.
  ::setenv("XDG_DATA_HOME", (system_->folder + "/data").c_str(), 1);
}

RealHost::~RealHost() { ::nftw(system_->folder.c_str(), RemoveOne, 16, FTW_DEPTH | FTW_PHYS); }

Host RealHost::services() { return system_->host.services(); }

void RealHost::MakeForeignFile(TextView name) {
  const int fd = ::open(system_->PathOf(name).c_str(), O_WRONLY | O_CREAT, 0666);
  if (fd < 0 || ::write(fd, "x", 1) != 1) std::abort();
  ::close(fd);
}

std::int64_t RealHost::TimeOf(TextView name) const {
  struct stat status = {};
  if (::stat(system_->PathOf(name).c_str(), &status) != 0) return 0;
  return status.st_mtim.tv_sec * 10'000'000 + status.st_mtim.tv_nsec / 100;
}

void RealHost::SetTime(TextView name, std::int64_t time) {
  const struct timespec moment = {time / 10'000'000, time % 10'000'000 * 100};
  const struct timespec times[2] = {moment, moment};
  ::utimensat(AT_FDCWD, system_->PathOf(name).c_str(), times, 0);
}

bool RealHost::KeepsValueOrder() { return true; }

std::shared_ptr<void> HoldAsAnotherProgram(const char* path) {
  struct Held {
    posix::PosixHost host{posix::DefaultOptions()};
    std::unique_ptr<File> file;
  };
  auto held = std::make_shared<Held>();
  held->file = held->host.services().files->Open(held->host.DriveForm(path), OpenMode::kHold);
  return held->file ? held : nullptr;
}

}  // namespace orvik::host
#endif
