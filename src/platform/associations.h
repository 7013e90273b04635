// Documents opened with the program that is registered for them.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// Starts a program, or a document with its associated one, and doesn't wait. The association is
// looked up under the last three characters of the path, whatever its extension's real length. Does
// nothing, silently, when the path is missing, has no association, or has one without ".exe" or
// ".com" in its command.
void OpenWithAssociation(const Text& path);

}  // namespace orvik::mdlSupport
