// What a user does to forms and controls.
#pragma once

#include <string>

#include "forms/headless/script.h"

namespace orvik::forms::headless {

// The loaded form of this name, or nullptr.
Form* FindForm(std::string_view name);

// Carries out what the user does. The answer is why a user couldn't do it, empty when it was done.
// Handlers of the program run inside and may throw.
std::string Do(const Click& event);
std::string Do(const DoubleClick& event);
std::string Do(const Check& event);
std::string Do(const Type& event);
std::string Do(const Select& event);
std::string Do(const MouseButton& event);
std::string Do(const KeyStroke& event);
std::string Do(const Arrow& event);
std::string Do(const ChooseMenu& event);
std::string Do(const Resize& event);
std::string Do(const Close& event);

// The character that a key types in a Shift state, 0 for a key that types none.
int CharacterOf(Key key);

}  // namespace orvik::forms::headless
