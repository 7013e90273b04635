#include "forms/win32/view_factory.h"

#include "forms/list_controls.h"
#include "forms/simple_controls.h"
#include "forms/win32/button_view.h"
#include "forms/win32/check_box_view.h"
#include "forms/win32/check_list_view.h"
#include "forms/win32/combo_box_view.h"
#include "forms/win32/frame_view.h"
#include "forms/win32/label_view.h"
#include "forms/win32/line_view.h"
#include "forms/win32/list_box_view.h"
#include "forms/win32/list_view_view.h"
#include "forms/win32/picture_view.h"
#include "forms/win32/progress_bar_view.h"
#include "forms/win32/status_bar_view.h"
#include "forms/win32/text_box_view.h"
#include "forms/win32/timer_view.h"
#include "forms/win32/tree_view_view.h"
#include "forms/win32/up_down_view.h"

namespace orvik::forms::win32 {

namespace {

// A view made for a model that is known to be of its kind.
template <typename ViewClass, typename Model>
std::unique_ptr<Adapter> Make(Control& control, FormWindow& form) {
  return std::make_unique<ViewClass>(static_cast<Model&>(control), form);
}

}  // namespace

std::unique_ptr<Adapter> MakeView(Control& control, FormWindow& form) {
  switch (control.kind()) {
    case Kind::kLabel:
      return Make<LabelView, Label>(control, form);
    case Kind::kButton:
      return Make<ButtonView, Button>(control, form);
    case Kind::kFrame:
      return Make<FrameView, Frame>(control, form);
    case Kind::kCheckBox:
      return Make<CheckBoxView, CheckBox>(control, form);
    case Kind::kTextBox:
      return Make<TextBoxView, TextBox>(control, form);
    case Kind::kComboBox:
      return Make<ComboBoxView, ComboBox>(control, form);
    case Kind::kListBox:
      return static_cast<ListBox&>(control).has_boxes()
                 ? Make<CheckListView, ListBox>(control, form)
                 : Make<ListBoxView, ListBox>(control, form);
    case Kind::kListView:
      return Make<ListViewView, ListView>(control, form);
    case Kind::kProgressBar:
      return Make<ProgressBarView, ProgressBar>(control, form);
    case Kind::kStatusBar:
      return Make<StatusBarView, StatusBar>(control, form);
    case Kind::kTimer:
      return Make<TimerView, Timer>(control, form);
    case Kind::kUpDown:
      return Make<UpDownView, UpDown>(control, form);
    case Kind::kPicture:
      return Make<PictureView, Picture>(control, form);
    case Kind::kLine:
      return Make<LineView, Line>(control, form);
    case Kind::kTreeView:
      return Make<TreeViewView, TreeView>(control, form);
    // These have no window of their own.
    case Kind::kMenu:
    case Kind::kCommonDialog:
      break;
  }
  return nullptr;
}

}  // namespace orvik::forms::win32
