// Controls with entries in one column. Positions count from 0.
#pragma once

#include <vector>

#include "forms/control.h"

namespace orvik::forms {

// An editable box with a list to drop down.
class ComboBox : public Control {
 public:
  ComboBox(Form& form, const char* name, Bounds bounds, Text text = {})
      : Control(form, Kind::kComboBox, name, bounds), text_(std::move(text)) {}

  const Text& text() const { return text_; }
  // The current entry is none afterwards: the text is the user's own or the program's.
  void SetText(TextView text);
  const std::vector<Text>& items() const { return items_; }
  int count() const { return static_cast<int>(items_.size()); }
  // The entry at a position; throws Failure when there is none.
  const Text& Item(int position) const;
  void Add(TextView item);
  // Throws Failure when there is no such entry. The text stays.
  void Remove(int position);
  // Empties the list. The text stays.
  void Clear();
  // The current entry, -1 for none.
  int index() const { return index_; }
  // Locked against typing and choosing by the user.
  bool locked() const { return locked_; }
  void SetLocked(bool locked);

  void UserType(TextView text) { SetText(text); }
  // An entry becomes the current one and the text; throws Failure when there is none.
  void UserSelect(int position);

 private:
  Text text_;
  std::vector<Text> items_;
  int index_ = -1;
  bool locked_ = false;

  void Store(TextView text, int index);
};

// A list of texts, with a check box at each entry where asked for.
class ListBox : public Control {
 public:
  enum class Boxes { kNone, kCheck };
  enum class Selection { kSingle, kExtended };

  ListBox(Form& form, const char* name, Bounds bounds, Boxes boxes = Boxes::kNone,
          Selection selection = Selection::kSingle)
      : Control(form, Kind::kListBox, name, bounds), boxes_(boxes), selection_(selection) {}

  bool has_boxes() const { return boxes_ == Boxes::kCheck; }
  bool is_extended() const { return selection_ == Selection::kExtended; }
  int count() const { return static_cast<int>(entries_.size()); }

  // Those with a position throw Failure when there is no such entry.
  const Text& Item(int position) const;
  void SetItem(int position, TextView text);
  void Add(TextView item);
  // The current entry stays the current one; when it is the one that goes, there is none.
  void Remove(int position);
  void Clear();
  bool Checked(int position) const;
  void SetChecked(int position, bool checked);
  bool Selected(int position) const;
  void SetSelected(int position, bool selected);
  // The current entry, -1 for none.
  int index() const { return index_; }

  using Control::UserClick;
  // The entry becomes the current one and the selection; mouse down, up and click follow.
  void UserClick(int position);
  // These entries become the selection and the last of them the current one. No entry is selected
  // when there are none, and the current one is none.
  enum class Follow { kNothing, kClick };
  void UserSelect(const std::vector<int>& positions, Follow follow = Follow::kClick);
  void UserCheck(int position, bool checked);
  // The space bar turns the box of the current entry over, where there are boxes.
  void UserSpace();

 private:
  struct Entry {
    Text text;
    bool checked = false;
    bool selected = false;
  };
  Entry& At(int position);
  const Entry& At(int position) const;

  const Boxes boxes_;
  const Selection selection_;
  std::vector<Entry> entries_;
  int index_ = -1;
};

}  // namespace orvik::forms
