#include "monitors/frm_file_lock.h"

#include "host/host.h"
#include "startup/globals.h"

namespace orvik {

frmFileLock::frmFileLock() : Form("frmFileLock", u"Блокирование файла", 6840, 960) {
  frMain.SetCut(forms::Label::Cut::kPath);
}

void frmFileLock::OnLoad() {
  SetCaption(Text(mdlMain::ProgramTitle) + u" - " + caption());
  frMain.SetCaption(mdlMain::CommandArgs);
  held_ = host::Files().Open(mdlMain::CommandArgs, host::OpenMode::kHold);
}

void frmFileLock::OnUnload() {
  held_.reset();
  mdlMain::Shutdown();
}

}  // namespace orvik
