// A shortcut as the program knows it, in its file and out of it.
#pragma once

#include "host/shell.h"
#include "host/shell_link/shell_link.h"

namespace orvik::host {

// What a system says of the place that a target names.
struct TargetFacts {
  bool folder = false;
  int drive_type = 0;
};

// The target must be empty or a full path of a drive or share. It is told in each way that some
// reader relies on: Windows goes by the items of a path on a drive and by the path with variables
// of a share, Wine by the local path of either. Texts end at a zero.
ShellLink LinkOf(const Shortcut& shortcut, const Text& target, const TargetFacts& facts);

// The target is the one that Windows goes by: the path with variables, which comes expanded or
// empty, else the way from the desktop down, else what is known of the place. A file that tells
// none gives a shortcut without a target. Texts are cut to what a shell hands out.
Shortcut ShortcutOf(const ShellLink& link, const Text& expanded_path);

}  // namespace orvik::host
