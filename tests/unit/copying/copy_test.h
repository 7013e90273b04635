// What tests of the copy job share: two folders on a drive in memory and the form.
#pragma once

#include "copying/copy_job.h"
#include "copying/frm_main.h"
#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik::test {

class CopyTest : public ProgramTest {
 protected:
  CopyTest() { host.files.AddFolder(u"T:\\from"); }

  frmMain& form() { return forms::The<frmMain>(); }

  // Opens the form on the source folder, as its Explorer verb does.
  void Open() { ASSERT_EQ(Run(u"/SCH T:\\from"), std::nullopt); }

  // Runs a job as the user does, after Open: the target typed, the options set.
  std::optional<forms::EndReason> Start(const Text& to = u"T:\\to") {
    form().cbOut.UserType(to);
    return Ending([&] { form().btStart.UserClick(); });
  }

  std::string Content(TextView path) { return host.files.Content(path); }

  // The calls that changed something, by their operation.
  std::vector<std::string> Changes(const std::string& operation) {
    std::vector<std::string> found;
    for (const std::string& change : host.files.changes) {
      if (change.starts_with(operation)) found.push_back(change);
    }
    return found;
  }

  FaultyFileSystem& Faulty() {
    auto services = host.services();
    services.files = &faulty_;
    host::Install(services);
    return faulty_;
  }

 private:
  FaultyFileSystem faulty_{host.files};
};

}  // namespace orvik::test
