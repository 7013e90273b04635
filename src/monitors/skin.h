// What makes a form a skin: translucent, rounded, dragged by its surface.
#pragma once

#include "forms/form.h"

namespace orvik::FormMouseMove {

// Hands a press on the form over to the system as if it had hit a title bar; the system then moves
// the window.
void DragForm(forms::Form& form);

}  // namespace orvik::FormMouseMove

namespace orvik::mdlWindowsTransparent {

// From 0, invisible, to 255.
void SetWindowTransparency(forms::Form& form, int level);

}  // namespace orvik::mdlWindowsTransparent

namespace orvik::WindowForm {

// Cuts a form to a rectangle with rounded corners. The rectangle is in twips, and a right or bottom
// of 0 is the form's own; the corners' size is in pixels.
void SetRoundWindow(forms::Form& form, int left, int top, int right, int bottom, int corner_width,
                    int corner_height);

}  // namespace orvik::WindowForm
