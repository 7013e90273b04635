// The system's dialog for one file name.
#pragma once

#include "forms/front_end.h"
#include "robot/windows_api.h"

namespace orvik::robot {

bool IsFileDialog(HWND dialog);
// To open or to save.
forms::FileDialog PurposeOf(HWND dialog);
// The choice of types as "description|mask|description|mask". `process` owns the dialog.
Text FilterOf(HANDLE process, HWND dialog);
// The field for the name.
HWND NameFieldOf(HWND dialog);

}  // namespace orvik::robot
