#include "forms/list_view.h"

#include <algorithm>

#include "base/failure.h"

namespace orvik::forms {

namespace {

// The element at a position counted from 1; throws Failure when there is none.
template <typename Elements>
auto& ElementAt(Elements& elements, int position) {
  if (position < 1 || static_cast<std::size_t>(position) > elements.size()) throw Failure{};
  return elements[static_cast<std::size_t>(position) - 1];
}

}  // namespace

void ListView::AddColumn(TextView text, int width) {
  columns_.push_back({Text(text), width});
  Changed(Property::kColumns);
}

void ListView::SetColumnText(int column, TextView text) {
  ElementAt(columns_, column).text = text;
  Changed(Property::kColumns);
}

void ListView::SetColumnWidth(int column, int width) {
  ElementAt(columns_, column).width = width;
  Changed(Property::kColumns);
}

ListView::Row& ListView::Existing(int position) { return ElementAt(rows_, position); }

const ListView::Row& ListView::At(int position) const { return ElementAt(rows_, position); }

int ListView::Find(TextView key) const {
  const auto key_of = [this](std::uint32_t position) -> TextView {
    return At(static_cast<int>(position)).key;
  };
  const std::uint32_t found = keys_.Find(key, key_of);
  return found == KeyIndex::kNone ? 0 : static_cast<int>(found);
}

void ListView::Add(TextView text, TextView key) {
  if (!key.empty()) {
    if (Find(key) != 0) throw Failure{};
    keys_.Add(key, static_cast<std::uint32_t>(count() + 1));
  }
  rows_.push_back({.text = Text(text), .key = Text(key), .sub = {}});
  Changed(Property::kAdd, count());
}

void ListView::AddSub(int position, TextView text, TextView key) {
  Row& row = Existing(position);
  const auto same = [&](const SubItem& item) { return EqualNoCase(item.key, key); };
  if (!key.empty() && std::any_of(row.sub.begin(), row.sub.end(), same)) throw Failure{};
  if (row.sub.empty() && columns_.size() > 1) row.sub.reserve(columns_.size() - 1);
  row.sub.push_back({Text(text), Text(key)});
  Changed(Property::kSub, position);
}

const Text& ListView::Sub(int position, int number) const {
  return ElementAt(At(position).sub, number).text;
}

void ListView::SetColor(int position, std::uint32_t color) {
  Row& row = Existing(position);
  if (row.color == color) return;
  row.color = color;
  Changed(Property::kColor, position);
}

void ListView::SetSelected(int position, bool selected) {
  Row& row = Existing(position);
  if (row.selected == selected) return;
  row.selected = selected;
  Changed(Property::kSelected, position);
}

void ListView::Clear() {
  if (rows_.empty()) return;
  rows_.clear();
  keys_.Clear();
  current_ = 0;
  Changed(Property::kClear);
}

void ListView::UserClick(int position) {
  UserSelect({position});
  UserMouse(true, {});
  UserMouse(false, {});
  if (on_click) on_click();
}

void ListView::UserSelect(const std::vector<int>& positions) {
  UserSelect(positions, positions.empty() ? 0 : positions.back());
}

void ListView::UserSelect(const std::vector<int>& positions, int current) {
  for (int position : positions) Existing(position);
  if (current != 0) Existing(current);
  std::vector<bool> chosen(rows_.size() + 1);
  for (int position : positions) chosen[static_cast<std::size_t>(position)] = true;
  for (int position = 1; position <= count(); ++position) {
    SetSelected(position, chosen[static_cast<std::size_t>(position)]);
  }
  current_ = current;
}

}  // namespace orvik::forms
