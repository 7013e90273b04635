#include "fileengine/frm_file_crc.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "fileengine/checksums.h"
#include "fileengine/paths.h"
#include "forms/front_end.h"
#include "startup/globals.h"

namespace orvik {

frmFileCRC::frmFileCRC() : Form("frmFileCRC", u"Orvik - Контрольная сумма файла", 6000, 2070) {
  frFile.SetCut(forms::Label::Cut::kPath);
  for (forms::Label& value : frCRC) {
    value.on_click = [&value] { forms::Front().PutOnClipboard(value.caption()); };
  }
  on_key_press = [](int character) {
    if (character == forms::kKeyEscape) mdlMain::Shutdown();
  };
}

void frmFileCRC::OnLoad() {
  const Text& path = mdlMain::CommandArgs;
  SetCaption(Text(mdlMain::ProgramTitle) + u" - CRC файла");
  Attempt([&] { frFile.SetCaption(mdlSupport::ShortenPath(path)); });
  Show();
  std::int32_t length = 0;
  Attempt([&] { length = mdlSupport::FileLength(path); });
  frCRC[2].SetCaption(Padded(length, 1) + u" Байт");
  frCRC[1].SetCaption(u"x" + Decimal(mdlSupport::GetFastCRC(path, 0)));
  // The cheap values are seen before the long read.
  forms::Yield();
  frCRC[0].SetCaption(u"x" + Decimal(mdlSupport::GetFileCRC(path)));
}

void frmFileCRC::OnUnload() { mdlMain::Shutdown(); }

}  // namespace orvik
