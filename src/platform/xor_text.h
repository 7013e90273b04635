// The scrambling of files under a key.
#pragma once

#include "base/text.h"

namespace orvik::mdlMain {

// Combines each character's code in the ANSI code page with one of the key's, in place. The key
// begins with its second character and takes its first one last, then wraps; of a key longer than
// the text only as many characters count as the text has. Done twice with one key it gives the text
// back. Scrambled files rest on all of that. Without a key, or a text, nothing happens.
void XorText(Text& text, TextView key);

}  // namespace orvik::mdlMain
