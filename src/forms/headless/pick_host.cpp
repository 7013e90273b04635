#include "forms/headless/pick_host.h"

#ifdef _WIN32
#include "host/win32/win32_host.h"
#else
#include "host/posix/posix_host.h"
#endif

namespace orvik::forms::headless {

namespace {

#ifdef _WIN32

class SystemHost : public PickedHost {
 public:
  explicit SystemHost(const Options&) {}
  host::Host services() override { return host_.services(); }

 private:
  host::win32::Win32Host host_;
};

#else

host::posix::Options HostOptions(const Options& options) {
  host::posix::Options wanted = host::posix::DefaultOptions();
  for (const auto& [letter, folder] : options.drives) wanted.drives[letter] = folder;
  for (const auto& [letter, type] : options.drive_types) wanted.drive_types[letter] = type;
  if (options.registry) wanted.registry_file = *options.registry;
  if (options.code_page) wanted.code_page = *options.code_page;
  if (!options.environment.empty()) wanted.environment = options.environment;
  return wanted;
}

class SystemHost : public PickedHost {
 public:
  explicit SystemHost(const Options& options) : host_(HostOptions(options)) {}
  host::Host services() override { return host_.services(); }

 private:
  host::posix::PosixHost host_;
};

#endif

}  // namespace

std::unique_ptr<PickedHost> PickHost(const Options& options) {
  return std::make_unique<SystemHost>(options);
}

}  // namespace orvik::forms::headless
