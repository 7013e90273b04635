// Message boxes of the system.
#pragma once

#include <optional>
#include <string_view>

#include "forms/front_end.h"
#include "robot/windows_api.h"

namespace orvik::robot {

struct MessageBoxFacts {
  Text text;
  Text title;
  forms::Icon icon = forms::Icon::kNone;
  forms::Buttons buttons = forms::Buttons::kOk;
};

// Nothing while the box isn't fully drawn.
std::optional<MessageBoxFacts> ReadMessageBox(HWND box);

// True for the shell's own question before something goes to the Recycle Bin: it has a third button
// for all files, which no box of the program has. What it asks about is drawn, not written.
bool AsksBeforeRecycling(HWND box);

// The identifier of the button that gives an answer.
int ButtonFor(forms::Answer answer);

// The words of the transcript.
std::string_view NameOf(forms::Icon icon);
std::string_view NameOf(forms::Buttons buttons);
std::string_view NameOf(forms::Answer answer);

}  // namespace orvik::robot
