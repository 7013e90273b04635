// What the tests of the interfaces share.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "conformance/real_host.h"

namespace orvik::host {

// Texts in the messages of failing tests, as UTF-8.
inline std::string U(TextView text) { return ToUtf8(text); }

class HostTest : public testing::Test {
 protected:
  // A path below the scratch folder.
  Text At(TextView name) const {
    return name.empty() ? real_.scratch() : real_.scratch() + u"\\" + Text(name);
  }

  FileSystem& files() { return *real_.services().files; }

  void Write(TextView name, std::string_view content) {
    const auto file = files().Open(At(name), OpenMode::kReadWriteCreate);
    ASSERT_NE(file, nullptr) << U(name);
    ASSERT_TRUE(file->WriteAt(0, content)) << U(name);
  }

  // The content of a file, "(missing)" for one that can't be opened.
  std::string Read(TextView name) {
    const auto file = files().Open(At(name), OpenMode::kRead);
    if (file == nullptr) return "(missing)";
    const auto length = file->Length();
    if (!length) return "(no length)";
    std::string content(static_cast<std::size_t>(*length), '\0');
    const auto count = file->ReadAt(0, content);
    if (!count) return "(unreadable)";
    content.resize(*count);
    return content;
  }

  void MakeFolder(TextView name) { ASSERT_TRUE(files().CreateFolder(At(name))) << U(name); }

  bool Exists(TextView name) { return files().PathExists(At(name)); }

  // All that a path with a mask finds.
  std::vector<FindRecord> Find(const Text& path, Details details = Details::kAll) {
    std::vector<FindRecord> found;
    FindRecord record;
    const auto search = files().FindFirst(path, details, record);
    if (search == nullptr) return found;
    do found.push_back(record);
    while (search->Next(record));
    return found;
  }

  // The names without "." and "..".
  std::vector<std::string> Names(TextView mask) {
    std::vector<std::string> names;
    for (const FindRecord& record : Find(At(mask))) {
      if (record.name != u"." && record.name != u"..") names.push_back(U(record.name));
    }
    return names;
  }

  RealHost real_;
};

}  // namespace orvik::host
