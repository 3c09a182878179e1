// View helper: sets and reads what stands on a screen through its GUI parts by GUI id, builds the
// rows of panel lists, and keeps the table of running processing animations.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "orvanta/platform/dvu_pnl_gcp_components.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

namespace orvanta {

// GUI ids of the parts that screens address. A GUI id lies between 1 and 65535.
enum DVC_PNL_CEH_CONTENTS_GUI_ID : int {
  // Ids that every layout gives to the same part.
  GUI_ID_ARROW = 6,
  GUI_ID_ERR_NO = 29,
  GUI_ID_FLEXIBLEKEY_LEFT = 30,
  GUI_ID_FLEXIBLEKEY_RIGHT = 31,
  GUI_ID_FLEXIBLEKEY_BAR = 32,
  GUI_ID_ICON_JAM = 35,
  GUI_ID_ICON_JAM_POS_DP = 36,
  GUI_ID_INFO_NAME = 44,
  GUI_ID_DATE_MARK = 53,  // the part that a date update marks
  GUI_ID_LIST = 64,
  GUI_ID_MAIN_MSG = 67,
  GUI_ID_EDITBOX = 78,
  GUI_ID_PAPER_SIZE = 83,
  GUI_ID_SETTING_ITEM = 98,
  GUI_ID_ADDITIONAL_PAPER_SIZE = 117,
  GUI_ID_ADDITIONAL_PAPER_KIND = 118,
  GUI_ID_TEXT_JAM_NOTICE = 120,
  GUI_ID_TEXT_JAM_NUMBER = 121,
  GUI_ID_TITLE = 123,
  GUI_ID_CURRENT_MAINTENANCE_NUM = 130,

  // PLACEHOLDER ids: the layouts that use these names are not known, so each has a number of
  // our own, above every id a known layout uses. Replace them here, and only here, when the
  // layout data is known.
  GUI_ID_ARC_LEFT = 1001,
  GUI_ID_COLON_01 = 1002,
  GUI_ID_CROSS_CURSOR = 1003,
  GUI_ID_DW = 1004,
  GUI_ID_ICON_JAM_POS = 1005,
  GUI_ID_INFO = 1006,
  GUI_ID_INFO_CONTENT = 1007,
  GUI_ID_INPUTDATE = 1008,
  GUI_ID_INPUTTIME = 1009,
  GUI_ID_INPUTTIMER = 1010,
  GUI_ID_LABEL = 1011,
  GUI_ID_MARKLIST = 1012,
  GUI_ID_NUMBER = 1013,
  GUI_ID_OK = 1014,
  GUI_ID_PAPER_TYPE = 1015,
  GUI_ID_PASSWORD = 1016,
  GUI_ID_SETTING_ITEM_ICON = 1017,
  GUI_ID_SPIN_BOX_01 = 1018,
  GUI_ID_SPIN_BOX_02 = 1019,
  GUI_ID_SPIN_BOX_03 = 1020,
  GUI_ID_SPIN_BOX_04 = 1021,
  GUI_ID_SPIN_BOX_05 = 1022,
  GUI_ID_SPIN_BOX_06 = 1023,
  GUI_ID_STATUS1 = 1024,
  GUI_ID_STATUS2 = 1025,
  GUI_ID_SUB_MSG_1 = 1026,
  GUI_ID_TIME = 1027,
  GUI_ID_USERNAME = 1028,
  GUI_ID_WORDLIST = 1029,
};

// Icon resource ids that list rows accept: the blank icon up to the last icon.
inline constexpr int ICON_NO_BLANK = 0;
inline constexpr int ICON_NO_MAX = 337;

// The three fields of a timer entry: days, hours and minutes. 12 bytes.
struct TIMER_SETTING {
  std::int32_t day;
  std::int32_t hour;
  std::int32_t minute;
};
static_assert(sizeof(TIMER_SETTING) == 12);

// An IPv4 address as four octets, first to last. 16 bytes.
struct TCP_IP_IPV4_SETTING {
  std::int32_t octet[4];
};
static_assert(sizeof(TCP_IP_IPV4_SETTING) == 16);

// The value of a maintenance number row: the value with `decimal_place` digits after the point
// (0 to 5), its step and the limits of its integer and decimal parts.
struct dvc_pnl_ceh_gui_number_row {
  int num_data;
  int decimal_place;
  int increase_num_data;
  int min_value_num_data;
  int max_value_num_data;
  int min_value_decimal_place;
  int max_value_decimal_place;
};
// Makes `row` a number row: the state bit of its decimal places, then its attributes in the order
// lower and upper limit of the integer part, of the decimal part (with decimal places), step,
// integer part, decimal part (with decimal places). The decimal place must be 0 to 5.
void dvc_pnl_ceh_gui_set_number_row(dvu_pnl_gcp_parts& row, const dvc_pnl_ceh_gui_number_row& n);

// The view helper. A screen registers its GUI components at the head of every operation that
// touches the view and works with the pointer returned. Operations answer 0, 6 for a bad argument
// or a part that is missing or of another kind (and for every operation while the registered
// components are NULL), and 7 where a list position read back lies outside the list.
class dvc_pnl_ceh_contents_hdl_gui {
 public:
  virtual ~dvc_pnl_ceh_contents_hdl_gui();

  // Stores `components` (NULL too, after a trace) and answers the single instance.
  static dvc_pnl_ceh_contents_hdl_gui* dvc_pnl_ceh_register_gui_operator(
      dvu_pnl_gcp_components* components);
  dvu_pnl_gcp_components* dvc_pnl_ceh_get_gui_components() const { return p_comp_; }

  // ---- texts; `btail` nonzero shows the end of a long text ----
  int dvc_pnl_ceh_update_view_text_res(int gui_id, int rid, int btail) const;
  int dvc_pnl_ceh_update_view_text(int gui_id, int ival, int btail) const;
  int dvc_pnl_ceh_update_view_text(int gui_id, const std::string& sval, int btail) const;
  // A text resource that holds a format, shown with `value` in it.
  int dvc_pnl_ceh_update_view_text_res_int(int gui_id, int rid, int btail, int value) const;
  int dvc_pnl_ceh_update_view_text_res_hex(int gui_id, int rid, int btail, int value) const;
  int dvc_pnl_ceh_update_view_text_res_str(int gui_id, int rid, int btail, std::string value) const;

  // ---- icons and entry fields ----
  int dvc_pnl_ceh_update_view_icon(int gui_id, int rid) const;
  int dvc_pnl_ceh_get_view_icon(int gui_id, int& rid) const;
  int dvc_pnl_ceh_update_view_input_number(int gui_id, int val) const;
  int dvc_pnl_ceh_get_view_input_number(int gui_id, int& val) const;
  int dvc_pnl_ceh_update_view_date(int gui_id, DATE_TIME date) const;
  int dvc_pnl_ceh_get_view_date(int gui_id, DATE_TIME& date) const;
  // Hour and minute; with `with_seconds` 1 the entry also shows and holds the second.
  int dvc_pnl_ceh_update_view_time(int gui_id, DATE_TIME time, int with_seconds) const;
  int dvc_pnl_ceh_get_view_time(int gui_id, DATE_TIME& time) const;
  int dvc_pnl_ceh_update_view_timer(int gui_id, TIMER_SETTING timer) const;
  int dvc_pnl_ceh_get_view_timer(int gui_id, TIMER_SETTING& timer) const;
  int dvc_pnl_ceh_update_view_input_ip(int gui_id, TCP_IP_IPV4_SETTING ip) const;
  int dvc_pnl_ceh_get_view_input_ip(int gui_id, TCP_IP_IPV4_SETTING& ip) const;
  int dvc_pnl_ceh_update_view_input_ipv6(int gui_id, const std::string& ip) const;
  int dvc_pnl_ceh_get_view_input_ipv6(int gui_id, std::string& ip) const;
  int dvc_pnl_ceh_update_view_input_edit_box(int gui_id, const std::string& text) const;
  int dvc_pnl_ceh_get_view_input_edit_box(int gui_id, std::string& text) const;
  // Sets the content with its line ends normalised; 1 when the edit box did not take it.
  int dvc_pnl_ceh_update_view_input_edit_box_crlf(int gui_id, const std::string& text) const;
  // The content with its trailing blanks.
  int dvc_pnl_ceh_get_view_input_edit_box_with_right_space(int gui_id, std::string& text) const;
  int dvc_pnl_ceh_get_view_input_select_mark(int gui_id, std::string& word) const;

  // The flexible keys and the bar under them; -1 means no key on that side.
  int dvc_pnl_ceh_update_view_flexiblekey(int rid_left, int rid_right) const;

  // ---- the screen's list ----
  int dvc_pnl_ceh_set_list_scroll_count(int amount) const;
  int dvc_pnl_ceh_get_list_scroll_pos(int& pos) const;
  int dvc_pnl_ceh_set_list_scroll_pos(const int& pos) const;
  int dvc_pnl_ceh_get_list_select_row(int& index) const;
  // Selects row `index` and scrolls so that it stands in the middle of the three rows shown,
  // except at the ends of the list.
  int dvc_pnl_ceh_set_list_select_row(int index) const;
  int dvc_pnl_ceh_get_list_row(int index, dvu_pnl_gcp_list_row*& row) const;
  int dvc_pnl_ceh_clear_list() const;
  // Selects row `index` as above, turns star marks on and marks that row alone.
  int dvc_pnl_ceh_set_star_to_select_row(int index) const;
  // Selects row `index` and marks it alone, keeping the scroll position and the star setting.
  int dvc_pnl_ceh_reset_star_to_select_row(int index) const;
  // The first starred row, -1 when none is.
  int dvc_pnl_ceh_get_list_star_row(int& row) const;
  int dvc_pnl_ceh_update_view_list_row_check_status(int index) const;
  int dvc_pnl_ceh_set_icon(int row, int rid);

  // ---- list rows, each appended to the screen's list; `tail` marks the text whose end shows
  // when it is long. An int text is a text resource, a string a literal. ----
  int dvc_pnl_ceh_add_view_list_index_text(int index, int rid, int tail) const;
  int dvc_pnl_ceh_add_view_list_index_text(int index, const std::string& text, int tail) const;
  int dvc_pnl_ceh_add_view_list_index_text_blank(int index, const std::string& text,
                                                 int tail) const;
  int dvc_pnl_ceh_add_view_list_index_text_status(int index, int rid, int status_icon,
                                                  int tail) const;
  int dvc_pnl_ceh_add_view_list_index_text_status(int index, const std::string& text,
                                                  int status_icon, int tail) const;
  int dvc_pnl_ceh_add_view_list_index_text_status_compact(int index, int rid, int status_icon,
                                                          int tail) const;
  int dvc_pnl_ceh_add_view_list_index_text_status_compact(int index, const std::string& text,
                                                          int status_icon, int tail) const;
  int dvc_pnl_ceh_add_view_list_index_subfix_text(int index, int subfix_icon, int rid,
                                                  int tail) const;
  int dvc_pnl_ceh_add_view_list_index_subfix_text(int index, int subfix_icon,
                                                  const std::string& text, int tail) const;
  // Text resources are placed only when above 0.
  int dvc_pnl_ceh_add_view_list_index_subfix_2text(int index, int subfix_icon, int rid_1, int rid_2,
                                                   int tail) const;
  int dvc_pnl_ceh_add_view_list_index_subfix_2text(int index, int subfix_icon,
                                                   const std::string& text_1,
                                                   const std::string& text_2, int tail) const;
  int dvc_pnl_ceh_add_view_list_index_subfix_2text(int index, int subfix_icon, int rid_1,
                                                   const std::string& text_2, int tail) const;
  // Icons are placed only when 1 to 336, texts only when their resource is above 0.
  int dvc_pnl_ceh_add_view_list_index_text_icon_text_icon(int index, int icon_1, int rid_1,
                                                          int icon_2, int rid_2) const;
  // `number` shows as its last four digits.
  int dvc_pnl_ceh_add_view_list_text_subfix_text_status(long number, int subfix_icon, int rid,
                                                        int status_icon, int tail) const;
  int dvc_pnl_ceh_add_view_list_text_subfix_text_status(long number, int subfix_icon,
                                                        const std::string& text, int status_icon,
                                                        int tail) const;
  // `number` shows as its first four characters.
  int dvc_pnl_ceh_add_view_list_text_icon_text_compact(long number, int icon,
                                                       const std::string& text) const;
  int dvc_pnl_ceh_add_view_list_icon_text(int icon, int rid) const;
  int dvc_pnl_ceh_add_view_list_icon_text(int icon, const std::string& text) const;
  int dvc_pnl_ceh_add_view_list_icon_text_compact(int icon, int rid) const;
  int dvc_pnl_ceh_add_view_list_icon_text_compact(int icon, const std::string& text) const;
  int dvc_pnl_ceh_add_view_list_icon_text_icon(int icon, const std::string& text, int icon_2) const;
  int dvc_pnl_ceh_add_view_list_text_colon_text(int rid_1, int rid_2) const;
  int dvc_pnl_ceh_add_view_list_text_colon_text(const std::string& text, int rid) const;
  int dvc_pnl_ceh_add_view_list_text_colon_percent(int rid, int percent) const;
  // Maintenance rows.
  int dvc_pnl_ceh_add_view_list_mnt_layout1(int icon, const std::string& text) const;
  // An odd icon stands for no icon: the text takes the whole row.
  int dvc_pnl_ceh_add_view_list_mnt_layout5(int icon, const std::string& text) const;
  // A maintenance value: `str_data` with `is_string_data` 1, otherwise a number row.
  int dvc_pnl_ceh_add_view_list_mnt_layout2(int icon_rid, const std::string& text_str,
                                            int is_string_data, const std::string& str_data,
                                            int num_data, int decimal_place, int increase_num_data,
                                            int min_value_num_data, int max_value_num_data,
                                            int increase_decimal_place, int min_value_decimal_place,
                                            int max_value_decimal_place) const;

  // ---- processing animations of the screens on the page stack ----
  static int register_animation(dvu_pnl_gcp_processing_animation* animation);
  // Removes the first entry equal to `animation`; none, no effect.
  static int unregister_animation(dvu_pnl_gcp_processing_animation* animation);
  // Stops every registered animation, in order of registration; they stay registered.
  static int stop_animation();
  static const std::vector<dvu_pnl_gcp_processing_animation*>& animation_table() {
    return animation_tbl_;
  }

  // Forgets the registered components and animations (tests and the runtime).
  static void reset_for_tests();

 private:
  dvc_pnl_ceh_contents_hdl_gui() = default;

  // A text of a list row: a text resource or a literal.
  struct row_text {
    row_text(int resource) : rid(resource) {}  // NOLINT: either kind stands where a text goes
    row_text(const std::string& text) : literal(&text) {}  // NOLINT
    int rid = -1;
    const std::string* literal = nullptr;
  };
  // One item of a list row: an icon or a text in the row's cells.
  struct row_item {
    bool icon;
    int cell;
    int width;
    row_text content;  // for an icon, its resource
    int tail;
    bool placed;  // false leaves the item out
  };
  static row_item icon_at(int cell, int width, int rid, bool placed = true);
  static row_item text_at(int cell, int width, row_text text, int tail = 0, bool placed = true);

  // The layouts that take either kind of text; `text_cell` and `text_width` place the text where
  // a layout has a wide and a compact form.
  int index_text_row(int index, row_text text, int tail) const;
  int index_text_status_row(int index, row_text text, int status_icon, int tail, int text_cell,
                            int text_width) const;
  int index_subfix_text_row(int index, int subfix_icon, row_text text, int tail) const;
  int index_subfix_2text_row(int index, int subfix_icon, row_text text_1, row_text text_2,
                             int tail) const;
  int text_subfix_text_status_row(long number, int subfix_icon, row_text text, int status_icon,
                                  int tail) const;
  int icon_text_row(int icon, row_text text, int text_cell, int text_width) const;

  // 6 after a trace when the registered components are NULL.
  int check_components() const;
  // 6 after a trace when `rid` lies outside the icon range; `name` names it in the trace.
  static int check_icon(int rid, const char* name);
  static int check_index_icon(int rid);
  // Builds a row of `items` (a number row too, given `number`) and appends it to the list.
  int add_row(std::initializer_list<row_item> items,
              const dvc_pnl_ceh_gui_number_row* number = nullptr) const;

  static dvc_pnl_ceh_contents_hdl_gui s_instance_;
  static std::vector<dvu_pnl_gcp_processing_animation*> animation_tbl_;

  dvu_pnl_gcp_components* p_comp_ = nullptr;
};

}  // namespace orvanta
