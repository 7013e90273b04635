// The operating system that the headless program runs on.
#pragma once

#include <memory>

#include "forms/headless/options.h"
#include "host/host.h"

namespace orvik::forms::headless {

class PickedHost {
 public:
  virtual ~PickedHost() = default;
  // The services live as long as this object.
  virtual host::Host services() = 0;
};

// The host of this system, as the options want it.
std::unique_ptr<PickedHost> PickHost(const Options& options);

}  // namespace orvik::forms::headless
