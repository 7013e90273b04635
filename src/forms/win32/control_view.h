// A control that has a window of its own.
#pragma once

#include <functional>
#include <optional>

#include "forms/win32/adapter.h"
#include "forms/win32/name_tag.h"
#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// Each kind of control derives from this, creates its window in its constructor, shows the model in
// Refresh and hands the user's doings to the model in the routines below. A message that a program
// sends to the window counts like the user's doing; what the view itself sends doesn't.
class ControlView : public Adapter {
 public:
  using Adapter::Adapter;
  ~ControlView() override;

  HWND window() const { return window_; }

  // The view of a control's window or of a part of it, such as the field of a combo box; nullptr
  // when there is none.
  static ControlView* Of(HWND window);

  // Lays the window out at the present resolution and width of the form.
  virtual void Place();
  // The resolution has changed, so the font has.
  virtual void Rescale();
  void Refresh(Changes changes) override;

  // The window tells its parent something.
  virtual void OnCommand(WORD /*code*/) {}
  // The answer to the message, or nothing for the system's own handling.
  virtual std::optional<LRESULT> OnNotify(NMHDR& /*header*/) { return std::nullopt; }
  // The window is about to be drawn: the brush of its background, with the colours of the text set,
  // or nullptr for the system's.
  virtual HBRUSH OnColor(HDC /*context*/) { return nullptr; }
  // A window that leaves its drawing to its owner is to be drawn.
  virtual void OnDraw(const DRAWITEMSTRUCT& /*draw*/) {}
  // The keyboard came to the control, or left it.
  virtual void OnFocus(bool /*here*/) {}
  // The window needs Enter or Esc for itself now.
  virtual bool NeedsEnter() const { return false; }
  // What Enter does here instead of pressing the form's default button. False when nothing.
  virtual bool PressEnter() { return false; }
  // The arrow keys move the focus from here, since the control doesn't use them.
  virtual bool LetsArrowsGo() const { return false; }

 protected:
  void Create(const wchar_t* window_class, const Text& text, DWORD style, DWORD extended_style = 0);
  // Where the window is to be within its parent, in pixels.
  virtual RECT Area() const;
  virtual LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
  // The system's own handling of a message.
  LRESULT Default(UINT message, WPARAM wparam, LPARAM lparam) const;
  LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
    return SendMessageW(window_, message, wparam, lparam);
  }
  // Marks the window when it has the keyboard and the user works by keyboard.
  void DrawFocus() const;
  // Gives the model an event when the user can get at the control; else the control is put back as
  // the model has it.
  bool Deliver(const std::function<void()>& event);

  // Set while the view itself changes the window, so that the window's report isn't taken for the
  // user's doing.
  class Showing {
   public:
    explicit Showing(ControlView& view) : view_(view) { ++view_.showing_; }
    ~Showing() { --view_.showing_; }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

   private:
    ControlView& view_;
  };
  bool showing() const { return showing_ > 0; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                                    UINT_PTR id, DWORD_PTR view) noexcept;
  void OnMouse(UINT message, WPARAM wparam);

  HWND window_ = nullptr;
  NameTag tag_;
  int showing_ = 0;
};

// The Shift state of the message that is being handled.
int ShiftState();

}  // namespace orvik::forms::win32
