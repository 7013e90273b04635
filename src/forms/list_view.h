// A report of rows with columns. Positions of rows and columns count from 1.
#pragma once

#include <cstdint>
#include <vector>

#include "base/key_index.h"
#include "forms/control.h"

namespace orvik::forms {

// The colour of ordinary rows: the system's for text in a window.
constexpr std::uint32_t kWindowTextColor = 0x80000008;

// Rows stand in the order of their addition. A row may have a key; keys are unique and blind to
// letter case. Sub-items fill column 2, column 3 and so on in the order of their addition; one
// without a column is kept and not shown. Everything that names a row, a sub-item or a column
// throws Failure when there is none.
class ListView : public Control {
 public:
  struct Column {
    Text text;
    int width;  // twips
  };
  struct SubItem {
    Text text;
    Text key;
  };
  struct Row {
    Text text;
    Text key;
    std::uint32_t color = kWindowTextColor;  // blue-green-red
    bool selected = false;
    std::vector<SubItem> sub;
  };

  ListView(Form& form, const char* name, Bounds bounds, std::vector<Column> columns)
      : Control(form, Kind::kListView, name, bounds), columns_(std::move(columns)) {}

  const std::vector<Column>& columns() const { return columns_; }
  int column_count() const { return static_cast<int>(columns_.size()); }
  void AddColumn(TextView text, int width);
  void SetColumnText(int column, TextView text);
  void SetColumnWidth(int column, int width);

  int count() const { return static_cast<int>(rows_.size()); }
  const Row& At(int position) const;
  // The position of the row with a key, 0 when there is none.
  int Find(TextView key) const;
  // Adds a row at the end; throws Failure, and adds nothing, when its key exists.
  void Add(TextView text, TextView key = {});
  // Adds a sub-item; throws Failure when the row has one with this key.
  void AddSub(int position, TextView text, TextView key = {});
  // The text of a sub-item, counted from 1.
  const Text& Sub(int position, int number) const;
  void SetColor(int position, std::uint32_t color);
  void SetSelected(int position, bool selected);
  void Clear();

  using Control::UserClick;
  // The row becomes the selection; mouse down, up and click follow.
  void UserClick(int position);
  // These rows become the selection, and the last of them the current one.
  void UserSelect(const std::vector<int>& positions);
  // The same with another current row, selected or not; 0 for none.
  void UserSelect(const std::vector<int>& positions, int current);
  // The row that was clicked or chosen last, 0 for none.
  int current() const { return current_; }

 private:
  Row& Existing(int position);

  std::vector<Column> columns_;
  std::vector<Row> rows_;
  KeyIndex keys_;  // of positions
  int current_ = 0;
};

}  // namespace orvik::forms
