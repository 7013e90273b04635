#include "monitors/frm_watch_folder_size.h"

#include "base/checked.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "fileengine/paths.h"
#include "host/host.h"
#include "monitors/measures.h"
#include "monitors/skin.h"
#include "platform/shell_dialogs.h"
#include "startup/globals.h"

namespace orvik {

namespace {

constexpr std::uint32_t kTitleColor = 0x0040C0;
constexpr std::uint32_t kValueColor = 0x0080FF;
constexpr int kTransparency = 150;
constexpr int kCorner = 5;
constexpr std::int32_t kBytesPerMb = 1048576;

Text WithoutFraction(double amount) { return SpacedDecimal(static_cast<std::int64_t>(amount)); }

}  // namespace

frmWatchFolderSize::frmWatchFolderSize()
    : Form("frmWatchFolderSize", u"Мониторинг размера папки", 4440, 690) {
  MakeSkinned();
  frRights.SetStyle({.color = kTitleColor, .bold = true, .serif = true});
  frFolder.SetStyle({.color = kTitleColor, .bold = true});
  frSizeMB.SetStyle({.color = kValueColor});
  lnOne.SetColor(kTitleColor);
  pbExit.SetHint(u"Закрыть");
  WireEvents();
}

void frmWatchFolderSize::WireEvents() {
  const auto drag = [this] { FormMouseMove::DragForm(*this); };
  on_mouse_down = frRights.on_mouse_down = [drag](forms::Mouse) { drag(); };
  // These two wait for the click.
  frFolder.on_click = frSizeMB.on_click = drag;
  pbExit.on_click = [] { mdlMain::Shutdown(); };
  on_key_press = [](int character) {
    if (character == forms::kKeyEscape) mdlMain::Shutdown();
  };
  clMain.on_timer = [this] { Tick(); };
}

void frmWatchFolderSize::OnLoad() {
  const Text& argument = mdlMain::CommandArgs;
  IsMemoryMode = Trim(argument).empty();
  // Two blanks are no drive, though they are a text of two characters.
  IsDriveMode = !IsMemoryMode && mdlSupport::AddBackslash(argument) ==
                                     mdlSupport::AddBackslash(mdlSupport::GetDriveSpec(argument));
  Describe();
  mdlWindowsTransparent::SetWindowTransparency(*this, kTransparency);
  DrawGauge(-1);
  WindowForm::SetRoundWindow(*this, 0, 0, 0, 0, kCorner, kCorner);
  Show();
}

void frmWatchFolderSize::Describe() {
  const Text& argument = mdlMain::CommandArgs;
  const Text title(mdlMain::ProgramTitle);
  if (IsDriveMode) {
    const auto total = static_cast<double>(mdlSupport::GetDiskSpace(argument).total);
    frFolder.SetCaption(u"Диск " + argument + u" [" +
                        host::Files().VolumeLabel(argument).value_or(Text()) + u"]  Объем:" +
                        WithoutFraction(total / kBytesPerMb) + u" Mb");
    frRights.SetCaption(title + u" - мониторинг диска");
  } else if (IsMemoryMode) {
    Attempt([&] {
      // Thousands of kilobytes, not megabytes.
      frFolder.SetCaption(
          u"Оперативная память. Всего" +
          WithoutFraction(FreeMemory::GetMemoryStatus().physical_kilobytes / 1000.0) + u" Mb");
    });
    frRights.SetCaption(title + u" - мониторинг памяти");
  } else {
    Attempt([&] { frFolder.SetCaption(mdlSupport::ShortenPath(argument)); });
    frRights.SetCaption(title + u" - мониторинг папки");
  }
}

void frmWatchFolderSize::Tick() {
  WindowZposition::SetWindowTopmost(*this, true);
  Text shown;
  const std::int32_t value = Measure(shown);
  frSizeMB.SetCaption(shown);
  DrawGauge(value);
}

std::int32_t frmWatchFolderSize::Measure(Text& shown) const {
  const Text& argument = mdlMain::CommandArgs;
  std::int32_t value = 0;
  if (IsMemoryMode) {
    Attempt([&] { value = FreeMemory::GetMemoryStatus().load_percent; });
    shown = SpacedDecimal(value) + u" %";
    return value;
  }
  if (IsDriveMode) {
    // From 2 GiB on the value stays 0.
    Attempt([&] { value = Narrowed<std::int32_t>(mdlSupport::GetDiskSpace(argument).free); });
  } else {
    value = mdlSupport::GetFolderSize(argument);
  }
  shown = SpacedDecimal(value / kBytesPerMb) + u" Mb";
  if (!IsDriveMode && value == 0 && !host::Files().PathExists(argument)) shown = u"нет папки";
  return value;
}

void frmWatchFolderSize::DrawGauge(std::int32_t value) {
  constexpr int kFirst = 120, kEnd = 4365, kStep = 60;
  constexpr int kTickTop = 525, kTickBottom = 555;
  constexpr int kPointerTop = 495, kPointerBottom = 645;
  constexpr std::uint32_t kBlack = 0, kOrange = 33023, kCream = 0xC0E0FF;
  constexpr std::int32_t kWrap = 10485760, kBytesPerStep = 149796;

  if (value == -1) {
    for (int x = kFirst; x <= kEnd; x += kStep) Draw({x, kTickTop, x, kTickBottom, kOrange});
    GaugeX = kFirst;
    return;
  }
  const std::int32_t x = kFirst + kStep * (value % kWrap / kBytesPerStep);
  if (x == GaugeX) return;
  Draw({GaugeX, kPointerTop, GaugeX, kPointerBottom, kBlack});
  Draw({GaugeX, kTickTop, GaugeX, kTickBottom, kOrange});
  GaugeX = x;
  Draw({x, kPointerTop, x, kPointerBottom, kCream});
}

}  // namespace orvik
