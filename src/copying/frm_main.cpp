#include "copying/frm_main.h"

#include <array>

#include "base/failure.h"
#include "copying/copy_job.h"
#include "copying/recent_combos.h"
#include "fileengine/paths.h"
#include "fileengine/pattern.h"
#include "host/host.h"
#include "platform/shell_dialogs.h"
#include "startup/globals.h"

namespace orvik {

namespace {

constexpr int kWidth = 7200;
constexpr int kCompactHeight = 3030;
// From the bottom line to the outer edge of the open form.
constexpr int kBelowBottomLine = 405;
constexpr int kLogTop = 15;

}  // namespace

frmMain::frmMain() : Form("frmMain", u"Копирование ...", kWidth, kCompactHeight) {
  cbOut2.SetEnabled(false);
  cbFileList.SetEnabled(false);
  frLog.SetVisible(false);
  lbLog.PutInto(frLog);
  btCopySelectedFiles.PutInto(frLog);
  btStart.MakeDefault();
  Lay();
  WireEvents();
}

// What follows the width of the form, what is cut in the middle, what pictures say.
void frmMain::Lay() {
  for (forms::Control* control : controls()) {
    control->SetAnchor(forms::Control::Anchor::kStretch);
  }
  for (forms::Control* control : std::array<forms::Control*, 6>{
           &pbDest, &pbDest2, &pbOpenFileList, &btStart, &pbOtherOptions, &btCopySelectedFiles}) {
    control->SetAnchor(forms::Control::Anchor::kRight);
  }
  cxMoveFiles.SetAnchor(forms::Control::Anchor::kNone);
  mtFile.SetCut(forms::Label::Cut::kPath);
  pbDest.SetHint(u"Выбрать папку");
  pbDest2.SetHint(u"Выбрать вторую папку");
  pbOpenFileList.SetHint(u"Список контрольных сумм");
  pbOtherOptions.SetHint(u"Другие параметры");
}

void frmMain::WireEvents() {
  btStart.on_click = [] { mdlMain::StartCopy(); };
  clExit.on_timer = [] { mdlMain::Shutdown(); };
  opNewFilesToNewFolder.on_click = [this] { cbOut2.SetEnabled(opNewFilesToNewFolder.checked()); };
  pbOtherOptions.on_click = [this] {
    SetSize(width(), lnHeight.bounds().top + kBelowBottomLine);
    pbOtherOptions.SetVisible(false);
  };
  pbDest.on_click = [this] { Browse(cbOut); };
  pbDest2.on_click = [this] { Browse(cbOut2); };
  btCopySelectedFiles.on_click = [] { mdlMain::CopySelectedFiles(); };
  for (forms::ComboBox* combo : {&cbOut, &cbOut2, &cbMask, &cbFileList}) {
    combo->on_key_down = [this, combo](forms::Key& key) { RemoveRecent(*combo, key); };
  }
}

void frmMain::OnLoad() {
  SetSize(width(), kCompactHeight);
  forms::Bounds log = frLog.bounds();
  log.top = kLogTop;
  frLog.Move(log);
  Attempt([&] { SetCaption(caption() + u" " + mdlSupport::ShortenPath(mdlMain::CommandArgs)); });
  frRights.SetCaption(mdlMain::ProgramTitle);
  mdlMain::LoadRecentCombos();
  Show();
  PlayScript();
}

void frmMain::PlayScript() {
  const std::vector<Text>& lines = mdlMain::ScriptLines;
  if (lines.empty() || ToLower(lines[0]) != u"foldercopy") return;
  Text shell;
  // Whole lines are lowered before their values are cut out of them.
  for (std::size_t i = 1; i < lines.size(); ++i) TakeScriptLine(ToLower(lines[i]), shell);
  mdlMain::StartCopy();
  if (!shell.empty()) host::TheShell().Start(shell, host::WindowState::kNormal);
}

void frmMain::TakeScriptLine(TextView line, Text& shell) {
  const auto value = [&](TextView prefix) -> TextView { return line.substr(prefix.size() - 1); };
  const auto is = [&](TextView pattern) { return mdlSupport::Like(line, pattern); };
  if (is(u"from:*")) {
    mdlMain::CommandArgs = value(u"from:*");
  } else if (is(u"to:*")) {
    cbOut.SetText(value(u"to:*"));
  } else if (is(u"pat:*")) {
    cbMask.SetText(value(u"pat:*"));
  } else if (is(u"shell:*")) {
    shell = value(u"shell:*");
  } else if (is(u"ntf:*")) {
    opNewFilesToNewFolder.SetValue(1);
    cbOut2.SetText(value(u"ntf:*"));
  } else if (is(u"mov")) {
    cxMoveFiles.SetValue(1);
  } else if (is(u"torecycle")) {
    cxRemoveToRecycler.SetValue(1);
  } else if (is(u"onlymiss")) {
    cxOnlyMissed.SetValue(1);
  } else if (is(u"filelist:*")) {
    cbFileList.SetText(value(u"filelist:*"));
  }
}

void frmMain::Browse(forms::ComboBox& combo) {
  // A cancelled dialog answers blanks, which aren't "" and become an entry.
  const Text folder = mdlSupport::BrowseFolder(*this);
  if (!folder.empty()) {
    combo.Add(folder);
    combo.SetText(folder);
  }
  mdlMain::SaveRecentCombos();
}

void frmMain::RemoveRecent(forms::ComboBox& combo, forms::Key& key) {
  if (key.code != forms::kKeyBackspace || key.shift != forms::kShift) return;
  Attempt([&] { combo.Remove(combo.index()); });
  mdlMain::SaveRecentCombos();
  mdlMain::LoadRecentCombos();
  key.code = 0;  // the box itself must not take a character off the text that it has got
}

}  // namespace orvik
