// A host with a temporary folder as its drive "T:", and a look past it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "host/posix/posix_host.h"

namespace orvik::host::posix {

class PosixTest : public testing::Test {
 protected:
  PosixTest() : folder_(MakeFolder()), host_(OptionsFor(folder_)) {
    ::setenv("XDG_DATA_HOME", (folder_ + "/data home").c_str(), 1);
  }
  ~PosixTest() override {
    [[maybe_unused]] const int status =
        std::system(("chmod -R u+rwx '" + folder_ + "'; rm -rf '" + folder_ + "'").c_str());
  }

  static std::string MakeFolder() {
    std::string folder = "/tmp/orvik-unit-XXXXXX";
    ::mkdtemp(folder.data());
    ::mkdir((folder + "/t").c_str(), 0777);
    return folder;
  }

  static Options OptionsFor(const std::string& folder) {
    Options options;
    options.drives = {{u'T', folder + "/t"}, {u'Z', "/"}};
    options.registry_file = folder + "/registry.reg";
    options.environment = {u"TEMP=C:\\T", u"windir=D:\\Win"};
    return options;
  }

  // The native path of a thing on the drive.
  std::string Native(const std::string& name) const { return folder_ + "/t/" + name; }

  void WriteNative(const std::string& name, std::string_view content) const {
    std::ofstream(Native(name), std::ios::binary) << content;
  }
  std::string ReadNative(const std::string& path) const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  FileSystem& files() { return *host_.services().files; }
  Registry& keys() { return *host_.services().registry; }

  std::vector<std::string> Names(const Text& mask = u"T:\\*") {
    std::vector<std::string> names;
    FindRecord record;
    const auto search = files().FindFirst(mask, Details::kFolderBit, record);
    if (search == nullptr) return names;
    do names.push_back(ToUtf8(record.name));
    while (search->Next(record));
    return names;
  }

  std::string folder_;
  PosixHost host_;
};

}  // namespace orvik::host::posix
