// The recent lists of the copy form.
#pragma once

namespace orvik::mdlMain {

// Fills the four combo boxes of frmMain from their keys.
void LoadRecentCombos();
// Appends each combo box's text to its list and saves the list.
void SaveRecentCombos();

}  // namespace orvik::mdlMain
