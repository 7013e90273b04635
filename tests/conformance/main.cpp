// Runs the suite, and plays the other process that some tests need.
#include <gmock/gmock.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <string_view>
#include <thread>

#include "conformance/real_host.h"

namespace {

bool MakeFile(const std::string& path) {
  std::FILE* const file = std::fopen(path.c_str(), "w");
  return file != nullptr && std::fclose(file) == 0;
}

bool IsThere(const std::string& path) {
  std::FILE* const file = std::fopen(path.c_str(), "r");
  return file != nullptr && std::fclose(file) == 0;
}

// Holds a file, says so by a file "….held", and lets go when "….release" comes, or after a while.
int Hold(const std::string& path) {
  const auto held = orvik::host::HoldAsAnotherProgram(path.c_str());
  if (held == nullptr || !MakeFile(path + ".held")) return 1;
  for (int i = 0; i < 1500 && !IsThere(path + ".release"); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view role = argc > 1 ? argv[1] : "";
  if (role == "--make-file" && argc > 2) {
    return MakeFile(argv[2]) ? 0 : 1;
  }
  if (role == "--hold" && argc > 2) return Hold(argv[2]);
  if (role == "--wait-for-ever") {
    for (;;) std::this_thread::sleep_for(std::chrono::seconds(1));
  }
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
