// Path texts: taking them apart and building them. A path has backslashes and is never normalised.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// The text behind the last backslash, the whole text when there is none. A path that ends in a
// backslash gives its last folder with that backslash.
TextView GetFileName(TextView path);

// The text up to and including the last backslash; empty when there is none.
TextView GetFolderPath(TextView path);

// Root, "...\" and last component: the short form for titles. Throws Failure on a text without a
// backslash.
Text ShortenPath(TextView path);

// A drive text such as "C:" of a path, a letter, or nothing (the system's drive).
Text GetDriveSpec(TextView path);

// The path with a closing backslash. An empty text becomes a lone backslash.
Text AddBackslash(TextView path);
void EnsureBackslash(Text& path);

// Makes the missing levels of a folder path, from the fourth character on; levels that exist or
// can't be made pass silently, and later ones are still tried.
void CreateFolderPath(const Text& folder);

// The system directory, trimmed of blanks.
Text GetSystemFolder();

}  // namespace orvik::mdlSupport
