// Pouring files into numbered folders.
#pragma once

#include <cstdint>
#include <vector>

#include "base/checked.h"
#include "base/text.h"

namespace orvik::mdlMain {

// Puts the files of all source folders that match the masks into folders of `capacity` files each
// below a location. Folder number d is named prefix + d, file number k prefix + k + the text behind
// the last "." of its path, without a dot; with keep_names "True" files keep their names. Numbers
// have at least three digits and run on over all folders; a file whose target exists is left out.
// Copies, or moves with `move`. Writes the progress to frmFileBase. Never ends when the number of
// files is no multiple of the capacity, and never with the capacity 0.
void BuildFileBase(const std::vector<Text>& sources, Text location, std::int32_t capacity,
                   const Text& folder_prefix, const Text& file_prefix, const Text& masks, Flag move,
                   const Text& keep_names);

// What stands behind the last occurrence of a separator, letter case ignored; nothing without one.
TextView TextAfterLast(TextView text, TextView separator);

}  // namespace orvik::mdlMain
