#include "forms/headless/trace.h"

#include "forms/headless/dump.h"
#include "forms/list_controls.h"
#include "forms/list_view.h"
#include "forms/tree_view.h"

namespace orvik::forms::headless {

namespace {

// The member of a dump that shows a property; empty for what no dump shows.
std::string_view MemberOf(Property property) {
  switch (property) {
    case Property::kCaption:
      return "caption";
    case Property::kText:
      return "text";
    case Property::kValue:
      return "value";
    case Property::kVisible:
      return "visible";
    case Property::kEnabled:
      return "enabled";
    case Property::kIndex:
      return "index";
    case Property::kLocked:
      return "locked";
    case Property::kMax:
      return "max";
    case Property::kInterval:
      return "interval";
    case Property::kActive:
      return "active";
    case Property::kTopmost:
      return "topmost";
    case Property::kSelected:
      return "selected";
    case Property::kFilename:
      return "filename";
    case Property::kFilter:
      return "filter";
    case Property::kColumns:
      return "columns";
    case Property::kTooltip:
      return "tooltip";
    default:
      return {};
  }
}

// What an entry shows, by the kind of its control.
const Text& TextAt(const Control& control, int position) {
  switch (control.kind()) {
    case Kind::kComboBox:
      return static_cast<const ComboBox&>(control).Item(position);
    case Kind::kListView:
      return static_cast<const ListView&>(control).At(position).text;
    case Kind::kTreeView:
      return static_cast<const TreeView&>(control).At(position).text;
    default:
      return static_cast<const ListBox&>(control).Item(position);
  }
}

bool CheckedAt(const Control& control, int position) {
  if (control.kind() == Kind::kTreeView) {
    return static_cast<const TreeView&>(control).At(position).checked;
  }
  return static_cast<const ListBox&>(control).Checked(position);
}

const ListView::Row& RowAt(const Control& control, int position) {
  return static_cast<const ListView&>(control).At(position);
}

}  // namespace

JsonWriter& Tracer::Begin(const Form& form, std::string_view control, std::string_view property) {
  JsonWriter& json = transcript_.Begin("change");
  json.Name("form").String(form.name());
  json.Name("control").String(control);
  json.Name("property").String(property);
  return json.Name("value");
}

void Tracer::Load(const Form& form) { sizes_[&form] = {form.width(), form.height()}; }

void Tracer::Changed(const Form& form, Change change) {
  switch (change.property) {
    case Property::kCaption:
      Begin(form, "", "caption").String(TextView(form.caption()));
      transcript_.EndHeldBack();
      break;
    case Property::kTopmost:
      Begin(form, "", "topmost").Bool(form.topmost());
      transcript_.EndHeldBack();
      break;
    case Property::kBounds: {
      Size& known = sizes_[&form];
      if (known.width != form.width()) {
        Begin(form, "", "width").Number(form.width());
        transcript_.EndHeldBack();
      }
      if (known.height != form.height()) {
        Begin(form, "", "height").Number(form.height());
        transcript_.EndHeldBack();
      }
      known = {form.width(), form.height()};
      break;
    }
    default:
      break;
  }
}

void Tracer::Changed(const Control& control, Change change) {
  const Form& form = control.form();
  const auto at = [&](std::string_view property) {
    return std::string(property) + "(" + std::to_string(change.position) + ")";
  };
  switch (change.property) {
    case Property::kAdd:
      Begin(form, control.name(), "add").String(TextView(TextAt(control, change.position)));
      break;
    case Property::kItem:
      Begin(form, control.name(), at("item")).String(TextView(TextAt(control, change.position)));
      break;
    case Property::kSub:
      WriteSubItems(Begin(form, control.name(), at("sub")), RowAt(control, change.position));
      break;
    case Property::kColor:
      Begin(form, control.name(), at("color")).Number(RowAt(control, change.position).color);
      break;
    case Property::kChecked:
      Begin(form, control.name(), at("checked")).Bool(CheckedAt(control, change.position));
      break;
    case Property::kRemove:
      Begin(form, control.name(), at("remove")).Null();
      break;
    case Property::kClear:
      Begin(form, control.name(), "clear").Null();
      break;
    default: {
      const std::string_view member = MemberOf(change.property);
      std::string value;
      JsonWriter probe(value);
      if (member.empty() || !WriteMember(probe, control, member)) return;
      WriteMember(Begin(form, control.name(), member), control, member);
    }
  }
  transcript_.EndHeldBack();
}

}  // namespace orvik::forms::headless
