#include "base/failure.h"
#include "copying/copy_job.h"
#include "copying/frm_main.h"
#include "forms/instance.h"
#include "host/host.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

void CopySelectedFiles() {
  auto& form = forms::The<frmMain>();
  const std::size_t source_length = CommandArgs.size();
  const Text target_folder = form.cbOut.text();
  for (int i = 0; i < form.lbLog.count(); ++i) {
    if (!form.lbLog.Checked(i)) continue;
    const Text& source = form.lbLog.Item(i);
    // Texts are joined as they stand: no backslash is added or taken off on either side.
    const TextView rest = TextView(source).substr(std::min(source_length, source.size()));
    host::Files().CopyFile(source, target_folder + Text(rest), false);
    form.lbLog.SetChecked(i, false);
  }
  form.clExit.SetActive(true);
}

}  // namespace orvik::mdlMain
