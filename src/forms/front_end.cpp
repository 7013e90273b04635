#include "forms/front_end.h"

namespace orvik::forms {

namespace {
FrontEnd* current = nullptr;
}

FrontEnd& Front() { return *current; }
void Install(FrontEnd& front_end) { current = &front_end; }

}  // namespace orvik::forms
