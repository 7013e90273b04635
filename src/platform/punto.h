// The list of programs in which Punto Switcher, a switcher of keyboard layouts, doesn't act.
#pragma once

#include "base/text.h"

namespace orvik::mdlMain {

// Punto Switcher's folder without a closing backslash; empty when there is none. The one in the
// Windows folder wins.
Text PuntoFolder();

// Adds a program to the list and restarts Punto Switcher, and says what came of it.
void AddToPunto(const Text& program);

}  // namespace orvik::mdlMain
