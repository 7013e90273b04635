// The strip that stays on top and watches one number.
#pragma once

#include <cstdint>

#include "forms/form.h"
#include "forms/simple_controls.h"

namespace orvik {

// Watches the free space of a drive, the load of the memory or the size of a folder: the argument
// says which, once. The gauge shows no fullness: it wraps every 10 MiB and moves with the low part
// of the value, so that any change is seen.
class frmWatchFolderSize : public forms::Form {
 public:
  frmWatchFolderSize();

  forms::Label frRights{*this, "frRights", {120, 15, 3960, 225}, u"Rights"};
  forms::Label frFolder{*this, "frFolder", {120, 270, 3270, 225}, u"Folder"};
  forms::Label frSizeMB{*this, "frSizeMB", {3420, 270, 930, 225}, u"..."};
  forms::Line lnOne{*this, "lnOne", {120, 250, 4200, 0}};
  forms::Picture pbExit{*this, "pbExit", {4155, 30, 195, 195}, forms::Picture::Image::kExit};
  forms::Timer clMain{*this, "clMain", 2000, true};

  // Draws the scale for -1; moves the pointer to where a value stands otherwise.
  void DrawGauge(std::int32_t value);

 protected:
  void OnLoad() override;

 private:
  void WireEvents();
  void Describe();
  void Tick();
  std::int32_t Measure(Text& shown) const;

  bool IsDriveMode = false;
  bool IsMemoryMode = false;
  std::int32_t GaugeX = 0;  // the place of the pointer in twips
};

}  // namespace orvik
