// GUI components of a screen: the parts on its layout, key handling by the parts, and drawing.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "orvanta/platform/dvc_pnl_evh_panel_event.h"

namespace orvanta {

// What the components report for a key.
struct DVU_PNL_GCP_NOTIFY {
  int type;          // 0 nothing happened; 1 refused; 2, 5, 7, 8 edit; 3, 4 button; 6, 9 list
  int repeat_count;  // how often the key repeated
  int repeat_kind;   // 0 no repeat; 1 to 4 the key repeat table row
  int part_id;       // the part that answered
  int value;         // the part's value after the key (selected row, number, ...)
};

// Numbered attributes of parts that screens read and write.
enum : int {
  DVU_PNL_GCP_ATTR_ICON = 0,             // icon: the icon resource shown
  DVU_PNL_GCP_ATTR_TEXT_RESOURCE = 1,    // text: text resource id; -1 lets a literal show
  DVU_PNL_GCP_ATTR_LIST_SELECT_ROW = 4,  // list: the selected row
  DVU_PNL_GCP_ATTR_LIST_SCROLL_POS = 5,  // list: index of the first visible row
  DVU_PNL_GCP_ATTR_ROW_STAR = 6,         // list row: star mark on (1) or off (0)
  DVU_PNL_GCP_ATTR_ROW_STAR_SHOWN = 7,   // list row: follows the star mark
};

// What kind of part a part is; the host draws each kind its own way.
enum class dvu_pnl_gcp_part_kind { other, icon, text, list, label };

// One part of a layout: a text, an icon, a list, an entry field and so on. A part carries
// numbered integer and string attributes, a state word and a visibility.
class dvu_pnl_gcp_parts {
 public:
  explicit dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind kind = dvu_pnl_gcp_part_kind::other)
      : kind_(kind) {}
  virtual ~dvu_pnl_gcp_parts() = default;

  dvu_pnl_gcp_part_kind kind() const { return kind_; }
  // 0 and the value when the attribute has been set; 1 otherwise.
  virtual int dvu_pnl_gcp_get_int_val(int attribute, int& value) const;
  virtual int dvu_pnl_gcp_set_int_val(int attribute, int value);
  virtual int dvu_pnl_gcp_get_str_val(int attribute, std::string& value) const;
  virtual int dvu_pnl_gcp_set_str_val(int attribute, const std::string& value);
  unsigned long dvu_pnl_gcp_get_state() const { return state_; }
  void dvu_pnl_gcp_set_state(unsigned long state) { state_ = state; }
  bool dvu_pnl_gcp_is_visible() const { return visible_; }
  void dvu_pnl_gcp_set_visible(bool visible) { visible_ = visible; }

 private:
  dvu_pnl_gcp_part_kind kind_;
  std::map<int, int> ints_;
  std::map<int, std::string> strings_;
  unsigned long state_ = 0;
  bool visible_ = true;
};

// One item of a label: an icon or a text standing in a row of 6x12 cells.
struct dvu_pnl_gcp_label_item {
  bool is_icon;
  int cell;             // first cell, 0 to 20
  int width;            // cells taken
  int resource;         // icon or text resource; -1 for a literal text
  std::string text;     // the literal text
  unsigned long state;  // 0x4000: show the tail of a long text
};

// A line of icons and texts placed in cells, 21 to a row.
class dvu_pnl_gcp_label : public dvu_pnl_gcp_parts {
 public:
  static constexpr int kCells = 21;
  dvu_pnl_gcp_label() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::label) {}
  // 0, or 1 when the item does not fit in the row's cells.
  int dvu_pnl_gcp_add_icon(int cell, int width, int resource);
  int dvu_pnl_gcp_add_text(int cell, int width, int resource, unsigned long state = 0);
  int dvu_pnl_gcp_add_text(int cell, int width, const std::string& text, unsigned long state = 0);
  void dvu_pnl_gcp_clear_all_text_icon() { items_.clear(); }
  const std::vector<dvu_pnl_gcp_label_item>& items() const { return items_; }

 private:
  std::vector<dvu_pnl_gcp_label_item> items_;
};

// A row of a list. Screens compose rows on the stack; the list keeps copies. Setting or
// clearing the star mark sets the shown flag the same way.
class dvu_pnl_gcp_list_row : public dvu_pnl_gcp_label {
 public:
  int dvu_pnl_gcp_set_int_val(int attribute, int value) override;
};

// The list part: its rows, the selected row and the scroll position.
class dvu_pnl_gcp_list : public dvu_pnl_gcp_parts {
 public:
  static constexpr int kVisibleRows = 3;
  // A new list has no rows, row 0 selected and scroll position 0.
  dvu_pnl_gcp_list();
  // Appends a copy of `row`.
  int dvu_pnl_gcp_add_row(const dvu_pnl_gcp_list_row& row);
  // The row at `index`; 0, or 1 with `row` nullptr when there is none.
  int dvu_pnl_gcp_get_row(int index, dvu_pnl_gcp_list_row*& row);
  // The index of the last row: the number of rows less one, -1 for an empty list.
  int dvu_pnl_gcp_get_max_row() const { return static_cast<int>(rows_.size()) - 1; }
  // Drops every row; selection and scroll position go back to 0.
  int dvu_pnl_gcp_clear_all_row();
  // How many rows one cursor step moves.
  int set_scroll_amount(int amount);
  int scroll_amount() const { return scroll_amount_; }

 private:
  std::vector<dvu_pnl_gcp_list_row> rows_;
  int scroll_amount_ = 1;
};

// The set of parts of one screen, owned by the framework.
class dvu_pnl_gcp_components;

// The part `part_id` of the screen, or nullptr when its layout has none.
dvu_pnl_gcp_parts* dvu_pnl_gcp_get_gui_parts_by_id(dvu_pnl_gcp_components* gui, int part_id);
// Renders the screen into `img` (1024 bytes, 128x64, one bit a pixel); 1 when the image changed.
int dvu_pnl_gcp_draw(dvu_pnl_gcp_components* gui, unsigned char* img);
// Lets the parts handle a key; fills `notify` (type 0 when nothing happened).
int dvu_pnl_gcp_on_key(dvu_pnl_gcp_components* gui, const dvc_pnl_evh_panel_event& event,
                       DVU_PNL_GCP_NOTIFY& notify);
// 1 when a cursor is shown, with its rectangle in `rect` (x, y, width, height); else 0.
int dvu_pnl_gcp_get_cursor_info(dvu_pnl_gcp_components* gui, int rect[4]);

// Converts a USB keyboard event into the hard key event it stands for.
class dvu_pnl_gcp_keyboard_convertor {
 public:
  // The hard key event id, or -1 when the key has none.
  static int key_to_hkey(const dvc_pnl_evh_panel_event& event);
};

}  // namespace orvanta
