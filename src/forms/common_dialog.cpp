#include "forms/common_dialog.h"

namespace orvik::forms {

void CommonDialog::SetFilter(TextView filter) {
  if (filter_ == filter) return;
  filter_ = filter;
  Changed(Property::kFilter);
}

void CommonDialog::Ask(FileDialog dialog) {
  const auto chosen = Front().AskFileName(dialog, filter_, &form());
  if (!chosen || *chosen == filename_) return;
  filename_ = *chosen;
  Changed(Property::kFilename);
}

}  // namespace orvik::forms
