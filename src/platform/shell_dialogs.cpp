#include "platform/shell_dialogs.h"

#include "forms/front_end.h"

namespace orvik::mdlSupport {

Text BrowseFolder(forms::Form& owner) {
  constexpr std::size_t kBufferLength = 260;
  return forms::Front().AskFolder(u"Выберите папку...", &owner).value_or(Text(kBufferLength, u' '));
}

}  // namespace orvik::mdlSupport

namespace orvik::WindowZposition {

void SetWindowTopmost(forms::Form& window, bool on) { window.SetTopmost(on); }

}  // namespace orvik::WindowZposition
