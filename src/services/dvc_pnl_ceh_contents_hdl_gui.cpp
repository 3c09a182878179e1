// View helper: view requests turned into GUI part attributes, list rows, the animation table.
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"

#include <algorithm>
#include <cstdio>

#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

constexpr int kGuiIdFirst = 1;
constexpr int kGuiIdLast = 65535;
constexpr int kIndexLast = 65535;
constexpr int kScrollPosLimit = 65536;  // scroll positions from here on are refused
constexpr int kDecimalPlaceLast = 5;

// Icons of the flexible key bar by the keys present.
constexpr int kBarNoKeys = 265;
constexpr int kBarLeftOnly = 266;
constexpr int kBarRightOnly = 267;
constexpr int kBarBothKeys = 268;
constexpr int kKeyAbsent = -1;

// The check mark or icon at the end of a row.
constexpr int kRowIconCell = 19;
constexpr int kRowIconWidth = 2;
constexpr int kCheckStatusIcon = 0;

// Icons that index_text_icon_text_icon rows place: the blank and the last icon are left out.
constexpr int kShownIconFirst = 1;
constexpr int kShownIconLast = 336;

constexpr unsigned long kStateDateMarked = 1;

void set_tail(dvu_pnl_gcp_parts& part, int btail) {
  const unsigned long state = part.dvu_pnl_gcp_get_state();
  part.dvu_pnl_gcp_set_state(btail != 0 ? state | DVU_PNL_GCP_STATE_TAIL
                                        : state & ~DVU_PNL_GCP_STATE_TAIL);
}

int get_int(const dvu_pnl_gcp_parts& part, int attribute) {
  int value = 0;
  part.dvu_pnl_gcp_get_int_val(attribute, value);
  return value;
}

// The part `gui_id` of `comp` as a `T`: 6 after a trace for NULL components, an id outside
// 1 to 65535, and a part that is missing or of another kind (`missing` names it).
template <typename T>
int part_of(dvu_pnl_gcp_components* comp, int gui_id, const char* missing, T*& part) {
  part = nullptr;
  if (comp == nullptr) {
    CEH_ERR("p_comp_ is NULL");
    return 6;
  }
  if (gui_id < kGuiIdFirst || gui_id > kGuiIdLast) {
    CEH_ERR("gui_id : %d", gui_id);
    return 6;
  }
  part = dynamic_cast<T*>(dvu_pnl_gcp_get_gui_parts_by_id(comp, gui_id));
  if (part == nullptr) {
    CEH_ERR("%s", missing);
    return 6;
  }
  return 0;
}

// Runs `action` on the part `gui_id` of kind `T`, once part_of has found it.
template <typename T, typename F>
int on_part(dvu_pnl_gcp_components* comp, int gui_id, const char* missing, F&& action) {
  T* part = nullptr;
  if (int ret = part_of(comp, gui_id, missing, part); ret != 0)
    return ret;
  return action(*part);
}

template <typename F>
int on_list(dvu_pnl_gcp_components* comp, F&& action) {
  return on_part<dvu_pnl_gcp_list>(comp, GUI_ID_LIST, "p_list is NULL", action);
}

// The row `index` of `list`; 6 after a trace with `missing` when there is none.
int row_of(dvu_pnl_gcp_list& list, int index, dvu_pnl_gcp_list_row*& row, const char* missing) {
  if (list.dvu_pnl_gcp_get_row(index, row) != 0 || row == nullptr) {
    row = nullptr;
    CEH_ERR("%s", missing);
    return 6;
  }
  return 0;
}

template <typename F>
int on_edit_box(dvu_pnl_gcp_components* comp, int gui_id, F&& action) {
  return on_part<dvu_pnl_gcp_input_edit_box>(comp, gui_id, "p_input_edit_box is NULL", action);
}

// Runs `action` on the text `gui_id`, then sets or clears its tail bit by `btail`.
template <typename F>
int on_text(dvu_pnl_gcp_components* comp, int gui_id, int btail, F&& action) {
  return on_part<dvu_pnl_gcp_text>(comp, gui_id, "p_text is NULL", [&](dvu_pnl_gcp_text& text) {
    action(text);
    set_tail(text, btail);
    return 0;
  });
}

// Sets the integer attributes `first`, `first` + 1, ... of the part to `values`.
template <typename T>
int set_ints(dvu_pnl_gcp_components* comp, int gui_id, const char* missing, int first,
             std::initializer_list<int> values) {
  return on_part<T>(comp, gui_id, missing, [&](T& part) {
    for (int value : values)
      part.dvu_pnl_gcp_set_int_val(first++, value);
    return 0;
  });
}

// Reads the integer attributes `first`, `first` + 1, ... of the part into `out`.
template <typename T>
int get_ints(dvu_pnl_gcp_components* comp, int gui_id, const char* missing, int first,
             std::initializer_list<int*> out) {
  return on_part<T>(comp, gui_id, missing, [&](T& part) {
    for (int* value : out)
      *value = get_int(part, first++);
    return 0;
  });
}

int check_list_index(int index) {
  if (index < 0 || index > kIndexLast) {
    CEH_ERR("index : %d", index);
    return 6;
  }
  return 0;
}

// A position read back from the list: 7 after a trace when it lies outside the list's rows.
int check_read_position(const dvu_pnl_gcp_list& list, int value) {
  if (value < 0 || value > list.dvu_pnl_gcp_get_max_row()) {
    CEH_ERR("index : %d", value);
    return 7;
  }
  return 0;
}

// Selects `index` and scrolls so that it stands in the middle of the three rows shown; at the
// ends of the list, and in a list of three rows or fewer, the list keeps to its ends.
void select_and_scroll(dvu_pnl_gcp_list& list, int index) {
  list.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, index);
  const int max_row = list.dvu_pnl_gcp_get_max_row();
  int scroll = index - 1;
  if (index == 0 || max_row <= 2)
    scroll = 0;
  else if (index == max_row)
    scroll = index - 2;
  list.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, scroll);
}

// `value` in decimal with at least four digits.
std::string four_digits(long value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%04ld", value);
  return buffer;
}

}  // namespace

void dvc_pnl_ceh_gui_set_number_row(dvu_pnl_gcp_parts& row, const dvc_pnl_ceh_gui_number_row& n) {
  static constexpr int kPowers[] = {1, 10, 100, 1000, 10000, 100000};
  const int places = std::clamp(n.decimal_place, 0, kDecimalPlaceLast);
  row.dvu_pnl_gcp_set_state(row.dvu_pnl_gcp_get_state() | (DVU_PNL_GCP_STATE_DECIMAL_0 << places));
  row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_INT_MIN, n.min_value_num_data);
  row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_INT_MAX, n.max_value_num_data);
  if (places > 0) {
    row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_DECIMAL_MIN, n.min_value_decimal_place);
    row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_DECIMAL_MAX, n.max_value_decimal_place);
  }
  row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_STEP, n.increase_num_data);
  if (places > 0) {
    row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, n.num_data / kPowers[places]);
    row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_DECIMAL, n.num_data % kPowers[places]);
  } else {
    row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, n.num_data);
  }
}

dvc_pnl_ceh_contents_hdl_gui dvc_pnl_ceh_contents_hdl_gui::s_instance_;
std::vector<dvu_pnl_gcp_processing_animation*> dvc_pnl_ceh_contents_hdl_gui::animation_tbl_;

dvc_pnl_ceh_contents_hdl_gui::~dvc_pnl_ceh_contents_hdl_gui() = default;

dvc_pnl_ceh_contents_hdl_gui* dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
    dvu_pnl_gcp_components* components) {
  if (components == nullptr)
    CEH_ERR("p is NULL");
  s_instance_.p_comp_ = components;
  return &s_instance_;
}

void dvc_pnl_ceh_contents_hdl_gui::reset_for_tests() {
  s_instance_.p_comp_ = nullptr;
  animation_tbl_.clear();
}

int dvc_pnl_ceh_contents_hdl_gui::check_components() const {
  if (p_comp_ == nullptr) {
    CEH_ERR("p_comp_ is NULL");
    return 6;
  }
  return 0;
}

// ---- texts ----

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_text_res(int gui_id, int rid,
                                                                   int btail) const {
  return on_text(p_comp_, gui_id, btail, [&](dvu_pnl_gcp_text& text) {
    text.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, rid);
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_text(int gui_id, int ival,
                                                               int btail) const {
  return dvc_pnl_ceh_update_view_text(gui_id, std::to_string(ival), btail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_text(int gui_id, const std::string& sval,
                                                               int btail) const {
  return on_text(p_comp_, gui_id, btail, [&](dvu_pnl_gcp_text& text) {
    // Without a text resource the literal shows.
    text.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, -1);
    text.dvu_pnl_gcp_set_orikaeshi_string(sval);
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_text_res_int(int gui_id, int rid,
                                                                       int btail, int value) const {
  return dvc_pnl_ceh_update_view_text_res_str(gui_id, rid, btail, std::to_string(value));
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_text_res_hex(int gui_id, int rid,
                                                                       int btail, int value) const {
  // The value shows as its 32-bit pattern.
  const auto word = static_cast<unsigned long>(static_cast<std::uint32_t>(value));
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "%04lX", word);
  return dvc_pnl_ceh_update_view_text_res_str(gui_id, rid, btail, buffer);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_text_res_str(int gui_id, int rid,
                                                                       int btail,
                                                                       std::string value) const {
  // The text resource holds a format that shows the value.
  return on_text(p_comp_, gui_id, btail, [&](dvu_pnl_gcp_text& text) {
    text.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, rid, value);
  });
}

// ---- icons and entry fields ----

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_icon(int gui_id, int rid) const {
  return set_ints<dvu_pnl_gcp_icon>(p_comp_, gui_id, "p_icon is NULL", DVU_PNL_GCP_ATTR_ICON,
                                    {rid});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_icon(int gui_id, int& rid) const {
  return get_ints<dvu_pnl_gcp_icon>(p_comp_, gui_id, "p_icon is NULL", DVU_PNL_GCP_ATTR_ICON,
                                    {&rid});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_input_number(int gui_id, int val) const {
  return set_ints<dvu_pnl_gcp_input_number>(p_comp_, gui_id, "p_input_number is NULL",
                                            DVU_PNL_GCP_ATTR_NUMBER, {val});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_input_number(int gui_id, int& val) const {
  return get_ints<dvu_pnl_gcp_input_number>(p_comp_, gui_id, "p_input_number is NULL",
                                            DVU_PNL_GCP_ATTR_NUMBER, {&val});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_date(int gui_id, DATE_TIME date) const {
  dvu_pnl_gcp_input_date* p_input_date = nullptr;
  if (int ret = part_of(p_comp_, gui_id, "p_input_date is NULL", p_input_date); ret != 0)
    return ret;
  // The marked part is optional: a layout without it shows the date all the same.
  if (dvu_pnl_gcp_parts* mark = dvu_pnl_gcp_get_gui_parts_by_id(p_comp_, GUI_ID_DATE_MARK))
    mark->dvu_pnl_gcp_set_state(mark->dvu_pnl_gcp_get_state() | kStateDateMarked);
  return set_ints<dvu_pnl_gcp_input_date>(p_comp_, gui_id, "p_input_date is NULL",
                                          DVU_PNL_GCP_ATTR_DATE_FIRST,
                                          {date.year, date.month, date.day});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_date(int gui_id, DATE_TIME& date) const {
  return get_ints<dvu_pnl_gcp_input_date>(p_comp_, gui_id, "p_input_date is NULL",
                                          DVU_PNL_GCP_ATTR_DATE_FIRST,
                                          {&date.year, &date.month, &date.day});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_time(int gui_id, DATE_TIME time,
                                                               int with_seconds) const {
  dvu_pnl_gcp_input_time* p_input_time = nullptr;
  if (int ret = part_of(p_comp_, gui_id, "p_input_time is NULL", p_input_time); ret != 0)
    return ret;
  p_input_time->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TIME_FIRST, time.hour);
  p_input_time->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TIME_FIRST + 1, time.minute);
  if (with_seconds == 1) {
    p_input_time->dvu_pnl_gcp_set_state(DVU_PNL_GCP_STATE_WITH_SECONDS);
    p_input_time->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TIME_FIRST + 2, time.second);
  }
  return 0;
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_time(int gui_id, DATE_TIME& time) const {
  return get_ints<dvu_pnl_gcp_input_time>(p_comp_, gui_id, "p_input_time is NULL",
                                          DVU_PNL_GCP_ATTR_TIME_FIRST,
                                          {&time.hour, &time.minute, &time.second});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_timer(int gui_id,
                                                                TIMER_SETTING timer) const {
  return set_ints<dvu_pnl_gcp_input_timer>(p_comp_, gui_id, "p_input_timer is NULL",
                                           DVU_PNL_GCP_ATTR_TIMER_FIRST,
                                           {timer.day, timer.hour, timer.minute});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_timer(int gui_id,
                                                             TIMER_SETTING& timer) const {
  return get_ints<dvu_pnl_gcp_input_timer>(p_comp_, gui_id, "p_input_timer is NULL",
                                           DVU_PNL_GCP_ATTR_TIMER_FIRST,
                                           {&timer.day, &timer.hour, &timer.minute});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_input_ip(int gui_id,
                                                                   TCP_IP_IPV4_SETTING ip) const {
  const std::int32_t* o = ip.octet;
  if (int ret =
          set_ints<dvu_pnl_gcp_input_ip>(p_comp_, gui_id, "p_input_ip is NULL",
                                         DVU_PNL_GCP_ATTR_IPV4_FIRST, {o[0], o[1], o[2], o[3]});
      ret != 0)
    return ret;
  return set_ints<dvu_pnl_gcp_input_ip>(p_comp_, gui_id, "p_input_ip is NULL",
                                        DVU_PNL_GCP_ATTR_IPV4_COMMIT, {0});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_input_ip(int gui_id,
                                                                TCP_IP_IPV4_SETTING& ip) const {
  std::int32_t* o = ip.octet;
  return get_ints<dvu_pnl_gcp_input_ip>(p_comp_, gui_id, "p_input_ip is NULL",
                                        DVU_PNL_GCP_ATTR_IPV4_FIRST, {&o[0], &o[1], &o[2], &o[3]});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_input_ipv6(int gui_id,
                                                                     const std::string& ip) const {
  return on_part<dvu_pnl_gcp_input_ip>(p_comp_, gui_id, "p_input_ip is NULL",
                                       [&](dvu_pnl_gcp_input_ip& part) {
                                         part.dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_IPV6, ip);
                                         return 0;
                                       });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_input_ipv6(int gui_id,
                                                                  std::string& ip) const {
  return on_part<dvu_pnl_gcp_input_ip>(p_comp_, gui_id, "p_input_ip is NULL",
                                       [&](dvu_pnl_gcp_input_ip& part) {
                                         part.dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_IPV6, ip);
                                         return 0;
                                       });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_input_edit_box(
    int gui_id, const std::string& text) const {
  return on_edit_box(p_comp_, gui_id, [&](dvu_pnl_gcp_input_edit_box& box) {
    box.dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_EDIT_CONTENT, text);
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_input_edit_box(int gui_id,
                                                                      std::string& text) const {
  return on_edit_box(p_comp_, gui_id, [&](dvu_pnl_gcp_input_edit_box& box) {
    box.dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_EDIT_CONTENT, text);
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_input_edit_box_crlf(
    int gui_id, const std::string& text) const {
  // The edit box answers whether it took the text; the result is the inverse.
  return on_edit_box(p_comp_, gui_id, [&](dvu_pnl_gcp_input_edit_box& box) {
    if (box.dvu_pnl_gcp_set_crlf2lf_string(text))
      return 0;
    CEH_ERR("dvu_pnl_gcp_set_crlf2lf_string ret_code = %d", 1);
    return 1;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_input_edit_box_with_right_space(
    int gui_id, std::string& text) const {
  return on_edit_box(p_comp_, gui_id, [&](dvu_pnl_gcp_input_edit_box& box) {
    box.dvu_pnl_gcp_get_space_added_string(text);
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_view_input_select_mark(int gui_id,
                                                                         std::string& word) const {
  // An empty mark list leaves `word` as it was.
  return on_part<dvu_pnl_gcp_input_select_mark>(p_comp_, gui_id, "p_input_select_mark is NULL",
                                                [&](dvu_pnl_gcp_input_select_mark& marks) {
                                                  marks.dvu_pnl_gcp_get_selected_word(word);
                                                  return 0;
                                                });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_flexiblekey(int rid_left,
                                                                      int rid_right) const {
  if (int ret = check_components(); ret != 0)
    return ret;
  if (rid_left < kKeyAbsent) {
    CEH_ERR("rid_left : %d", rid_left);
    return 6;
  }
  if (rid_right < kKeyAbsent) {
    CEH_ERR("rid_right : %d", rid_right);
    return 6;
  }
  // All three parts are found before any changes, so that a layout without one is left as it
  // was.
  dvu_pnl_gcp_icon* p_icon = nullptr;
  dvu_pnl_gcp_flexiblekey* p_right = nullptr;
  dvu_pnl_gcp_flexiblekey* p_left = nullptr;
  if (int ret = part_of(p_comp_, GUI_ID_FLEXIBLEKEY_BAR, "p_icon is NULL", p_icon); ret != 0)
    return ret;
  if (int ret = part_of(p_comp_, GUI_ID_FLEXIBLEKEY_RIGHT, "p_flexiblekey is NULL", p_right);
      ret != 0)
    return ret;
  if (int ret = part_of(p_comp_, GUI_ID_FLEXIBLEKEY_LEFT, "p_flexiblekey is NULL", p_left);
      ret != 0)
    return ret;
  const bool left = rid_left != kKeyAbsent;
  const bool right = rid_right != kKeyAbsent;
  const int bar =
      left ? (right ? kBarBothKeys : kBarLeftOnly) : (right ? kBarRightOnly : kBarNoKeys);
  p_icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, bar);
  if (right)
    p_right->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_KEY_TEXT, rid_right);
  p_right->dvu_pnl_gcp_set_visible(right);
  if (left)
    p_left->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_KEY_TEXT, rid_left);
  p_left->dvu_pnl_gcp_set_visible(left);
  return 0;
}

// ---- the screen's list ----

namespace {

// Marks row `index` alone with the star.
int mark_star(dvu_pnl_gcp_list& list, int index) {
  dvu_pnl_gcp_list_row* row = nullptr;
  for (int i = 0; i <= list.dvu_pnl_gcp_get_max_row(); ++i) {
    if (row_of(list, i, row, "row is NULL") == 0)
      row->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ROW_STAR, 0);
  }
  if (int ret = row_of(list, index, row, "row is NULL"); ret != 0)
    return ret;
  row->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ROW_STAR, 1);
  return 0;
}

// Adds icon `rid` at the end of row `index` of the list.
int add_row_icon(dvu_pnl_gcp_components* comp, int index, int rid) {
  return on_list(comp, [&](dvu_pnl_gcp_list& list) {
    dvu_pnl_gcp_list_row* row = nullptr;
    if (int ret = row_of(list, index, row, "list_row is NULL"); ret != 0)
      return ret;
    row->dvu_pnl_gcp_add_icon(kRowIconCell, kRowIconWidth, rid);
    return 0;
  });
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_set_list_scroll_count(int amount) const {
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    list.set_scroll_amount(amount);
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_list_scroll_pos(int& pos) const {
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    pos = get_int(list, DVU_PNL_GCP_ATTR_LIST_SCROLL_POS);
    return check_read_position(list, pos);
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_set_list_scroll_pos(const int& pos) const {
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    if (pos >= kScrollPosLimit) {
      CEH_ERR("index : %d", pos);
      return 6;
    }
    list.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, pos);
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_list_select_row(int& index) const {
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    index = get_int(list, DVU_PNL_GCP_ATTR_LIST_SELECT_ROW);
    return check_read_position(list, index);
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_set_list_select_row(int index) const {
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    if (int ret = check_list_index(index); ret != 0)
      return ret;
    select_and_scroll(list, index);
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_list_row(int index,
                                                           dvu_pnl_gcp_list_row*& row) const {
  row = nullptr;
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    if (index < 0 || index > list.dvu_pnl_gcp_get_max_row()) {
      CEH_ERR("index : %d", index);
      return 6;
    }
    return row_of(list, index, row, "list_row is NULL");
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_clear_list() const {
  return on_list(p_comp_, [](dvu_pnl_gcp_list& list) {
    list.dvu_pnl_gcp_clear_all_row();
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_set_star_to_select_row(int index) const {
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    if (int ret = check_list_index(index); ret != 0)
      return ret;
    list.dvu_pnl_gcp_set_state(list.dvu_pnl_gcp_get_state() | DVU_PNL_GCP_STATE_STARS);
    select_and_scroll(list, index);
    return mark_star(list, index);
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_reset_star_to_select_row(int index) const {
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    if (int ret = check_list_index(index); ret != 0)
      return ret;
    list.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, index);
    return mark_star(list, index);
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_get_list_star_row(int& row) const {
  row = -1;
  return on_list(p_comp_, [&](dvu_pnl_gcp_list& list) {
    for (int i = 0; i <= list.dvu_pnl_gcp_get_max_row(); ++i) {
      dvu_pnl_gcp_list_row* r = nullptr;
      if (int ret = row_of(list, i, r, "row is NULL"); ret != 0)
        return ret;
      if (get_int(*r, DVU_PNL_GCP_ATTR_ROW_STAR_SHOWN) == 1 &&
          get_int(*r, DVU_PNL_GCP_ATTR_ROW_STAR) == 1) {
        row = i;
        break;
      }
    }
    return 0;
  });
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_update_view_list_row_check_status(int index) const {
  return add_row_icon(p_comp_, index, kCheckStatusIcon);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_set_icon(int row, int rid) {
  return add_row_icon(p_comp_, row, rid);
}

// ---- list rows ----

dvc_pnl_ceh_contents_hdl_gui::row_item dvc_pnl_ceh_contents_hdl_gui::icon_at(int cell, int width,
                                                                             int rid, bool placed) {
  return {true, cell, width, row_text(rid), 0, placed};
}

dvc_pnl_ceh_contents_hdl_gui::row_item dvc_pnl_ceh_contents_hdl_gui::text_at(int cell, int width,
                                                                             row_text text,
                                                                             int tail,
                                                                             bool placed) {
  return {false, cell, width, text, tail, placed};
}

int dvc_pnl_ceh_contents_hdl_gui::check_icon(int rid, const char* name) {
  if (rid < ICON_NO_BLANK || rid > ICON_NO_MAX) {
    CEH_ERR("%s : %d", name, rid);
    return 6;
  }
  return 0;
}

int dvc_pnl_ceh_contents_hdl_gui::check_index_icon(int rid) {
  if (rid < ICON_NO_BLANK || rid > ICON_NO_MAX) {
    CEH_ERR("(index_rid < ICON_NO_BLANK) || (index_rid > ICON_NO_MAX)");
    return 6;
  }
  return 0;
}

int dvc_pnl_ceh_contents_hdl_gui::add_row(std::initializer_list<row_item> items,
                                          const dvc_pnl_ceh_gui_number_row* number) const {
  dvu_pnl_gcp_list* p_list = nullptr;
  if (int ret = part_of(p_comp_, GUI_ID_LIST, "p_list is NULL", p_list); ret != 0)
    return ret;
  dvu_pnl_gcp_list_row row;
  row.dvu_pnl_gcp_clear_all_text_icon();
  for (const row_item& item : items) {
    if (!item.placed)
      continue;
    const unsigned long state = item.tail != 0 ? DVU_PNL_GCP_STATE_TAIL : 0;
    if (item.icon)
      row.dvu_pnl_gcp_add_icon(item.cell, item.width, item.content.rid);
    else if (item.content.literal != nullptr)
      row.dvu_pnl_gcp_add_text(item.cell, item.width, *item.content.literal, state);
    else
      row.dvu_pnl_gcp_add_text(item.cell, item.width, item.content.rid, state);
  }
  if (number != nullptr)
    dvc_pnl_ceh_gui_set_number_row(row, *number);
  p_list->dvu_pnl_gcp_add_row(row);
  return 0;
}

// Each row operation checks the registered components, then its icons, then builds its row.
#define CEH_GUI_CHECK(expr)    \
  do {                         \
    if (int ret = (expr); ret) \
      return ret;              \
  } while (0)

namespace {

// A text resource of 0 or below stands for no text where a layout says so; a literal always
// stands.
bool has_text(int rid) {
  return rid > 0;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_gui::index_text_row(int index, row_text text, int tail) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_index_icon(index));
  return add_row({icon_at(0, 2, index), text_at(3, 18, text, tail)});
}

int dvc_pnl_ceh_contents_hdl_gui::index_text_status_row(int index, row_text text, int status_icon,
                                                        int tail, int text_cell,
                                                        int text_width) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_index_icon(index));
  CEH_GUI_CHECK(check_icon(status_icon, "status_icon_rid"));
  return add_row({icon_at(0, 2, index), text_at(text_cell, text_width, text, tail),
                  icon_at(19, 2, status_icon)});
}

int dvc_pnl_ceh_contents_hdl_gui::index_subfix_text_row(int index, int subfix_icon, row_text text,
                                                        int tail) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_index_icon(index));
  CEH_GUI_CHECK(check_icon(subfix_icon, "subfix_icon_rid"));
  return add_row({icon_at(0, 2, index), icon_at(3, 2, subfix_icon), text_at(5, 16, text, tail)});
}

int dvc_pnl_ceh_contents_hdl_gui::index_subfix_2text_row(int index, int subfix_icon,
                                                         row_text text_1, row_text text_2,
                                                         int tail) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_index_icon(index));
  CEH_GUI_CHECK(check_icon(subfix_icon, "subfix_icon_rid"));
  auto placed = [](const row_text& t) { return t.literal != nullptr || has_text(t.rid); };
  return add_row({icon_at(0, 2, index), icon_at(3, 2, subfix_icon),
                  text_at(5, 8, text_1, tail, placed(text_1)),
                  text_at(13, 8, text_2, 0, placed(text_2))});
}

int dvc_pnl_ceh_contents_hdl_gui::text_subfix_text_status_row(long number, int subfix_icon,
                                                              row_text text, int status_icon,
                                                              int tail) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_icon(subfix_icon, "subfix_icon_rid"));
  CEH_GUI_CHECK(check_icon(status_icon, "status_icon_rid"));
  // The last four digits of the number.
  const std::string shown = four_digits(number % 10000);
  return add_row({text_at(0, 4, shown), icon_at(5, 2, subfix_icon), text_at(7, 12, text, tail),
                  icon_at(19, 2, status_icon)});
}

int dvc_pnl_ceh_contents_hdl_gui::icon_text_row(int icon, row_text text, int text_cell,
                                                int text_width) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_icon(icon, "icon_rid"));
  return add_row({icon_at(0, 2, icon), text_at(text_cell, text_width, text)});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text(int index, int rid,
                                                                       int tail) const {
  return index_text_row(index, rid, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text(int index,
                                                                       const std::string& text,
                                                                       int tail) const {
  return index_text_row(index, text, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text_blank(
    int index, const std::string& text, int tail) const {
  return index_text_row(index, text, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text_status(int index, int rid,
                                                                              int status_icon,
                                                                              int tail) const {
  return index_text_status_row(index, rid, status_icon, tail, 3, 16);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text_status(
    int index, const std::string& text, int status_icon, int tail) const {
  return index_text_status_row(index, text, status_icon, tail, 3, 16);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text_status_compact(
    int index, int rid, int status_icon, int tail) const {
  return index_text_status_row(index, rid, status_icon, tail, 2, 17);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text_status_compact(
    int index, const std::string& text, int status_icon, int tail) const {
  return index_text_status_row(index, text, status_icon, tail, 2, 17);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_subfix_text(int index,
                                                                              int subfix_icon,
                                                                              int rid,
                                                                              int tail) const {
  return index_subfix_text_row(index, subfix_icon, rid, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_subfix_text(
    int index, int subfix_icon, const std::string& text, int tail) const {
  return index_subfix_text_row(index, subfix_icon, text, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_subfix_2text(int index,
                                                                               int subfix_icon,
                                                                               int rid_1, int rid_2,
                                                                               int tail) const {
  return index_subfix_2text_row(index, subfix_icon, rid_1, rid_2, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_subfix_2text(
    int index, int subfix_icon, const std::string& text_1, const std::string& text_2,
    int tail) const {
  return index_subfix_2text_row(index, subfix_icon, text_1, text_2, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_subfix_2text(
    int index, int subfix_icon, int rid_1, const std::string& text_2, int tail) const {
  return index_subfix_2text_row(index, subfix_icon, rid_1, text_2, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_index_text_icon_text_icon(
    int index, int icon_1, int rid_1, int icon_2, int rid_2) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_index_icon(index));
  auto shown = [](int icon) { return icon >= kShownIconFirst && icon <= kShownIconLast; };
  return add_row({icon_at(0, 2, index), icon_at(3, 2, icon_1, shown(icon_1)),
                  text_at(5, 7, rid_1, 0, has_text(rid_1)), icon_at(12, 2, icon_2, shown(icon_2)),
                  text_at(14, 7, rid_2, 0, has_text(rid_2))});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_text_subfix_text_status(
    long number, int subfix_icon, int rid, int status_icon, int tail) const {
  return text_subfix_text_status_row(number, subfix_icon, rid, status_icon, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_text_subfix_text_status(
    long number, int subfix_icon, const std::string& text, int status_icon, int tail) const {
  return text_subfix_text_status_row(number, subfix_icon, text, status_icon, tail);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_text_icon_text_compact(
    long number, int icon, const std::string& text) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_icon(icon, "icon_rid"));
  // The first four characters of the number.
  const std::string shown = four_digits(number).substr(0, 4);
  return add_row({text_at(0, 4, shown), icon_at(4, 2, icon), text_at(6, 15, text)});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_icon_text(int icon, int rid) const {
  return icon_text_row(icon, rid, 3, 18);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_icon_text(
    int icon, const std::string& text) const {
  return icon_text_row(icon, text, 3, 18);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_icon_text_compact(int icon,
                                                                              int rid) const {
  return icon_text_row(icon, rid, 2, 19);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_icon_text_compact(
    int icon, const std::string& text) const {
  return icon_text_row(icon, text, 2, 19);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_icon_text_icon(int icon,
                                                                           const std::string& text,
                                                                           int icon_2) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_icon(icon, "icon_rid"));
  CEH_GUI_CHECK(check_icon(icon_2, "icon_rid"));
  return add_row({icon_at(0, 2, icon), text_at(2, 17, text), icon_at(19, 2, icon_2)});
}

namespace {

const std::string& colon() {
  static const std::string text = ":";
  return text;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_text_colon_text(int rid_1,
                                                                            int rid_2) const {
  CEH_GUI_CHECK(check_components());
  return add_row({text_at(0, 14, rid_1), text_at(13, 1, colon()), text_at(14, 7, rid_2)});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_text_colon_text(const std::string& text,
                                                                            int rid) const {
  CEH_GUI_CHECK(check_components());
  return add_row({text_at(0, 13, text), text_at(13, 1, colon()), text_at(14, 7, rid)});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_text_colon_percent(int rid,
                                                                               int percent) const {
  CEH_GUI_CHECK(check_components());
  const std::string shown = std::to_string(percent) + "%";
  return add_row({text_at(0, 14, rid), text_at(13, 1, colon()), text_at(14, 7, shown)});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_mnt_layout1(
    int icon, const std::string& text) const {
  return icon_text_row(icon, text, 3, 18);
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_mnt_layout5(
    int icon, const std::string& text) const {
  if (icon % 2 == 0)
    return icon_text_row(icon, text, 3, 18);
  CEH_GUI_CHECK(check_components());
  return add_row({text_at(0, 21, text)});
}

int dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_add_view_list_mnt_layout2(
    int icon_rid, const std::string& text_str, int is_string_data, const std::string& str_data,
    int num_data, int decimal_place, int increase_num_data, int min_value_num_data,
    int max_value_num_data, int increase_decimal_place, int min_value_decimal_place,
    int max_value_decimal_place) const {
  CEH_GUI_CHECK(check_components());
  CEH_GUI_CHECK(check_icon(icon_rid, "icon_rid"));
  if (is_string_data == 1)
    return add_row({icon_at(0, 2, icon_rid), text_at(3, 13, text_str), text_at(17, 4, str_data)});
  if (decimal_place < 0 || decimal_place > kDecimalPlaceLast) {
    CEH_ERR("decimal_place : %d", decimal_place);
    return 6;
  }
  // The row has no step for its decimal part: that step is only traced.
  CEH_TRC("increase_decimal_place : %d", increase_decimal_place);
  const dvc_pnl_ceh_gui_number_row number{
      num_data,           decimal_place,           increase_num_data,      min_value_num_data,
      max_value_num_data, min_value_decimal_place, max_value_decimal_place};
  return add_row({icon_at(0, 2, icon_rid), text_at(3, 13, text_str)}, &number);
}

#undef CEH_GUI_CHECK

// ---- processing animations ----

int dvc_pnl_ceh_contents_hdl_gui::register_animation(dvu_pnl_gcp_processing_animation* animation) {
  if (animation == nullptr) {
    CEH_ERR("p is NULL");
    return 6;
  }
  animation_tbl_.push_back(animation);
  return 0;
}

int dvc_pnl_ceh_contents_hdl_gui::unregister_animation(
    dvu_pnl_gcp_processing_animation* animation) {
  auto it = std::find(animation_tbl_.begin(), animation_tbl_.end(), animation);
  if (it != animation_tbl_.end())
    animation_tbl_.erase(it);
  return 0;
}

int dvc_pnl_ceh_contents_hdl_gui::stop_animation() {
  for (dvu_pnl_gcp_processing_animation* animation : animation_tbl_)
    animation->dvu_pnl_gcp_processing_stop();
  return 0;
}

}  // namespace orvanta
