// Text between the Windows character set and the DOS one.
#pragma once

#include <array>
#include <cstdint>

#include "base/checked.h"
#include "base/text.h"

namespace orvik::WinDosConv2 {

// Texts here are contents of files, one character a byte through the ANSI code page: a conversion
// of a character is one of a byte, and the length stays.

// As the system's own conversion between its two code pages does it. Stops at a character with the
// code 0; what follows stays. On a Russian system a character that the other page lacks becomes its
// look-alike, on any other a question mark.
void ConvertCharToOem(Text& text);
void ConvertOemToChar(Text& text);

// The program's own tables between code page 866 and code page 1251, whatever the system's are.
// Filled once, by BuildCharTables, which sets the flag.
extern Flag CharTablesReady;
extern std::array<std::uint8_t, 256> DosToWinTable;
extern std::array<std::uint8_t, 256> WinToDosTable;
void BuildCharTables();

// Replaces every character by the one with the code that WinToDosTable gives.
void ConvertWinToDos(Text& text);

}  // namespace orvik::WinDosConv2
