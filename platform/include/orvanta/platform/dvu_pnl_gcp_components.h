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

// Notify types the parts give.
enum : int {
  DVU_PNL_GCP_NOTIFY_NONE = 0,        // no part took the key
  DVU_PNL_GCP_NOTIFY_REFUSED = 1,     // the focused part cannot take the key
  DVU_PNL_GCP_NOTIFY_EDIT = 2,        // an entry field changed its content
  DVU_PNL_GCP_NOTIFY_FLEX_LEFT = 3,   // the left flexible key
  DVU_PNL_GCP_NOTIFY_FLEX_RIGHT = 4,  // the right flexible key
  DVU_PNL_GCP_NOTIFY_NUMBER = 5,      // a digit went into a number entry
  DVU_PNL_GCP_NOTIFY_LIST = 6,        // the list's selection moved
  DVU_PNL_GCP_NOTIFY_CLEAR = 7,       // an entry field was cleared or lost a character
  DVU_PNL_GCP_NOTIFY_CURSOR = 8,      // the cursor of an entry field moved
  DVU_PNL_GCP_NOTIFY_MARK_LIST = 9,   // the cursor of a select mark list moved or a mark changed
};

// Numbered attributes of parts that screens read and write.
enum : int {
  DVU_PNL_GCP_ATTR_ICON = 0,             // icon: the icon resource shown
  DVU_PNL_GCP_ATTR_LITERAL = 0,          // text (string): the literal text
  DVU_PNL_GCP_ATTR_TEXT_RESOURCE = 1,    // text: text resource id; -1 lets a literal show
  DVU_PNL_GCP_ATTR_KEY_TEXT = 2,         // flexible key: text resource id
  DVU_PNL_GCP_ATTR_EDIT_CONTENT = 2,     // edit box (string): the content
  DVU_PNL_GCP_ATTR_LIST_SELECT_ROW = 4,  // list: the selected row
  DVU_PNL_GCP_ATTR_LIST_SCROLL_POS = 5,  // list: index of the first visible row
  DVU_PNL_GCP_ATTR_ROW_STAR = 6,         // list row: star mark on (1) or off (0)
  DVU_PNL_GCP_ATTR_IPV6 = 6,             // IPv6 entry (string): the address
  DVU_PNL_GCP_ATTR_ROW_STAR_SHOWN = 7,   // list row: follows the star mark
  DVU_PNL_GCP_ATTR_IPV4_FIRST = 15,      // IPv4 entry: octets 15 to 18, first to last
  DVU_PNL_GCP_ATTR_NUMBER = 19,          // number entry: value; list row: integer part
  DVU_PNL_GCP_ATTR_DECIMAL = 20,         // list row: decimal part
  DVU_PNL_GCP_ATTR_INT_MAX = 21,         // list row: upper limit of the integer part
  DVU_PNL_GCP_ATTR_DECIMAL_MAX = 22,     // list row: upper limit of the decimal part
  DVU_PNL_GCP_ATTR_INT_MIN = 23,         // list row: lower limit of the integer part
  DVU_PNL_GCP_ATTR_DECIMAL_MIN = 24,     // list row: lower limit of the decimal part
  DVU_PNL_GCP_ATTR_STEP = 27,            // list row: step
  DVU_PNL_GCP_ATTR_DATE_FIRST = 28,      // date entry: year 28, month 29, day 30
  DVU_PNL_GCP_ATTR_TIMER_FIRST = 30,     // timer entry: fields 30 to 32
  DVU_PNL_GCP_ATTR_TIME_FIRST = 31,      // time entry: hour 31, minute 32, second 33
  DVU_PNL_GCP_ATTR_IPV4_COMMIT = 34,     // IPv4 entry: set to 0 after the octets
};

// State word bits.
inline constexpr unsigned long DVU_PNL_GCP_STATE_TAIL = 0x4000;          // text: show the end
inline constexpr unsigned long DVU_PNL_GCP_STATE_STARS = 0x2000;         // list: star marks on
inline constexpr unsigned long DVU_PNL_GCP_STATE_WITH_SECONDS = 0x1000;  // time: third field
// Number rows: 0 to 5 decimal places, one bit each from this one upwards.
inline constexpr unsigned long DVU_PNL_GCP_STATE_DECIMAL_0 = 0x4000;

// What kind of part a part is; the host draws and keys each kind its own way.
enum class dvu_pnl_gcp_part_kind {
  other,
  icon,
  text,
  list,
  label,
  flexiblekey,
  edit_box,
  number,
  date,
  time,
  timer,
  ipv4,
  ipv6,
  select_mark,
  animation,
};

// One part of a layout: a text, an icon, a list, an entry field and so on. A part carries
// numbered integer and string attributes, a state word, a position and size in the frame and a
// visibility.
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
  // Sets integer attribute `attribute` to `value` with `argument`: a text whose resource holds a
  // printf format (such as "%s copies") shows the argument in place of its first conversion.
  int dvu_pnl_gcp_set_int_val(int attribute, int value, const std::string& argument);
  // The argument given with the last such call; empty when there was none.
  const std::string& format_argument() const { return argument_; }
  unsigned long dvu_pnl_gcp_get_state() const { return state_; }
  void dvu_pnl_gcp_set_state(unsigned long state) { state_ = state; }
  bool dvu_pnl_gcp_is_visible() const { return visible_; }
  void dvu_pnl_gcp_set_visible(bool visible) { visible_ = visible; }
  void dvu_pnl_gcp_get_position(int& x, int& y) const {
    x = x_;
    y = y_;
  }
  void dvu_pnl_gcp_set_position(int x, int y) {
    x_ = x;
    y_ = y;
  }
  void dvu_pnl_gcp_get_size(int& width, int& height) const {
    width = width_;
    height = height_;
  }
  void dvu_pnl_gcp_set_size(int width, int height) {
    width_ = width;
    height_ = height;
  }

 private:
  dvu_pnl_gcp_part_kind kind_;
  std::map<int, int> ints_;
  std::map<int, std::string> strings_;
  unsigned long state_ = 0;
  bool visible_ = true;
  std::string argument_;
  int x_ = 0;
  int y_ = 0;
  int width_ = 0;
  int height_ = 0;
};

// An icon: attribute 0 is the icon resource.
class dvu_pnl_gcp_icon : public dvu_pnl_gcp_parts {
 public:
  dvu_pnl_gcp_icon() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::icon) {}
};

// A text: a text resource (attribute 1) or, with the resource -1, a literal (string attribute 0).
class dvu_pnl_gcp_text : public dvu_pnl_gcp_parts {
 public:
  dvu_pnl_gcp_text() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::text) {}
  // Sets the literal, broken into lines at blanks where it is wider than the part. 0.
  int dvu_pnl_gcp_set_orikaeshi_string(const std::string& text);
  // Whether the literal wraps (set by dvu_pnl_gcp_set_orikaeshi_string) or stands on one line.
  bool wraps() const { return wraps_; }

 private:
  bool wraps_ = false;
};

// A flexible key under the LCD: attribute 2 is its text resource.
class dvu_pnl_gcp_flexiblekey : public dvu_pnl_gcp_parts {
 public:
  dvu_pnl_gcp_flexiblekey() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::flexiblekey) {}
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
// clearing the star mark sets the shown flag the same way. A row with limits (attributes 21 to
// 24) is a number row: attributes 19 and 20 hold its value.
class dvu_pnl_gcp_list_row : public dvu_pnl_gcp_label {
 public:
  int dvu_pnl_gcp_set_int_val(int attribute, int value) override;
  using dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val;
};

// The list part: its rows, the selected row and the scroll position. Three rows are visible.
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
  // Whether the selected row is shown highlighted and the cursor keys move it.
  void set_select_enabled(bool enabled) { select_enabled_ = enabled; }
  bool select_enabled() const { return select_enabled_; }

 private:
  std::vector<dvu_pnl_gcp_list_row> rows_;
  int scroll_amount_ = 1;
  bool select_enabled_ = true;
};

// An edit box: a line of text typed on the keys; string attribute 2 holds the content without
// trailing blanks, the box itself keeps them.
class dvu_pnl_gcp_input_edit_box : public dvu_pnl_gcp_parts {
 public:
  explicit dvu_pnl_gcp_input_edit_box(int max_length = 64);
  int dvu_pnl_gcp_set_str_val(int attribute, const std::string& value) override;
  int dvu_pnl_gcp_get_str_val(int attribute, std::string& value) const override;
  // Sets the content with CR LF and lone CR turned into LF. true when the content was taken.
  bool dvu_pnl_gcp_set_crlf2lf_string(const std::string& text);
  // The content with its trailing blanks. 0.
  int dvu_pnl_gcp_get_space_added_string(std::string& text) const;
  const std::string& content() const { return content_; }
  int cursor() const { return cursor_; }
  // Key actions: 0 done, 1 refused.
  int type_char(char c);
  int erase();
  int move_cursor(int step);

 private:
  std::string content_;
  int cursor_ = 0;  // insertion point, 0 to the content's length
  int max_length_;
};

// A number entry: attribute 19 is the value, typed digit by digit.
class dvu_pnl_gcp_input_number : public dvu_pnl_gcp_parts {
 public:
  explicit dvu_pnl_gcp_input_number(int max_digits = 3);
  // Key actions: 0 done, 1 refused.
  int type_digit(int digit);
  int clear();

 private:
  int max_digits_;
  bool fresh_ = true;  // the next digit starts a new value
};

// Entry fields of several numeric fields (date, time, timer, IPv4 address): the digit keys type
// into the field under the cursor, left and right move between fields.
class dvu_pnl_gcp_input_fields : public dvu_pnl_gcp_parts {
 public:
  // The fields are the integer attributes first_attribute, first_attribute + 1, ...
  dvu_pnl_gcp_input_fields(dvu_pnl_gcp_part_kind kind, int first_attribute, int fields,
                           std::vector<int> limits);
  int first_attribute() const { return first_attribute_; }
  int field_count() const;
  int current_field() const { return field_; }
  int type_digit(int digit);
  int clear();
  int move_cursor(int step);

 private:
  int first_attribute_;
  std::vector<int> limits_;  // the highest value of each field
  int field_ = 0;
  bool fresh_ = true;
};

class dvu_pnl_gcp_input_date : public dvu_pnl_gcp_input_fields {
 public:
  dvu_pnl_gcp_input_date();
};

class dvu_pnl_gcp_input_time : public dvu_pnl_gcp_input_fields {
 public:
  dvu_pnl_gcp_input_time();
  // Three fields while the state word holds 0x1000, else two.
  bool with_seconds() const;
};

class dvu_pnl_gcp_input_timer : public dvu_pnl_gcp_input_fields {
 public:
  dvu_pnl_gcp_input_timer();
};

// An IP address entry: IPv4 as four octets (attributes 15 to 18), IPv6 as text (string 6).
class dvu_pnl_gcp_input_ip : public dvu_pnl_gcp_input_fields {
 public:
  explicit dvu_pnl_gcp_input_ip(bool ipv6 = false);
};

// A list of words, each with a mark; the cursor row is the selected word.
class dvu_pnl_gcp_input_select_mark : public dvu_pnl_gcp_parts {
 public:
  dvu_pnl_gcp_input_select_mark() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::select_mark) {}
  void set_words(std::vector<std::string> words);
  const std::vector<std::string>& words() const { return words_; }
  int cursor() const { return cursor_; }
  // The word under the cursor. 0, or 1 when the list is empty.
  int dvu_pnl_gcp_get_selected_word(std::string& word) const;
  int move_cursor(int step);

 private:
  std::vector<std::string> words_;
  int cursor_ = 0;
};

// The processing animation of wait screens: a key text and a moving bar while it runs.
class dvu_pnl_gcp_processing_animation : public dvu_pnl_gcp_parts {
 public:
  dvu_pnl_gcp_processing_animation() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::animation) {}
  // The text resource under the animation (-1 none) and the icon beside it (-1 none).
  int dvu_pnl_gcp_processing_resister(int text_rid, int icon_rid);
  int dvu_pnl_gcp_processing_start();
  int dvu_pnl_gcp_processing_stop();
  bool running() const { return running_; }
  int text_rid() const { return text_rid_; }
  int icon_rid() const { return icon_rid_; }
  // The frame the bar shows; each draw of a running animation moves it on by one.
  int frame() const { return frame_; }
  void advance() { ++frame_; }

 private:
  bool running_ = false;
  int text_rid_ = -1;
  int icon_rid_ = -1;
  int frame_ = 0;
};

// The set of parts of one screen, owned by the framework.
class dvu_pnl_gcp_components;

// The part `part_id` of the screen, or nullptr when its layout has none.
dvu_pnl_gcp_parts* dvu_pnl_gcp_get_gui_parts_by_id(dvu_pnl_gcp_components* gui, int part_id);
// Renders the screen into `img` (1024 bytes, 128x64, one bit a pixel); 1 when the image changed.
int dvu_pnl_gcp_draw(dvu_pnl_gcp_components* gui, unsigned char* img);
// Lets the focused part handle a key; fills `notify` (type 0 when no part took it).
int dvu_pnl_gcp_on_key(dvu_pnl_gcp_components* gui, const dvc_pnl_evh_panel_event& event,
                       DVU_PNL_GCP_NOTIFY& notify);
// The part that takes the keys: its id, or -1 when none does.
int dvu_pnl_gcp_get_focus(dvu_pnl_gcp_components* gui);
// Gives the keys to part `part_id`. 0, or 1 when the screen has no such part.
int dvu_pnl_gcp_set_focus(dvu_pnl_gcp_components* gui, int part_id);
// 1 when a cursor is shown, with its rectangle in `rect` (x, y, width, height); else 0.
int dvu_pnl_gcp_get_cursor_info(dvu_pnl_gcp_components* gui, int rect[4]);
// Brings the value of number row `row` of list `part_id` within its limits and onto its step.
// 0, or 1 when there is no such row or it is not a number row.
int dvu_pnl_gcp_round_value_list_row(dvu_pnl_gcp_components* gui, int part_id, int row);
// Whether list `part_id` shows its selected row and lets the cursor keys move it. 0, or 1 when
// the screen has no such list.
int dvu_pnl_gcp_set_enable_select_listitem(dvu_pnl_gcp_components* gui, int part_id, bool enable);

// Converts a USB keyboard event into the hard key event it stands for.
class dvu_pnl_gcp_keyboard_convertor {
 public:
  // The hard key event id, or -1 when the key has none.
  static int key_to_hkey(const dvc_pnl_evh_panel_event& event);
};

}  // namespace orvanta
