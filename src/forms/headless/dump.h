// The state of forms and controls, as dumps and traces write it.
#pragma once

#include <string_view>

#include "forms/form.h"
#include "forms/headless/json.h"
#include "forms/list_view.h"

namespace orvik::forms::headless {

// The members of a form behind "event", its controls with all of theirs among them.
void WriteForm(JsonWriter& json, const Form& form);

// The texts of a row's sub-items.
void WriteSubItems(JsonWriter& json, const ListView::Row& row);

// One member of a control by its name, its value alone. False, with nothing written, when the kind
// has no such member. A list view has "selected" besides, the positions of its selected rows.
bool WriteMember(JsonWriter& json, const Control& control, std::string_view name);

}  // namespace orvik::forms::headless
