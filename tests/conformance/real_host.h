// The real system under the tests of the interfaces, with a scratch folder on it.
#pragma once

#include <cstdint>
#include <memory>

#include "base/text.h"
#include "host/host.h"

namespace orvik::host {

class RealHost {
 public:
  RealHost();
  ~RealHost();
  RealHost(const RealHost&) = delete;
  RealHost& operator=(const RealHost&) = delete;

  Host services();

  // An empty folder of the test's own, in drive form without a closing backslash. It goes with the
  // object, whatever it holds then.
  const Text& scratch() const { return scratch_; }

  // Makes a file with one byte whose name may hold any character; below the scratch folder.
  void MakeForeignFile(TextView name);

  // The time of modification, in units of 100 nanoseconds since 1970.
  std::int64_t TimeOf(TextView name) const;
  void SetTime(TextView name, std::int64_t time);

  // Whether values come in writing order, as on Windows; under Wine they come sorted.
  static bool KeepsValueOrder();

 private:
  struct System;
  std::unique_ptr<System> system_;
  Text scratch_;
};

// What another process does to a file of the system's own path: it holds it as strongly as the
// system offers, on Windows by opening it without sharing. The handle closes with the object; there
// is none when the file couldn't be held.
std::shared_ptr<void> HoldAsAnotherProgram(const char* path);

}  // namespace orvik::host
