// Drives that can be reached and aren't listed.
#pragma once

#include <vector>

#include "robot/windows_api.h"

namespace orvik::robot {

// Wine reaches a drive as soon as its link is there, but lists it only when it was there at the
// start of its server; and what isn't listed can't be picked in a folder dialog. As long as this
// lives all drives that can be reached are listed.
class ListedDrives {
 public:
  ListedDrives();
  ~ListedDrives();
  ListedDrives(const ListedDrives&) = delete;
  ListedDrives& operator=(const ListedDrives&) = delete;

 private:
  std::vector<Text> added_;
};

}  // namespace orvik::robot
