// Whole-file operations. None reports anything: a caller that must know looks at the file
// afterwards.
#pragma once

#include "base/checked.h"
#include "base/text.h"

namespace orvik::mdlSupport {

// The content of a file, one character a byte through the ANSI code page. A missing file reads as
// empty and is made, empty; one that can't be opened reads as as many blanks as it has bytes.
Text ReadWholeFile(const Text& path);

// Writes a content behind what a file holds, or, without append, into a new file in its place, also
// in place of a read-only one. Makes a missing file.
void AppendToFile(TextView content, const Text& path, Flag append);

// Copies or moves a file over an existing target or not. A move never leaves the volume.
void CopyOneFile(const Text& source, const Text& target, Flag overwrite);
void MoveOneFile(const Text& source, const Text& target, Flag replace);

// Deletes a file for good, against its attributes.
void DeleteOneFile(const Text& path);

// Moves a file or folder to the Recycle Bin, with the shell's own questions.
void RecycleFile(const Text& path);

}  // namespace orvik::mdlSupport
