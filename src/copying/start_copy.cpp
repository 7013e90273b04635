#include "base/numbers.h"
#include "cleaning/frm_empty_folders.h"
#include "copying/copy_job.h"
#include "copying/frm_main.h"
#include "copying/recent_combos.h"
#include "forms/front_end.h"
#include "forms/instance.h"
#include "platform/shell_dialogs.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

namespace {

// For good: a process runs one job. The controls of the second folder stay as they are.
void Freeze(frmMain& form) {
  form.cxOnlyMissed.SetVisible(false);
  form.pbOtherOptions.SetVisible(false);
  form.cxAfterEmptyFolderCheck.SetEnabled(false);
  form.cxBreakFolderTree.SetEnabled(false);
  form.cxMoveFiles.SetEnabled(false);
  form.cxRemoveToRecycler.SetEnabled(false);
  form.cxReport.SetEnabled(false);
  form.pbDest.SetEnabled(false);
  form.cbMask.SetLocked(true);
  form.cbOut.SetLocked(true);
  form.btStart.SetEnabled(false);
  form.btStart.SetCaption(u"Копирование ...");
}

}  // namespace

void StartCopy() {
  auto& form = forms::The<frmMain>();
  if (Trim(form.cbOut.text()).empty()) {
    forms::Front().Message(u"Выберите папку, в которую будем копировать", u"Ошибка",
                           forms::Icon::kInformation, forms::Buttons::kOk);
    return;
  }
  if (Trim(form.cbMask.text()).empty()) form.cbMask.SetText(u"*.*");
  SaveRecentCombos();
  Freeze(form);
  const std::int32_t copied =
      CopyFolderTree(CommandArgs, form.cbOut.text(), form.cbMask.text(), kFalse, kFalse,
                     ToFlag(form.cxBreakFolderTree.checked()), ToFlag(form.cxMoveFiles.checked()),
                     ToFlag(form.cxRemoveToRecycler.checked()), form.cbOut2.text(),
                     Text(Trim(form.cbFileList.text())));
  if (form.cxReport.checked()) return;
  form.SetCaption(u"Завершено. Скопировано" + SpacedDecimal(copied) + u" файлов, ошибок" +
                  SpacedDecimal(CopyErrorCount));
  if (form.cxAfterEmptyFolderCheck.checked()) {
    // It looks for empty folders in the source, and the process ends with it.
    forms::The<frmEmptyFolders>().Show();
    return;
  }
  WindowZposition::SetWindowTopmost(form, true);
  form.clExit.SetActive(true);
}

}  // namespace orvik::mdlMain
