#include "forms/headless/dump.h"

#include <span>

#include "forms/common_dialog.h"
#include "forms/headless/surface.h"
#include "forms/list_controls.h"
#include "forms/list_view.h"
#include "forms/simple_controls.h"
#include "forms/tree_view.h"

namespace orvik::forms::headless {

namespace {

// One member of a dumped control.
struct Member {
  std::string_view name;
  void (*write)(JsonWriter&, const Control&);
};

// The control as the class that its kind stands for.
template <typename ControlClass>
const ControlClass& As(const Control& control) {
  return static_cast<const ControlClass&>(control);
}

template <typename List>
void WriteItems(JsonWriter& json, const List& list) {
  json.BeginArray();
  for (int i = 0; i < list.count(); ++i) json.String(TextView(list.Item(i)));
  json.EndArray();
}

// The positions that have something, such as a mark.
void WritePositions(JsonWriter& json, const ListBox& list, bool (ListBox::*has)(int) const) {
  json.BeginArray();
  for (int i = 0; i < list.count(); ++i) {
    if ((list.*has)(i)) json.Number(i);
  }
  json.EndArray();
}

void WriteColumns(JsonWriter& json, const ListView& list) {
  json.BeginArray();
  for (const ListView::Column& column : list.columns()) {
    json.BeginObject().Name("text").String(TextView(column.text));
    json.Name("width").Number(column.width).EndObject();
  }
  json.EndArray();
}

void WriteRows(JsonWriter& json, const ListView& list) {
  json.BeginArray();
  for (int position = 1; position <= list.count(); ++position) {
    const ListView::Row& row = list.At(position);
    json.BeginObject().Name("text").String(TextView(row.text));
    json.Name("key").String(TextView(row.key));
    json.Name("color").Number(row.color);
    WriteSubItems(json.Name("sub"), row);
    json.Name("selected").Bool(row.selected).EndObject();
  }
  json.EndArray();
}

void WriteNodes(JsonWriter& json, const TreeView& tree) {
  json.BeginArray();
  for (int position = 1; position <= tree.count(); ++position) {
    const TreeView::Node& node = tree.At(position);
    json.BeginObject().Name("key").String(TextView(node.key));
    json.Name("text").String(TextView(node.text));
    json.Name("parent").Number(node.parent);
    json.Name("checked").Bool(node.checked);
    json.Name("expanded").Bool(node.expanded).EndObject();
  }
  json.EndArray();
}

void WriteDrawn(JsonWriter& json, const Surface& surface) {
  json.BeginArray();
  for (const DrawnLine& line : surface.lines()) {
    json.BeginArray().Number(line.x1).Number(line.y1).Number(line.x2).Number(line.y2);
    json.Number(line.color).EndArray();
  }
  json.EndArray();
}

void WriteRegion(JsonWriter& json, const RoundRegion& region) {
  json.BeginArray().Number(region.left).Number(region.top);
  json.Number(region.right).Number(region.bottom);
  json.Number(region.corner_width).Number(region.corner_height).EndArray();
}

// The positions of the selected rows: what changes of the selection are told by.
void WriteSelectedRows(JsonWriter& json, const ListView& list) {
  json.BeginArray();
  for (int position = 1; position <= list.count(); ++position) {
    if (list.At(position).selected) json.Number(position);
  }
  json.EndArray();
}

constexpr Member kVisible = {"visible",
                             [](JsonWriter& json, const Control& c) { json.Bool(c.visible()); }};
constexpr Member kEnabled = {"enabled",
                             [](JsonWriter& json, const Control& c) { json.Bool(c.enabled()); }};

constexpr Member kCaptioned[] = {
    kVisible, kEnabled, {"caption", [](JsonWriter& json, const Control& c) {
                           json.String(TextView(As<Captioned>(c).caption()));
                         }}};

constexpr Member kCheckBox[] = {
    kVisible, kEnabled, kCaptioned[2], {"value", [](JsonWriter& json, const Control& c) {
                                          json.Number(As<CheckBox>(c).value());
                                        }}};

constexpr Member kTextBox[] = {kVisible, kEnabled, {"text", [](JsonWriter& json, const Control& c) {
                                                      json.String(TextView(As<TextBox>(c).text()));
                                                    }}};

constexpr Member kComboBox[] = {
    kVisible,
    kEnabled,
    {"text",
     [](JsonWriter& json, const Control& c) { json.String(TextView(As<ComboBox>(c).text())); }},
    {"items", [](JsonWriter& json, const Control& c) { WriteItems(json, As<ComboBox>(c)); }},
    {"index", [](JsonWriter& json, const Control& c) { json.Number(As<ComboBox>(c).index()); }},
    {"locked", [](JsonWriter& json, const Control& c) { json.Bool(As<ComboBox>(c).locked()); }}};

constexpr Member kListBoxWithBoxes[] = {
    kVisible,
    kEnabled,
    {"items", [](JsonWriter& json, const Control& c) { WriteItems(json, As<ListBox>(c)); }},
    {"index", [](JsonWriter& json, const Control& c) { json.Number(As<ListBox>(c).index()); }},
    {"selected",
     [](JsonWriter& json, const Control& c) {
       WritePositions(json, As<ListBox>(c), &ListBox::Selected);
     }},
    {"checked", [](JsonWriter& json, const Control& c) {
       WritePositions(json, As<ListBox>(c), &ListBox::Checked);
     }}};
constexpr std::span<const Member> kListBox = std::span(kListBoxWithBoxes).first(5);

constexpr Member kListView[] = {
    kVisible,
    kEnabled,
    {"columns", [](JsonWriter& json, const Control& c) { WriteColumns(json, As<ListView>(c)); }},
    {"rows", [](JsonWriter& json, const Control& c) { WriteRows(json, As<ListView>(c)); }}};

constexpr Member kTreeView[] = {
    kVisible,
    kEnabled,
    {"nodes", [](JsonWriter& json, const Control& c) { WriteNodes(json, As<TreeView>(c)); }},
    {"selected",
     [](JsonWriter& json, const Control& c) { json.Number(As<TreeView>(c).selected()); }},
    {"tooltip",
     [](JsonWriter& json, const Control& c) { json.String(TextView(As<TreeView>(c).tooltip())); }}};

constexpr Member kProgressBar[] = {
    kVisible,
    kEnabled,
    {"max", [](JsonWriter& json, const Control& c) { json.Number(As<ProgressBar>(c).max()); }},
    {"value", [](JsonWriter& json, const Control& c) { json.Number(As<ProgressBar>(c).value()); }}};

constexpr Member kStatusBar[] = {
    kVisible, kEnabled, {"text", [](JsonWriter& json, const Control& c) {
                           json.String(TextView(As<StatusBar>(c).text()));
                         }}};

constexpr Member kTimer[] = {
    {"interval", [](JsonWriter& json, const Control& c) { json.Number(As<Timer>(c).interval()); }},
    {"active", [](JsonWriter& json, const Control& c) { json.Bool(As<Timer>(c).active()); }}};

constexpr Member kCommonDialog[] = {
    {"filter", [](JsonWriter& json,
                  const Control& c) { json.String(TextView(As<CommonDialog>(c).filter())); }},
    {"filename", [](JsonWriter& json, const Control& c) {
       json.String(TextView(As<CommonDialog>(c).filename()));
     }}};

constexpr Member kPlain[] = {kVisible, kEnabled};
constexpr Member kLine[] = {kVisible};

struct KindInDump {
  std::string_view name;
  std::span<const Member> members;
};

// The one place that knows what each kind shows.
KindInDump Describe(const Control& control) {
  switch (control.kind()) {
    case Kind::kLabel:
      return {"Label", kCaptioned};
    case Kind::kButton:
      return {"Button", kCaptioned};
    case Kind::kFrame:
      return {"Frame", kCaptioned};
    case Kind::kMenu:
      return {"Menu", kCaptioned};
    case Kind::kCheckBox:
      return {"CheckBox", kCheckBox};
    case Kind::kTextBox:
      return {"TextBox", kTextBox};
    case Kind::kComboBox:
      return {"ComboBox", kComboBox};
    case Kind::kListBox:
      return {"ListBox", As<ListBox>(control).has_boxes() ? kListBoxWithBoxes : kListBox};
    case Kind::kListView:
      return {"ListView", kListView};
    case Kind::kTreeView:
      return {"TreeView", kTreeView};
    case Kind::kProgressBar:
      return {"ProgressBar", kProgressBar};
    case Kind::kStatusBar:
      return {"StatusBar", kStatusBar};
    case Kind::kTimer:
      return {"Timer", kTimer};
    case Kind::kCommonDialog:
      return {"CommonDialog", kCommonDialog};
    case Kind::kPicture:
      return {"Picture", kPlain};
    case Kind::kUpDown:
      return {"UpDown", kPlain};
    case Kind::kLine:
      return {"Line", kLine};
  }
  return {};
}

void WriteControl(JsonWriter& json, const Control& control) {
  const KindInDump kind = Describe(control);
  json.BeginObject().Name("kind").String(kind.name);
  for (const Member& member : kind.members) member.write(json.Name(member.name), control);
  json.EndObject();
}

}  // namespace

void WriteSubItems(JsonWriter& json, const ListView::Row& row) {
  json.BeginArray();
  for (const ListView::SubItem& item : row.sub) json.String(TextView(item.text));
  json.EndArray();
}

void WriteForm(JsonWriter& json, const Form& form) {
  json.Name("form").String(form.name());
  json.Name("caption").String(TextView(form.caption()));
  json.Name("visible").Bool(form.visible());
  json.Name("width").Number(form.width());
  json.Name("height").Number(form.height());
  json.Name("topmost").Bool(form.topmost());
  if (const Surface* surface = Surface::Of(form)) WriteDrawn(json.Name("drawn"), *surface);
  if (form.skinned()) json.Name("transparency").Number(form.transparency());
  if (form.region()) WriteRegion(json.Name("region"), *form.region());
  json.Name("controls").BeginObject();
  for (const Control* control : form.controls()) {
    WriteControl(json.Name(control->name()), *control);
  }
  json.EndObject();
}

bool WriteMember(JsonWriter& json, const Control& control, std::string_view name) {
  if (control.kind() == Kind::kListView && name == "selected") {
    // A dump has this with each row.
    WriteSelectedRows(json, As<ListView>(control));
    return true;
  }
  const KindInDump kind = Describe(control);
  for (const Member& member : kind.members) {
    if (member.name != name) continue;
    member.write(json, control);
    return true;
  }
  return false;
}

}  // namespace orvik::forms::headless
