// The questions that the system, or a small dialog of the program's own, puts to the user.
#pragma once

#include <optional>

#include "forms/front_end.h"
#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// Each belongs to an owner, nullptr when no form is open, and returns when it is answered.
Answer ShowMessage(HWND owner, const Text& text, const Text& title, Icon icon, Buttons buttons);
// Empty on cancel.
Text ShowInputBox(HWND owner, const Text& prompt, const Text& title);
// Nothing on cancel, or for a place that isn't a folder of the file system.
std::optional<Text> ShowFolderDialog(HWND owner, const Text& title);
// `filter` as "description|mask|description|mask". Nothing on cancel.
std::optional<Text> ShowFileDialog(HWND owner, FileDialog dialog, const Text& filter);

// Another program may hold the clipboard for a moment; after a while of trying the text is dropped.
void CopyToClipboard(HWND owner, const Text& text);

}  // namespace orvik::forms::win32
