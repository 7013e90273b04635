// The copy job: from the form's start button to the counts in its title.
#pragma once

#include <cstdint>
#include <vector>

#include "base/checked.h"
#include "base/text.h"

namespace orvik::mdlMain {

// The walk of the last job that asked to keep it.
extern std::vector<Text> CachedFileList;

// Updates the folder `to` from the folder `from`: copies each walked file whose target is missing
// or has another length or fast checksum, verifies each copy, and counts. Answers the number of
// files copied and verified; CopyErrorCount takes the errors. Reads the options cxReport and
// cxOnlyMissed of frmMain, writes its status line, bar and report. Dates play no part.
//
// With `move_files` every walked file leaves the source, whether it was copied or not; into the
// Recycle Bin with `to_recycler`. `break_tree` puts all files directly into `to`. A copy also goes
// flat into `new_files_folder` unless that is empty. `checksum_list` is the path of a file list.
std::int32_t CopyFolderTree(Text from, Text to, const Text& masks, Flag reuse_list,
                            Flag refresh_list, Flag break_tree, Flag move_files, Flag to_recycler,
                            const Text& new_files_folder, const Text& checksum_list);

// Runs the one job of frmMain, with what its controls show.
void StartCopy();

// Copies the ticked files of the report to their places in the tree, and takes the ticks off.
void CopySelectedFiles();

}  // namespace orvik::mdlMain
