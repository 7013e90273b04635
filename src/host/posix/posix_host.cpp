#include "host/posix/posix_host.h"

#include <pwd.h>
#include <unistd.h>

#include <climits>
#include <csignal>

#include "host/posix/file_system.h"
#include "host/posix/native_files.h"
#include "host/posix/processes.h"
#include "host/posix/registry.h"
#include "host/posix/shell.h"
#include "host/posix/system.h"

namespace orvik::host::posix {
namespace {

std::string DefaultDriveC() { return DataHome() + "/orvik/drive_c"; }

Text UserName() {
  const passwd* const user = ::getpwuid(::getuid());
  return FromUtf8(VariableOr("USER", user != nullptr ? user->pw_name : "user"));
}

Text ComputerName() {
  char name[HOST_NAME_MAX + 1] = {};
  ::gethostname(name, sizeof name - 1);
  return ToUpper(FromUtf8(name));
}

}  // namespace

Options DefaultOptions() {
  Options options;
  options.drives = {{u'C', DefaultDriveC()}, {u'Z', "/"}};
  options.registry_file = ConfigHome() + "/orvik/registry.reg";
  options.environment = {
      u"CommonProgramFiles=C:\\Program Files\\Common Files",
      u"COMPUTERNAME=" + ComputerName(),
      u"HOMEDRIVE=C:",
      u"OS=Windows_NT",
      u"ProgramFiles=C:\\Program Files",
      u"SystemDrive=C:",
      u"SystemRoot=C:\\Windows",
      u"TEMP=C:\\Windows\\Temp",
      u"TMP=C:\\Windows\\Temp",
      u"USERNAME=" + UserName(),
      u"windir=C:\\Windows",
  };
  return options;
}

struct PosixHost::Parts {
  explicit Parts(const Options& options)
      : codec(CodePage::Numbered(options.code_page)),
        drives(options.drives, options.drive_types, codec),
        files(codec, drives),
        registry(options.registry_file, CodePage::Numbered(options.code_page)),
        system(options.environment, drives, options.code_page, options.oem_page),
        shell(files, system) {}

  NameCodec codec;
  DriveMap drives;
  PosixFileSystem files;
  PosixRegistry registry;
  PosixSystem system;
  PosixShell shell;
  PosixProcesses processes;
};

PosixHost::PosixHost(Options options) {
  // A limit for the length of files is an error like a full disk, not the end of the process.
  ::signal(SIGXFSZ, SIG_IGN);
  const auto drive = options.drives.find(u'C');
  if (drive != options.drives.end() && drive->second == DefaultDriveC()) {
    MakeFolders(drive->second + "/Windows/Temp");
    MakeFolders(drive->second + "/Windows/system32");
    MakeFolders(drive->second + "/Program Files/Common Files");
  }
  parts_ = std::make_unique<Parts>(options);
}

PosixHost::~PosixHost() = default;

Host PosixHost::services() {
  return {&parts_->files, &parts_->registry, &parts_->shell, &parts_->processes, &parts_->system};
}

Text PosixHost::DriveForm(const std::string& path) const { return parts_->drives.DriveForm(path); }

}  // namespace orvik::host::posix
