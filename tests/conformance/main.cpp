// Runs the suite, and plays the other process that some tests need.
#include <gmock/gmock.h>

#include <chrono>
#include <cstdio>
#include <string_view>
#include <thread>

int main(int argc, char** argv) {
  const std::string_view role = argc > 1 ? argv[1] : "";
  if (role == "--make-file" && argc > 2) {
    std::FILE* const file = std::fopen(argv[2], "w");
    return file != nullptr && std::fclose(file) == 0 ? 0 : 1;
  }
  if (role == "--wait-for-ever") {
    for (;;) std::this_thread::sleep_for(std::chrono::seconds(1));
  }
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
