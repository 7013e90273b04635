// The form that shows the length and both checksums of one file.
#pragma once

#include <array>

#include "forms/form.h"
#include "forms/simple_controls.h"

namespace orvik {

class frmFileCRC : public forms::Form {
 public:
  frmFileCRC();

  forms::Label frFile{*this, "frFile", {120, 120, 5670, 255}, u"File"};
  forms::Line lnOne0{*this, "lnOne", {120, 435, 5670, 0}, 0};
  forms::Label fr01{*this, "fr01", {120, 540, 1800, 255}, u"Full CRC"};
  forms::Label fr02{*this, "fr02", {120, 855, 1800, 255}, u"Fast CRC"};
  forms::Label Метка1{*this, "Метка1", {120, 1170, 1800, 255}, u"Размер файла"};
  // The full checksum, the fast checksum, the size. A click puts a value on the clipboard.
  std::array<forms::Label, 3> frCRC{
      forms::Label{*this, "frCRC", {2040, 540, 3750, 255}, u"accounting ...", 0},
      forms::Label{*this, "frCRC", {2040, 855, 3750, 255}, u"accounting ...", 1},
      forms::Label{*this, "frCRC", {2040, 1170, 3750, 255}, u"accounting ...", 2}};
  forms::Line lnOne1{*this, "lnOne", {120, 1500, 5670, 0}, 1};

 protected:
  void OnLoad() override;
  void OnUnload() override;
};

}  // namespace orvik
