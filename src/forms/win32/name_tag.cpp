#include "forms/win32/name_tag.h"

namespace orvik::forms::win32 {

void NameTag::Put(HWND window, const std::string& name) {
  window_ = window;
  atom_ = GlobalAddAtomW(Wide(FromUtf8(name)));
  SetPropW(window, property_, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(atom_)));
}

void NameTag::Remove() {
  if (atom_ == 0) return;
  RemovePropW(window_, property_);
  GlobalDeleteAtom(atom_);
  atom_ = 0;
}

}  // namespace orvik::forms::win32
