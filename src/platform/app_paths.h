// Programs that have told the system where they are: the App Paths of the registry.
#pragma once

#include "base/text.h"

namespace orvik::mdlSupport {

// Gives a program's name its extension and takes off what follows one, such as arguments. The
// extension is looked for without letter case but tested with it: a name in capitals that ends in
// ".EXE" gets a second one. An empty name stays empty.
void NormaliseExeName(Text& name);

// The path of a registered program, by its file name; a folder in the name doesn't count. Empty
// when the program isn't registered.
Text GetAppPath(const Text& name);

// Registers a path under a program's name as it stands: a folder in it would become part of the
// key.
void SetAppPath(const Text& name, const Text& path);

}  // namespace orvik::mdlSupport
