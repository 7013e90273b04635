// The checksum list of a copy job.
#pragma once

#include "base/keyed_collection.h"
#include "base/text.h"

namespace orvik::mdlMain {

// Adds to the index what a file list gives. Item and key always come from the first two lines of
// the file, whatever line is at hand: the index gets at most one entry, the whole first line under
// "k" and the whole second line.
void ReadChecksumList(const Text& path, KeyedCollection& index);

}  // namespace orvik::mdlMain
