#include "monitors/frm_watch_folder_size.h"

#include "base/numbers.h"
#include "forms/instance.h"
#include "monitors/skin.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

using forms::DrawnLine;

class SizeMonitor : public test::ProgramTest {
 protected:
  frmWatchFolderSize& form() { return forms::The<frmWatchFolderSize>(); }
  void Open(const Text& argument) { ASSERT_EQ(Run(u"/WTH " + argument), std::nullopt); }
  Text Tick() {
    form().clMain.Fire();
    return form().frSizeMB.caption();
  }
  // Where the last pointer was drawn, 0 where none was.
  int Pointer() {
    for (auto line = front.drawn.rbegin(); line != front.drawn.rend(); ++line) {
      if (line->color == 0xC0E0FF) return line->x1;
    }
    return 0;
  }
  int PointerAt(std::int32_t value) {
    form().DrawGauge(value);
    return Pointer();
  }
  Text Titled(const Text& what) { return Text(mdlMain::ProgramTitle) + what; }
};

TEST_F(SizeMonitor, TheArgumentTellsTheMode) {
  const struct {
    Text argument, mode;
  } kModes[] = {{u"C:", u" - мониторинг диска"},          {u"C:\\", u" - мониторинг диска"},
                {u"C:\\Windows", u" - мониторинг папки"}, {u"C", u" - мониторинг папки"},
                {u"", u" - мониторинг памяти"},           {u"  ", u" - мониторинг памяти"}};
  for (const auto& [argument, mode] : kModes) {
    Open(argument);
    EXPECT_EQ(form().frRights.caption(), Titled(mode)) << ToUtf8(argument);
    forms::ForgetForms();
  }
}

TEST_F(SizeMonitor, ADriveIsDescribedByLabelAndSize) {
  host.files.AddDrive(u"E:", host::drive_type::kFixed, {5ULL * 1024 * 1048576 - 1, 0}, u"Диск");
  Open(u"E:");
  EXPECT_EQ(form().frFolder.caption(), u"Диск E: [Диск]  Объем: 5119 Mb");
}

TEST_F(SizeMonitor, TheMemoryIsDescribedInThousandsOfKilobytes) {
  host.system.memory = {42, 25165824ULL * 1024 + 511, 0};
  Open(u"");
  EXPECT_EQ(form().frFolder.caption(), u"Оперативная память. Всего 25165 Mb");
}

TEST_F(SizeMonitor, AFolderIsDescribedByItsShortPath) {
  Open(u"T:\\a\\b");
  EXPECT_EQ(form().frFolder.caption(), u"T:\\...\\b");
  forms::ForgetForms();
  Open(u"C");
  EXPECT_EQ(form().frFolder.caption(), u"Folder") << "has no backslash";
}

TEST_F(SizeMonitor, IsASkin) {
  Open(u"T:\\a");
  EXPECT_TRUE(form().skinned());
  EXPECT_EQ(form().transparency(), 150);
  ASSERT_TRUE(form().region());
  EXPECT_EQ(form().region()->right, 296);
  EXPECT_EQ(form().region()->bottom, 46);
  EXPECT_EQ(form().region()->corner_width, 5);
  EXPECT_EQ(form().region()->corner_height, 5);
  EXPECT_EQ(form().caption(), u"Мониторинг размера папки");
  EXPECT_FALSE(form().topmost());
  EXPECT_EQ(form().frSizeMB.caption(), u"...");
  EXPECT_EQ(form().clMain.interval(), 2000);
  EXPECT_TRUE(form().clMain.active());
}

TEST_F(SizeMonitor, TheRegionFollowsTheScreen) {
  // 144 dots to the inch are 10 twips a pixel; 110 are 13.09, which count as 13.
  front.scale = {10, 13.09};
  Open(u"T:\\a");
  EXPECT_EQ(form().region()->right, 444);
  EXPECT_EQ(form().region()->bottom, 53);
  front.scale = {0.3, 0.3};
  WindowForm::SetRoundWindow(form(), 10, 20, 30, 40, 1, 2);
  EXPECT_EQ(form().region()->left, 10) << "0 becomes 1";
  EXPECT_EQ(form().region()->bottom, 40);
}

TEST_F(SizeMonitor, EveryTickPutsItOnTop) {
  host.files.AddFolder(u"T:\\a");
  Open(u"T:\\a");
  Tick();
  EXPECT_TRUE(form().topmost());
}

TEST_F(SizeMonitor, AFolderIsShownInWholeMb) {
  host.files.AddFile(u"T:\\a\\1", std::string(1048575, 'x'));
  Open(u"T:\\a");
  EXPECT_EQ(Tick(), u" 0 Mb");
  host.files.AddFile(u"T:\\a\\b\\2", "x");
  EXPECT_EQ(Tick(), u" 1 Mb");
}

TEST_F(SizeMonitor, AnEmptyFolderIsNotAMissingOne) {
  host.files.AddFolder(u"T:\\a");
  Open(u"T:\\a");
  EXPECT_EQ(Tick(), u" 0 Mb");
}

TEST_F(SizeMonitor, AFolderThatGoesComesBack) {
  Open(u"T:\\a");
  EXPECT_EQ(Tick(), u"нет папки");
  host.files.AddFile(u"T:\\a\\1", std::string(2 * 1048576, 'x'));
  EXPECT_EQ(Tick(), u" 2 Mb");
  EXPECT_GT(Pointer(), 120);
  host.files.Take(u"T:\\a");
  EXPECT_EQ(Tick(), u"нет папки");
  EXPECT_EQ(Pointer(), 120) << "the first position";
  host.files.AddFile(u"T:\\a\\1", std::string(1048576, 'x'));
  EXPECT_EQ(Tick(), u" 1 Mb");
  EXPECT_EQ(front.events, (std::vector<std::string>{"show frmWatchFolderSize"})) << "no message";
}

TEST_F(SizeMonitor, AFolderOf2GiBShowsNothing) {
  host.files.AddLargeFile(u"T:\\a\\1", 0x7FFFFFFF);
  Open(u"T:\\a");
  EXPECT_EQ(Tick(), u" 2047 Mb");
  host.files.AddFile(u"T:\\a\\2", "x");
  EXPECT_EQ(Tick(), u" 0 Mb");
}

TEST_F(SizeMonitor, ADriveShowsWhatIsFreeBelow2GiB) {
  host.files.AddDrive(u"E:", host::drive_type::kFixed, {1ULL << 40, 0x7FFFFFFF}, u"");
  host.files.AddDrive(u"F:", host::drive_type::kFixed, {1ULL << 40, 0x80000000}, u"");
  Open(u"E:\\");
  EXPECT_EQ(Tick(), u" 2047 Mb");
  EXPECT_GT(Pointer(), 120);
  forms::ForgetForms();
  Open(u"F:");
  EXPECT_EQ(Tick(), u" 0 Mb");
}

TEST_F(SizeMonitor, ADriveThatIsNotReadyShowsZeros) {
  Open(u"Q:");
  EXPECT_EQ(form().frFolder.caption(), u"Диск Q: []  Объем: 0 Mb");
  EXPECT_EQ(Tick(), u" 0 Mb") << "never a missing folder";
}

TEST_F(SizeMonitor, TheMemoryShowsItsLoadAndNoPointer) {
  host.system.memory = {100, 1 << 30, 0};
  Open(u"");
  EXPECT_EQ(Tick(), u" 100 %");
  EXPECT_EQ(Pointer(), 0);
}

TEST_F(SizeMonitor, TheScaleHas71Ticks) {
  Open(u"");
  ASSERT_EQ(front.drawn.size(), 71U);
  for (int i = 0; i < 71; ++i) {
    const DrawnLine& tick = front.drawn[static_cast<std::size_t>(i)];
    const int x = 120 + 60 * i;
    EXPECT_TRUE(tick.x1 == x && tick.x2 == x && tick.y1 == 525 && tick.y2 == 555);
    EXPECT_EQ(tick.color, 33023U);
  }
}

TEST_F(SizeMonitor, ThePointerWrapsEvery10MiB) {
  Open(u"T:\\a");
  EXPECT_EQ(PointerAt(149795), 0) << "the first position is where it stands already";
  EXPECT_EQ(PointerAt(149796), 180);
  EXPECT_EQ(PointerAt(10485759), 4320);
  EXPECT_EQ(PointerAt(10485760), 120);
  EXPECT_EQ(PointerAt(2147483647), 120 + 60 * (2147483647 % 10485760 / 149796));
}

TEST_F(SizeMonitor, MovingErasesThePointerAndRestoresTheTick) {
  Open(u"T:\\a");
  form().DrawGauge(149796);
  front.drawn.clear();
  form().DrawGauge(2 * 149796);
  ASSERT_EQ(front.drawn.size(), 3U);
  const auto is = [&](std::size_t i, int x, int top, int bottom, std::uint32_t color) {
    const DrawnLine& line = front.drawn[i];
    return line.x1 == x && line.x2 == x && line.y1 == top && line.y2 == bottom &&
           line.color == color;
  };
  EXPECT_TRUE(is(0, 180, 495, 645, 0));
  EXPECT_TRUE(is(1, 180, 525, 555, 33023));
  EXPECT_TRUE(is(2, 240, 495, 645, 0xC0E0FF));
  front.drawn.clear();
  form().DrawGauge(2 * 149796 + 1);
  EXPECT_TRUE(front.drawn.empty()) << "the position is the same";
}

TEST_F(SizeMonitor, IsDraggedByThePlacesNamed) {
  Open(u"T:\\a");
  front.events.clear();
  const auto drags = [&] { return std::exchange(front.events, {}).size(); };
  form().UserMouse(true, {});
  EXPECT_EQ(drags(), 1U);
  form().frRights.UserMouse(true, {});
  EXPECT_EQ(drags(), 1U);
  form().frFolder.UserMouse(true, {});
  form().frSizeMB.UserMouse(true, {});
  form().frRights.UserClick();
  form().UserMouse(false, {});
  EXPECT_EQ(drags(), 0U) << "two wait for the click, two for the press";
  form().frFolder.UserClick();
  form().frSizeMB.UserClick();
  EXPECT_EQ(drags(), 2U);
}

TEST_F(SizeMonitor, EscAndTheExitPictureEndTheProcess) {
  Open(u"T:\\a");
  form().UserKeyPress('x');
  EXPECT_EQ(test::Ending([&] { form().UserKeyPress(27); }), forms::EndReason::kShutdown);
  EXPECT_EQ(test::Ending([&] { form().pbExit.UserClick(); }), forms::EndReason::kShutdown);
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kClosed);
}

}  // namespace
}  // namespace orvik
