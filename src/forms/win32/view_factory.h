// Which view belongs to which kind of control.
#pragma once

#include <memory>

#include "forms/win32/adapter.h"

namespace orvik::forms::win32 {

class FormWindow;

// The view of a control, with its window made; nullptr for kinds that need none.
std::unique_ptr<Adapter> MakeView(Control& control, FormWindow& form);

}  // namespace orvik::forms::win32
