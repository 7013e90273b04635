#include "forms/list_controls.h"

#include "base/failure.h"

namespace orvik::forms {

namespace {

// The index of an entry in its vector; throws Failure when there is no such entry.
std::size_t Existing(int position, std::size_t count) {
  if (position < 0 || static_cast<std::size_t>(position) >= count) throw Failure{};
  return static_cast<std::size_t>(position);
}

}  // namespace

void ComboBox::SetText(TextView text) { Store(text, -1); }

void ComboBox::Store(TextView text, int index) {
  if (text_ != text) {
    text_ = text;
    Changed(Property::kText);
  }
  if (index_ != index) {
    index_ = index;
    Changed(Property::kIndex);
  }
}

const Text& ComboBox::Item(int position) const { return items_[Existing(position, items_.size())]; }

void ComboBox::Add(TextView item) {
  items_.emplace_back(item);
  Changed(Property::kAdd, count() - 1);
}

void ComboBox::Remove(int position) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(Existing(position, items_.size())));
  if (index_ == position) {
    index_ = -1;
  } else if (index_ > position) {
    --index_;
  }
  Changed(Property::kRemove, position);
}

void ComboBox::Clear() {
  if (items_.empty()) return;
  items_.clear();
  index_ = -1;
  Changed(Property::kClear);
}

void ComboBox::SetLocked(bool locked) {
  if (locked_ == locked) return;
  locked_ = locked;
  Changed(Property::kLocked);
}

void ComboBox::UserSelect(int position) {
  Store(Text(Item(position)), position);
  if (on_click) on_click();
}

ListBox::Entry& ListBox::At(int position) { return entries_[Existing(position, entries_.size())]; }

const ListBox::Entry& ListBox::At(int position) const {
  return entries_[Existing(position, entries_.size())];
}

const Text& ListBox::Item(int position) const { return At(position).text; }

void ListBox::SetItem(int position, TextView text) {
  Entry& entry = At(position);
  if (entry.text == text) return;
  entry.text = text;
  Changed(Property::kItem, position);
}

void ListBox::Add(TextView item) {
  entries_.push_back({Text(item)});
  Changed(Property::kAdd, count() - 1);
}

void ListBox::Remove(int position) {
  At(position);
  entries_.erase(entries_.begin() + position);
  if (index_ == position) {
    index_ = -1;
  } else if (index_ > position) {
    --index_;
  }
  Changed(Property::kRemove, position);
}

void ListBox::Clear() {
  if (entries_.empty()) return;
  entries_.clear();
  index_ = -1;
  Changed(Property::kClear);
}

bool ListBox::Checked(int position) const { return At(position).checked; }

void ListBox::SetChecked(int position, bool checked) {
  Entry& entry = At(position);
  if (entry.checked == checked) return;
  entry.checked = checked;
  Changed(Property::kChecked, position);
}

bool ListBox::Selected(int position) const { return At(position).selected; }

void ListBox::SetSelected(int position, bool selected) {
  Entry& entry = At(position);
  if (entry.selected == selected) return;
  entry.selected = selected;
  Changed(Property::kSelected, position);
}

void ListBox::UserClick(int position) {
  At(position);
  UserSelect({position}, Follow::kNothing);
  UserMouse(true, {});
  UserMouse(false, {});
  if (on_click) on_click();
}

void ListBox::UserSelect(const std::vector<int>& positions, Follow follow) {
  for (int position : positions) At(position);
  for (int position = 0; position < count(); ++position) SetSelected(position, false);
  for (int position : positions) SetSelected(position, true);
  const int current = positions.empty() ? -1 : positions.back();
  if (index_ != current) {
    index_ = current;
    Changed(Property::kIndex);
  }
  if (follow == Follow::kClick && on_click) on_click();
}

void ListBox::UserCheck(int position, bool checked) { SetChecked(position, checked); }

void ListBox::UserSpace() {
  if (has_boxes() && index_ >= 0) UserCheck(index_, !Checked(index_));
}

}  // namespace orvik::forms
