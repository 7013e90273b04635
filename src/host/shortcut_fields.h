// The fields of a shortcut in the one form that all hosts give and take.
#pragma once

#include "base/text.h"
#include "host/shell.h"

namespace orvik::host {

// The longest text that every shell writes and hands out: a count of its bytes, the closing zero
// included, must fit into 16 bits.
constexpr std::size_t kLongestShortcutText = 32766;

struct IconLocation {
  Text path;
  int index = 0;
};

// "path,index"; a comma that no number follows belongs to the path.
IconLocation ParseIconLocation(TextView location);
// The other way; the first icon needs no index.
Text IconLocationText(const Text& path, int index);

// A target without the quotes around it and without a closing backslash, which only the root of a
// drive keeps.
Text PlainTarget(TextView target);

// False for a shortcut that no host writes: with a text longer than that, or a target that is
// too long for a path or has a quote inside.
bool IsFitToWrite(const Shortcut& shortcut);

}  // namespace orvik::host
