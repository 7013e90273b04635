// The folder picker and the topmost position of a window.
#pragma once

#include "base/text.h"
#include "forms/form.h"

namespace orvik::mdlSupport {

// The folder that the user picks. After a cancel the answer isn't empty but 260 blanks, the buffer
// as the shell left it: callers that test for "" let it through, and what follows is theirs.
Text BrowseFolder(forms::Form& owner);

}  // namespace orvik::mdlSupport

namespace orvik::WindowZposition {

// Puts a form on top of all windows, or back among them, without moving or activating it.
void SetWindowTopmost(forms::Form& window, bool on);

}  // namespace orvik::WindowZposition
