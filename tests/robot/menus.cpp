#include "robot/menus.h"

#include "robot/controls.h"
#include "robot/dump.h"
#include "robot/input.h"
#include "robot/window_facts.h"

namespace orvik::robot {

bool Menus::Look(const std::vector<HWND>& forms) {
  HWND open_on = nullptr;
  std::string menu;
  for (HWND form : forms) {
    menu = NameOf(form, L"Orvik.Menu");
    if (menu.empty()) continue;
    open_on = form;
    break;
  }
  const bool news = open_on != nullptr && open_on != open_on_;
  open_on_ = open_on;
  if (!news) return false;
  record_.Begin("popup").Name("form").String(FormNameOf(open_on)).Name("menu").String(menu);
  record_.End();
  return true;
}

bool Menus::Dismiss() const {
  if (open_on_ == nullptr) return false;
  StrikeKey({VK_ESCAPE, 0});
  return true;
}

void Menus::Choose(HWND form, const std::string& item) {
  const Text property = u"Orvik.Item." + FromUtf8(item);
  const auto number = reinterpret_cast<UINT_PTR>(GetPropW(form, Wide(property)));
  if (number == 0) throw Refused{"no menu item " + FormNameOf(form) + "." + item};
  if (open_on_ != form) {
    messenger_.Send(form, WM_COMMAND, LOWORD(number));
    return;
  }
  for (int place = HIWORD(number); place > 0; --place) StrikeKey({VK_DOWN, 0});
  StrikeKey({VK_RETURN, 0});
}

}  // namespace orvik::robot
