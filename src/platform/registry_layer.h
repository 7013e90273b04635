// The layer through which all registry access passes. It reports nothing: a failed read gives an
// empty text, a failed write leaves the old state.
#pragma once

#include <cstdint>

#include "base/text.h"

namespace orvik::mdlSupport {

// hKey 0 means RegRootKey, a path "" means RegRootPath, an empty value name the unnamed value.

// Makes the key when it is missing. Type 0 means a text.
void WriteRegValue(std::uint32_t hKey, const Text& path, const Text& name, const Text& data,
                   std::uint32_t type);
// The data of a value whose name is exactly this, letter case included; "" when absent.
Text ReadRegValue(std::uint32_t hKey, const Text& path, const Text& name);
// Makes the key when it is missing.
void DeleteRegValue(std::uint32_t hKey, const Text& path, const Text& name);
// Deletes a key that has no sub-keys.
void DeleteRegKey(std::uint32_t hKey, const Text& path);
// The name, the data of the value at an index from 0. Past the end "" or a run of blanks: whoever
// tests for the end trims first.
Text EnumRegValueName(std::uint32_t hKey, const Text& path, std::int32_t index);
Text EnumRegValueData(std::uint32_t hKey, const Text& path, std::int32_t index);

// The last error of the layer, 0 for none, and its text.
extern std::int16_t RegLastError;
extern Text RegLastErrorText;
// Stores a code from -1 to 5 with its text; RaiseRegError only where none is stored.
void SetRegError(std::int16_t code);
void RaiseRegError(std::int16_t code);

}  // namespace orvik::mdlSupport
