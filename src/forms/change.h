// What a control tells its form's front end: that something of it is another than before.
#pragma once

namespace orvik::forms {

enum class Property {
  kCaption,
  kText,
  kValue,
  kVisible,
  kEnabled,
  kIndex,  // the current entry
  kLocked,
  kMax,
  kInterval,
  kActive,
  kBounds,        // position or size
  kTopmost,       // of a form
  kTopmostAgain,  // asked for anew: another window may have come before it meanwhile
  kSelected,      // which entries, rows or nodes are selected
  kFilename,
  kFilter,
  // Entries, rows and nodes; the position says which.
  kAdd,
  kItem,
  kSub,
  kColor,
  kChecked,
  kExpanded,
  kRemove,
  kClear,
  kColumns,
  kTooltip,
  kSkin,  // transparency or region of a form
};

struct Change {
  Property property;
  int position = -1;  // counted as the control counts; -1 where the whole control is meant
};

}  // namespace orvik::forms
