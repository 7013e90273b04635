#include "forms/win32/adapter.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

Adapter::~Adapter() { form_.desk().refresher().Forget(*this); }

void Adapter::Changed(Change change) { form_.desk().refresher().Mark(*this, change.property); }

}  // namespace orvik::forms::win32
