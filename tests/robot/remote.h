// Memory in the program's process, for those messages whose structures the system doesn't carry
// from one process to another.
#pragma once

#include "robot/windows_api.h"

namespace orvik::robot {

// Bytes in another process; gone with this object.
class RemoteBytes {
 public:
  // Throws Failure when there is no memory to be had.
  RemoteBytes(HANDLE process, std::size_t size);
  ~RemoteBytes();
  RemoteBytes(const RemoteBytes&) = delete;
  RemoteBytes& operator=(const RemoteBytes&) = delete;

  // As it goes into a message.
  LPARAM address(std::size_t offset = 0) const {
    return reinterpret_cast<LPARAM>(static_cast<char*>(bytes_) + offset);
  }
  // Both throw Failure when the process is gone.
  void Write(const void* data, std::size_t size, std::size_t offset = 0) const;
  void Read(void* data, std::size_t size, std::size_t offset = 0) const;

 private:
  HANDLE process_;
  void* bytes_;
};

// Sends a message with a structure that goes there and comes back changed.
template <typename Structure>
LRESULT SendStructure(HANDLE process, HWND window, UINT message, WPARAM wparam,
                      Structure& structure) {
  const RemoteBytes remote(process, sizeof structure);
  remote.Write(&structure, sizeof structure);
  const LRESULT result = SendMessageW(window, message, wparam, remote.address());
  remote.Read(&structure, sizeof structure);
  return result;
}

}  // namespace orvik::robot
