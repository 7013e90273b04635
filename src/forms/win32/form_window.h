// The window of a form.
#pragma once

#include <memory>
#include <optional>

#include "forms/form.h"
#include "forms/win32/desk.h"
#include "forms/win32/metrics.h"
#include "forms/win32/name_tag.h"
#include "forms/win32/surface.h"
#include "forms/win32/taskbar_button.h"

namespace orvik::forms::win32 {

class ControlView;

// Made invisible, with all its controls, when the form loads.
class FormWindow : public View, public Shown {
 public:
  FormWindow(Form& form, Desk& desk);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  Form& form() const { return form_; }
  Desk& desk() const { return desk_; }
  HWND window() const { return window_; }
  const Metrics& metrics() const { return *metrics_; }
  TaskbarButton& taskbar_button() { return taskbar_button_; }

  // Brings the form in front of the user, with the keyboard in its first field.
  void Show();
  // To be called ahead of Show: until the window closes no other form answers. It lies in front of
  // `owner`, and its first field comes up with its text selected.
  void BecomeModal(HWND owner);
  // Destroys the window. The object stays until its routines have returned.
  void Close();
  void Changed(Property property) { desk_.refresher().Mark(*this, property); }
  void Refresh(Changes changes) override;

  void Draw(const DrawnLine& line);
  void Drag();
  // Opens a menu of the form and comes back when it has closed.
  void PopUp(Menu& menu);

  // While this lives menus open at a place of the screen, not at the mouse.
  class MenuPlace {
   public:
    MenuPlace(FormWindow& form, POINT at);
    ~MenuPlace();
    MenuPlace(const MenuPlace&) = delete;
    MenuPlace& operator=(const MenuPlace&) = delete;

   private:
    FormWindow& form_;
  };

  // The control that has the keyboard; nullptr when none has.
  Control* Focused() const;
  // Moves the keyboard to the next (1) or previous (-1) control that takes it, or to the form
  // itself when there is none.
  void MoveFocus(int step);
  // Moves the keyboard on when the control that has it can't be reached any more.
  void CheckFocus();
  // The button that Enter presses when the focused control has no use of it.
  Control* DefaultButton() const;

  // To be called when all views are made: of two controls in the same place the later one is seen.
  void Stack();

  // For the views of controls.
  HWND ParentOf(const Control& control) const;
  HMENU IdOf(const Control& control) const;
  // Where a control lies in its parent, in pixels: its bounds at this resolution, moved or widened
  // as the user has widened the form.
  RECT AreaOf(const Control& control) const;
  void AddHint(const ControlView& view);
  // What is shown when the mouse rests over a control; of an empty text the control is asked each
  // time, by TTN_GETDISPINFOW.
  void SetTooltip(const ControlView& view, const Text& text);
  // Hands on what a control's window tells its parent, whichever window that is. False when it is
  // for no view.
  bool FromControl(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam,
                                    LPARAM lparam) noexcept;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
  void MakeWindow();
  void PlaceAll();
  void Resize();
  void OnUserSize(SIZE client);
  void OnResolution(int dpi, const RECT& suggested);
  void OnTimer(UINT_PTR id) const;
  void OnMenu(UINT_PTR id) const;
  void TagItems();
  void UntagItems();
  void ShowSkin();
  void Paint() const;
  bool Erase(HDC context) const;
  void OnFocus();
  void Destroyed();
  void LimitSize(MINMAXINFO& limits) const;
  LRESULT HitTest(WPARAM wparam, LPARAM lparam) const;
  void Fit(POINT& corner, SIZE size) const;
  void Centre();
  SIZE ClientSize() const;
  SIZE Size() const;
  bool InSight(const ControlView& view) const;
  bool FocusIfPossible(const Control& control) const;

  Form& form_;
  Desk& desk_;
  const int design_width_;
  const int design_height_;
  // True for a form that the user may widen, since it is sizable or has controls that follow its
  // width.
  const bool widens_;
  const DWORD style_;
  const DWORD extended_style_;
  std::unique_ptr<Metrics> metrics_;
  HWND window_ = nullptr;
  HWND hints_ = nullptr;
  NameTag tag_;
  NameTag menu_tag_{L"Orvik.Menu"};
  TaskbarButton taskbar_button_;
  Control* last_focus_ = nullptr;
  bool resizing_ = false;
  Surface surface_;
  int region_dpi_ = 0;
  std::optional<POINT> menu_place_;
  std::unique_ptr<OtherFormsDisabled> modal_;
};

// The window of a loaded form.
FormWindow& WindowOf(const Form& form);

}  // namespace orvik::forms::win32
