#include "robot/dump.h"

#include "forms/form.h"
#include "robot/controls.h"
#include "robot/list_reader.h"
#include "robot/tree_reader.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

using forms::Kind;
using forms::headless::JsonWriter;

constexpr int kTwipsPerInch = 1440;

// A control that is being written.
struct Subject {
  HANDLE process;
  HWND window;
};

int Twips(int pixels, HWND window) {
  const HDC context = GetDC(window);
  const int dpi = GetDeviceCaps(context, LOGPIXELSX);
  ReleaseDC(window, context);
  return MulDiv(pixels, kTwipsPerInch, dpi);
}

void WriteState(JsonWriter& json, HWND control) {
  json.Name("visible").Bool(IsShown(control));
  json.Name("enabled").Bool((StyleOf(control) & WS_DISABLED) == 0);
}

void WriteText(JsonWriter& json, const Subject& control, std::string_view member) {
  WriteState(json, control.window);
  json.Name(member).String(TextView(TextOf(control.window)));
}

void WriteCaption(JsonWriter& json, const Subject& control) { WriteText(json, control, "caption"); }

void WriteCheckBox(JsonWriter& json, const Subject& control) {
  WriteCaption(json, control);
  json.Name("value").Number(SendMessageW(control.window, BM_GETCHECK, 0, 0));
}

void WriteItems(JsonWriter& json, const std::vector<Text>& items) {
  json.Name("items").BeginArray();
  for (const Text& item : items) json.String(TextView(item));
  json.EndArray();
}

void WritePositions(JsonWriter& json, std::string_view member, const std::vector<int>& positions) {
  json.Name(member).BeginArray();
  for (int position : positions) json.Number(position);
  json.EndArray();
}

void WriteComboBox(JsonWriter& json, const Subject& control) {
  WriteText(json, control, "text");
  WriteItems(json, ComboItems(control.window));
  json.Name("index").Number(SendMessageW(control.window, CB_GETCURSEL, 0, 0));
  json.Name("locked").Bool((StyleOf(FieldOf(control.window)) & ES_READONLY) != 0);
}

void WriteListBox(JsonWriter& json, const Subject& control) {
  const ListState list = IsListView(control.window) ? ReadListView(control.process, control.window)
                                                    : ReadListBox(control.window);
  WriteState(json, control.window);
  WriteItems(json, list.items);
  json.Name("index").Number(list.index);
  WritePositions(json, "selected", list.selected);
  if (list.has_boxes) WritePositions(json, "checked", list.checked);
}

void WriteListView(JsonWriter& json, const Subject& control) {
  const ReportState report = ReadReport(control.process, control.window);
  WriteState(json, control.window);
  json.Name("columns").BeginArray();
  for (const ReportState::Column& column : report.columns) {
    json.BeginObject().Name("text").String(TextView(column.text));
    json.Name("width").Number(Twips(column.width, control.window)).EndObject();
  }
  json.EndArray().Name("rows").BeginArray();
  for (const ReportState::Row& row : report.rows) {
    json.BeginObject().Name("text").String(TextView(row.text)).Name("sub").BeginArray();
    for (const Text& text : row.sub) json.String(TextView(text));
    json.EndArray().Name("selected").Bool(row.selected).EndObject();
  }
  json.EndArray();
}

void WriteTreeView(JsonWriter& json, const Subject& control) {
  const TreeState tree = ReadTree(control.process, control.window);
  WriteState(json, control.window);
  json.Name("nodes").BeginArray();
  for (const TreeState::Node& node : tree.nodes) {
    json.BeginObject().Name("text").String(TextView(node.text));
    json.Name("parent").Number(node.parent);
    json.Name("checked").Bool(node.checked);
    json.Name("expanded").Bool(node.expanded).EndObject();
  }
  json.EndArray().Name("selected").Number(tree.selected);
  json.Name("tooltip").String(TextView(tree.tooltip));
}

void WriteProgressBar(JsonWriter& json, const Subject& control) {
  WriteState(json, control.window);
  json.Name("max").Number(SendMessageW(control.window, PBM_GETRANGE, FALSE, 0));
  json.Name("value").Number(SendMessageW(control.window, PBM_GETPOS, 0, 0));
}

void WriteKind(JsonWriter& json, std::string_view name, const Subject& control,
               void (*write)(JsonWriter&, const Subject&)) {
  json.Name("kind").String(name);
  write(json, control);
}

// The one place that knows what each kind shows.
void WriteMembers(JsonWriter& json, const Subject& control) {
  const auto text = [](JsonWriter& out, const Subject& c) { WriteText(out, c, "text"); };
  const auto plain = [](JsonWriter& out, const Subject& c) { WriteState(out, c.window); };
  const auto line = [](JsonWriter& out, const Subject& c) {
    out.Name("visible").Bool(IsShown(c.window));
  };
  switch (KindOf(control.window)) {
    case Kind::kLabel:
      return WriteKind(json, "Label", control, WriteCaption);
    case Kind::kButton:
      return WriteKind(json, "Button", control, WriteCaption);
    case Kind::kFrame:
      return WriteKind(json, "Frame", control, WriteCaption);
    case Kind::kCheckBox:
      return WriteKind(json, "CheckBox", control, WriteCheckBox);
    case Kind::kTextBox:
      return WriteKind(json, "TextBox", control, text);
    case Kind::kComboBox:
      return WriteKind(json, "ComboBox", control, WriteComboBox);
    case Kind::kListBox:
      return WriteKind(json, "ListBox", control, WriteListBox);
    case Kind::kListView:
      return WriteKind(json, "ListView", control, WriteListView);
    case Kind::kTreeView:
      return WriteKind(json, "TreeView", control, WriteTreeView);
    case Kind::kProgressBar:
      return WriteKind(json, "ProgressBar", control, WriteProgressBar);
    case Kind::kStatusBar:
      return WriteKind(json, "StatusBar", control, text);
    case Kind::kPicture:
      return WriteKind(json, "Picture", control, plain);
    case Kind::kUpDown:
      return WriteKind(json, "UpDown", control, plain);
    case Kind::kLine:
      return WriteKind(json, "Line", control, line);
    // These have no window.
    case Kind::kMenu:
    case Kind::kTimer:
    case Kind::kCommonDialog:
      return;
  }
}

}  // namespace

std::string FormNameOf(HWND window) {
  constexpr TextView kPrefix = u"Orvik.";
  const Text name = ClassOf(window);
  return name.starts_with(kPrefix) ? ToUtf8(TextView(name).substr(kPrefix.size())) : std::string();
}

namespace {

// What a form without a title bar has beside: how translucent it is, and the box around its shape.
void WriteSkin(JsonWriter& json, HWND form) {
  BYTE level = 255;
  GetLayeredWindowAttributes(form, nullptr, &level, nullptr);
  json.Name("transparency").Number(level);
  const HRGN shape = CreateRectRgn(0, 0, 0, 0);
  if (GetWindowRgn(form, shape) != ERROR) {
    RECT box{};
    GetRgnBox(shape, &box);
    // A rounded rectangle ends one pixel ahead of its edges.
    json.Name("region").BeginArray().Number(box.left).Number(box.top);
    json.Number(box.right + 1).Number(box.bottom + 1).EndArray();
  }
  DeleteObject(shape);
}

}  // namespace

void WriteForm(JsonWriter& json, HANDLE process, HWND form) {
  const bool skinned = (StyleOf(form) & WS_CAPTION) != WS_CAPTION;
  RECT inner{};
  GetClientRect(form, &inner);
  json.Name("form").String(FormNameOf(form));
  json.Name("caption").String(TextView(TextOf(form)));
  json.Name("visible").Bool(IsShown(form));
  json.Name("width").Number(Twips(inner.right, form) + (skinned ? 0 : forms::kFrameWidth));
  json.Name("height").Number(Twips(inner.bottom, form) + (skinned ? 0 : forms::kFrameHeight));
  json.Name("topmost").Bool((ExtendedStyleOf(form) & WS_EX_TOPMOST) != 0);
  if (skinned) WriteSkin(json, form);
  json.Name("controls").BeginObject();
  ForEachBelow(form, [&](HWND window) {
    const std::string name = NameOf(window);
    if (name.empty()) return true;  // a part of a control
    json.Name(name).BeginObject();
    WriteMembers(json, {process, window});
    json.EndObject();
    return true;
  });
  json.EndObject();
}

}  // namespace orvik::robot
