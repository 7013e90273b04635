// The floor: what the kernel alone takes for a job, with nothing of the program in between.
//
//   orvik-bench-floor walk FOLDER            lists a tree
//   orvik-bench-floor sample FOLDER          reads two blocks of each file of a tree
//   orvik-bench-floor blocks FOLDER          the same, larger ones
//   orvik-bench-floor contents FOLDER        reads each file of a tree, none longer than a mebibyte
//   orvik-bench-floor read FILE              reads a file
//   orvik-bench-floor copy FOLDER TARGET     copies a tree to a folder that doesn't exist
//   orvik-bench-floor compare FOLDER TARGET  reads two blocks of each file in both trees
//
// Prints the number of files. Built for Linux only.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kBlock = 512;
constexpr std::size_t kLargeBlock = 32768;
constexpr std::size_t kWhole = 1 << 20;
constexpr std::size_t kChunk = 1 << 18;

[[noreturn]] void Fail(const char* what, const std::string& path) {
  std::fprintf(stderr, "orvik-bench-floor: %s %s: %s\n", what, path.c_str(), std::strerror(errno));
  std::exit(1);
}

// One record of getdents64, as the kernel lays it out.
struct KernelEntry {
  std::uint64_t inode;
  std::int64_t offset;
  std::uint16_t length;
  std::uint8_t type;
  char name[1];
};

struct Visitor {
  std::function<void(int folder, const char* name, const std::string& below)> file;
  std::function<void(const std::string& below)> folder;
};

// Visits a tree, each folder before what it holds. `below` is a path behind the root.
std::size_t Walk(int parent, const char* name, const std::string& below, const Visitor& visitor) {
  const int fd = openat(parent, name, O_RDONLY | O_DIRECTORY);
  if (fd < 0) Fail("open", below);
  std::size_t count = 0;
  std::vector<std::string> subfolders;
  alignas(KernelEntry) std::array<char, 1 << 16> buffer;
  for (;;) {
    const long got = syscall(SYS_getdents64, fd, buffer.data(), buffer.size());
    if (got < 0) Fail("list", below);
    if (got == 0) break;
    for (long at = 0; at < got;) {
      const auto* entry = reinterpret_cast<const KernelEntry*>(buffer.data() + at);
      at += entry->length;
      const char* entry_name = entry->name;
      if (entry->type == DT_REG) {
        ++count;
        if (visitor.file) visitor.file(fd, entry_name, below);
      } else if (entry->type == DT_DIR && std::strcmp(entry_name, ".") != 0 &&
                 std::strcmp(entry_name, "..") != 0) {
        subfolders.emplace_back(entry_name);
      }
    }
  }
  for (const std::string& subfolder : subfolders) {
    const std::string path = below + "/" + subfolder;
    if (visitor.folder) visitor.folder(path);
    count += Walk(fd, subfolder.c_str(), path, visitor);
  }
  close(fd);
  return count;
}

std::size_t Walk(const std::string& root, const Visitor& visitor) {
  return Walk(AT_FDCWD, root.c_str(), "", visitor);
}

void Read(int fd, char* buffer, std::size_t size, off_t at, const std::string& path) {
  if (pread(fd, buffer, size, at) < 0) Fail("read", path);
}

// What the fast checksum asks of the kernel.
void Sample(int folder, const char* name, std::size_t block = kBlock) {
  const int fd = openat(folder, name, O_RDONLY);
  struct stat status;
  if (fd < 0 || fstat(fd, &status) != 0) Fail("open", name);
  static std::vector<char> buffer;
  buffer.resize(2 * block);
  Read(fd, buffer.data(), block, 0, name);
  if (status.st_size > static_cast<off_t>(block)) {
    Read(fd, buffer.data() + block, block, status.st_size - 1 - static_cast<off_t>(block), name);
  }
  close(fd);
}

std::size_t SampleAll(const std::string& root, std::size_t block) {
  return Walk(root, {.file = [block](int folder, const char* name,
                                     const std::string&) { Sample(folder, name, block); },
                     .folder = nullptr});
}

std::size_t ReadAll(const std::string& path) {
  const int fd = open(path.c_str(), O_RDONLY);
  if (fd < 0) Fail("open", path);
  std::vector<char> buffer(kChunk);
  for (;;) {
    const ssize_t got = read(fd, buffer.data(), buffer.size());
    if (got < 0) Fail("read", path);
    if (got == 0) break;
  }
  close(fd);
  return 1;
}

void CopyFile(int folder, const char* name, const std::string& target, std::vector<char>& buffer) {
  const int from = openat(folder, name, O_RDONLY);
  const int to = open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
  struct stat status;
  if (from < 0 || to < 0 || fstat(from, &status) != 0) Fail("copy to", target);
  for (;;) {
    const ssize_t got = read(from, buffer.data(), buffer.size());
    if (got < 0) Fail("read", name);
    if (got == 0) break;
    if (write(to, buffer.data(), static_cast<std::size_t>(got)) != got) Fail("write", target);
  }
  const struct timespec times[2] = {status.st_atim, status.st_mtim};
  if (futimens(to, times) != 0) Fail("date", target);
  close(to);
  close(from);
}

std::size_t Copy(const std::string& root, const std::string& target) {
  std::vector<char> buffer(kChunk);
  if (mkdir(target.c_str(), 0755) != 0) Fail("make", target);
  return Walk(root, {.file =
                         [&](int folder, const char* name, const std::string& below) {
                           CopyFile(folder, name, target + below + "/" + name, buffer);
                         },
                     .folder =
                         [&](const std::string& below) {
                           if (mkdir((target + below).c_str(), 0755) != 0) Fail("make", below);
                         }});
}

std::size_t Compare(const std::string& root, const std::string& target) {
  return Walk(root, {.file =
                         [&](int folder, const char* name, const std::string& below) {
                           Sample(folder, name);
                           Sample(AT_FDCWD, (target + below + "/" + name).c_str());
                         },
                     .folder = nullptr});
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const auto is = [&](const char* job, std::size_t count) {
    return arguments.size() == count && arguments[0] == job;
  };
  std::size_t files = 0;
  if (is("walk", 2)) {
    files = Walk(arguments[1], {});
  } else if (is("sample", 2)) {
    files = SampleAll(arguments[1], kBlock);
  } else if (is("blocks", 2)) {
    files = SampleAll(arguments[1], kLargeBlock);
  } else if (is("contents", 2)) {
    files = SampleAll(arguments[1], kWhole);
  } else if (is("read", 2)) {
    files = ReadAll(arguments[1]);
  } else if (is("read", 3)) {
    files = ReadAll(arguments[1]) + ReadAll(arguments[2]);
  } else if (is("copy", 3)) {
    files = Copy(arguments[1], arguments[2]);
  } else if (is("compare", 3)) {
    files = Compare(arguments[1], arguments[2]);
  } else {
    std::fprintf(stderr,
                 "usage: orvik-bench-floor walk|sample|blocks|contents|read|copy|compare PATH "
                 "[TARGET]\n");
    return 2;
  }
  std::printf("%zu\n", files);
  return 0;
}
