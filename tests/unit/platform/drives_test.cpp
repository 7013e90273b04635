#include "platform/drives.h"

#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

class Drives : public test::ProgramTest {
 protected:
  Drives() {
    using namespace host::drive_type;
    host.files.AddDrive(u"A:", kRemovable);
    host.files.AddDrive(u"D:", kRemote);
    host.files.AddDrive(u"E:", kCdRom);
    host.files.AddDrive(u"Z:", kRamDisk);
    host.files.AddDrive(u"U:", kUnknown);
    host.files.AddDrive(u"N:", kNoRoot);
  }
};

TEST_F(Drives, TheKindIsTheSystemsNumber) {
  EXPECT_EQ(GetDriveKind(u"C:"), 3);
  EXPECT_EQ(GetDriveKind(u"E:"), 5);
  EXPECT_EQ(GetDriveKind(u"Q:"), 1);
}

TEST_F(Drives, AllThatAreThereInOrder) {
  const std::vector<Text> all = {u"A:", u"C:", u"D:", u"E:", u"T:", u"Z:"};
  EXPECT_EQ(ListDrives(0), all);
  EXPECT_EQ(ListDrives(-5), all);
}

TEST_F(Drives, OneKind) {
  EXPECT_EQ(ListDrives(3), (std::vector<Text>{u"C:", u"T:"}));
  EXPECT_EQ(ListDrives(2), (std::vector<Text>{u"A:"}));
  EXPECT_TRUE(ListDrives(7).empty());
}

TEST_F(Drives, AskedForByNumberAlsoThoseThatAreNotThere) {
  const auto none = ListDrives(1);
  EXPECT_EQ(none.size(), 26U - 7U);
  EXPECT_EQ(none.front(), u"B:");
}

}  // namespace
}  // namespace orvik::mdlSupport
