// What every test of the program's logic starts from: a host in memory, a front end that records,
// and globals as at the start of a process.
#pragma once

#include <gtest/gtest.h>

#include "fileengine/checksums.h"
#include "fileengine/tree_scan.h"
#include "platform/registry_layer.h"
#include "startup/globals.h"
#include "startup/main.h"
#include "unit/support/fake_host.h"
#include "unit/support/faulty_file_system.h"
#include "unit/support/test_front_end.h"

namespace orvik::test {

class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest() {
    mdlMain::CommandArgs.clear();
    mdlMain::InstalledExePath.clear();
    mdlMain::CompareWithFolder = kFalse;
    mdlMain::CompareFileLists = kFalse;
    mdlMain::EraseOneFile = kFalse;
    mdlMain::ScriptLines.clear();
    mdlMain::CopyErrorCount = 0;
    mdlSupport::ClearScanResults();
    mdlSupport::SetRegError(0);
    mdlSupport::InitCRCTable();
  }

  // Runs the program on a command line, as an Explorer verb does.
  std::optional<forms::EndReason> Run(const Text& command_line) {
    return Ending([&] { mdlMain::Main(command_line); });
  }

  FakeHost host;
  TestFrontEnd front{&host.system};
};

}  // namespace orvik::test
