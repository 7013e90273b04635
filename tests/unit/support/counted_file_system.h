// A file system whose calls run out, for loops that never end.
#pragma once

#include "host/forwarding_file_system.h"

namespace orvik::test {

// How a test leaves such a loop; no routine of the program catches it.
struct CallsAreOver {};

class CountedFileSystem : public host::ForwardingFileSystem {
 public:
  CountedFileSystem(host::FileSystem& inner, int calls)
      : ForwardingFileSystem(inner), left(calls) {}

  bool PathExists(const Text& path) override {
    Count();
    return inner_.PathExists(path);
  }
  std::optional<std::uint32_t> Attributes(const Text& path) override {
    Count();
    return inner_.Attributes(path);
  }

  int left;

 private:
  void Count() {
    if (left-- == 0) throw CallsAreOver{};
  }
};

}  // namespace orvik::test
