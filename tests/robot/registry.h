// The registry as a script shows it.
#pragma once

#include "forms/headless/json.h"
#include "forms/headless/values.h"
#include "robot/windows_api.h"

namespace orvik::robot {

// Writes the values of a key as an array of pairs in the order of their enumeration; null for a key
// that doesn't exist.
void WriteRegistryKey(forms::headless::JsonWriter& json, const forms::headless::KeyPath& key);

}  // namespace orvik::robot
