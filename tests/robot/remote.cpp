#include "robot/remote.h"

#include "base/failure.h"

namespace orvik::robot {

RemoteBytes::RemoteBytes(HANDLE process, std::size_t size)
    : process_(process),
      bytes_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {
  if (bytes_ == nullptr) throw Failure{};
}

RemoteBytes::~RemoteBytes() { VirtualFreeEx(process_, bytes_, 0, MEM_RELEASE); }

void RemoteBytes::Write(const void* data, std::size_t size, std::size_t offset) const {
  if (WriteProcessMemory(process_, static_cast<char*>(bytes_) + offset, data, size, nullptr) == 0) {
    throw Failure{};
  }
}

void RemoteBytes::Read(void* data, std::size_t size, std::size_t offset) const {
  if (ReadProcessMemory(process_, static_cast<char*>(bytes_) + offset, data, size, nullptr) == 0) {
    throw Failure{};
  }
}

}  // namespace orvik::robot
