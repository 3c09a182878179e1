// The rows of dvc_pnl_ceh_contents_hdl_d_01_01_01: one per contents id, built when a page of the id
// is first made, and the values behind the others rows.
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01.h"
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01_tables.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace orvanta {

using D = dvc_pnl_ceh_contents_hdl_d_01_01_01;

dvc_pnl_ceh_screen_table<D::CONTENTS_ELEMENT> D::s_map_;
std::map<int, std::vector<LIST_ELEMENT>> D::s_others_value_list_;
// Entry i is the row number icon of list position i: 2 to 100.
const int D::s_index_[99] = {
    2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,  21,
    22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40,  41,
    42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60,  61,
    62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80,  81,
    82, 83, 84, 85, 86, 87, 88, 89, 90, 91, 92, 93, 94, 95, 96, 97, 98, 99, 100,
};

namespace {

using key_path = std::vector<unsigned long>;

// The setting-done message that most rows open.
constexpr int kDone = CID_02_01_N2;
constexpr int kNone = CID_NONE;

// The handler sets of the rows.
enum class family {
  plain,        // the plain load and Enter, with prohibition data
  common,       // the load and Enter of rows with a fixed value or without data of their own
  zoom_menu,    // CID_02_03_01_N1
  zoom_ratios,  // the ratio lists with an others row
  zoom_others,  // the ratios behind the others row
  paper_13,     // CID_02_08_01_N13
};

// How a row comes back on top.
enum class activation { common, star, keep_position };

// ---- PLACEHOLDER data ----
// The rows below name lists whose texts, values or titles are not known. Each placeholder list is
// kept here alone: replace it here when the data is known. Texts are numbered from 9000 so that
// they are told apart from real resources on the screen.
constexpr int kPlaceholderTitle = -1;

std::vector<LIST_ELEMENT> placeholder_choices(int count, int child = kDone) {
  std::vector<LIST_ELEMENT> rows;
  for (int i = 0; i < count; ++i)
    rows.push_back({9000 + i, i, child, 0});
  return rows;
}
std::vector<LIST_ELEMENT> placeholder_menu(int count) {
  std::vector<LIST_ELEMENT> rows;
  for (int i = 0; i < count; ++i)
    rows.push_back({9000 + i, -1, kNone, 0});
  return rows;
}
// ---- end of the placeholder data ----

// Rows of the given values, with placeholder texts.
std::vector<LIST_ELEMENT> values(std::initializer_list<int> vs, int child = kDone) {
  std::vector<LIST_ELEMENT> rows;
  int i = 0;
  for (int v : vs)
    rows.push_back({9000 + i++, v, child, 0});
  return rows;
}

// Ratios in tenths of a percent; the last row leads on to `others` when there is one.
std::vector<LIST_ELEMENT> ratios(std::initializer_list<int> vs, int others) {
  std::vector<LIST_ELEMENT> rows;
  for (int v : vs)
    rows.push_back({9000 + v / 10, v, kDone, 0});
  if (others != kNone)
    rows.push_back({9099, -1, others, 0});
  return rows;
}

// The contents that come back with the cursor where the user left it.
bool focus_row(int id) {
  return D::on_activate_for_focus(id) == 1;
}

}  // namespace

// Builds rows of the class's own members.
struct dvc_pnl_ceh_option_list_rows {
  static D::CONTENTS_ELEMENT make(int id, family f, int title, key_path key,
                                  std::vector<LIST_ELEMENT> list, int start_transaction = 0,
                                  activation a = activation::common) {
    D::CONTENTS_ELEMENT row;
    row.title_rid = title;
    row.key = std::move(key);
    row.list = std::move(list);
    row.start_transaction = start_transaction;
    switch (f) {
      case family::plain:
        row.on_load_ = &D::on_load_02_01_N1;
        row.on_key_map_ = {{40, &D::on_key_enter_02_01_N1}, {41, &D::on_key_enter_02_01_N1}};
        break;
      case family::common:
        row.on_load_ = &D::on_load_common;
        row.on_key_map_ = {{40, &D::on_key_enter_common}, {41, &D::on_key_enter_common}};
        break;
      case family::zoom_menu:
        row.on_load_ = &D::on_load_02_03_01_N1;
        row.on_key_map_ = {{40, &D::on_key_enter_02_03_01_N1}, {41, &D::on_key_enter_02_03_01_N1}};
        break;
      case family::zoom_ratios:
        row.on_load_ = &D::on_load_02_03_01_N3;
        row.on_key_map_ = {{40, &D::on_key_enter_02_03_01_N3}, {41, &D::on_key_enter_02_03_01_N3}};
        break;
      case family::zoom_others:
        row.on_load_ = &D::on_load_02_03_01_N5;
        row.on_key_map_ = {{40, &D::on_key_enter_02_03_01_N5}, {41, &D::on_key_enter_02_03_01_N5}};
        break;
      case family::paper_13:
        row.on_load_ = &D::on_load_common;
        row.on_key_map_ = {{40, &D::on_key_enter_02_08_01_N13},
                           {41, &D::on_key_enter_02_08_01_N13}};
        break;
    }
    row.on_key_map_[61] = &D::on_key_back_common;
    row.on_gui_list_notify_ = &D::on_gui_list_notify_common;
    if (a == activation::common && focus_row(id) && f != family::zoom_menu &&
        f != family::zoom_ratios)
      a = activation::star;
    switch (a) {
      case activation::common:
        row.on_activate_ = &D::on_activate_common;
        break;
      case activation::star:
        row.on_activate_ = &D::on_activate_for_star;
        break;
      case activation::keep_position:
        row.on_activate_ = &D::on_activate_02_03_01_children;
        row.on_deactivate_ = &D::on_deactivate_02_03_01;
        break;
    }
    return row;
  }

  // The lists with a detail key on the right (23) for the chosen option.
  static void with_detail_key(D::CONTENTS_ELEMENT& row, bool button) {
    row.on_gui_list_notify_ = &D::on_gui_list_notify_02_36_01_N1;
    if (button)
      row.on_gui_button_notify_ = &D::on_gui_button_notify_02_10_N1;
  }
};

namespace {

using rows = dvc_pnl_ceh_option_list_rows;

void add(dvc_pnl_ceh_screen_table<D::CONTENTS_ELEMENT>& table, int id, D::CONTENTS_ELEMENT row) {
  table.add(id, std::move(row));
}

}  // namespace

void D::build_others() {
  if (!s_others_value_list_.empty())
    return;
  auto list = [](std::initializer_list<int> vs) { return ratios(vs, kNone); };
  s_others_value_list_[CID_02_03_01_N3] = list({1290, 900, 780, 640});
  s_others_value_list_[CID_02_03_01_N6] = list({1290, 780, 640});
  s_others_value_list_[CID_02_03_01_N8] = list({1410, 1150, 900, 860, 700});
  // PLACEHOLDER: the paper size lists' others values are not known.
  for (int id : {CID_02_04_03_N1, CID_02_04_03_N4, CID_02_04_03_N7, CID_02_09_N1, CID_02_09_N2,
                 CID_02_09_N3, CID_02_42_N1, CID_02_42_N2, CID_02_42_N3})
    s_others_value_list_[id] = values({90, 91, 92});
}

// ---- settings lists, ids below 169 ----
void D::Init_T_02(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id) {
  if (table.contains(id))
    return;
  build_others();
  const key_path none;
  switch (id) {
    case CID_02_02_N1:
      add(table, id,
          rows::make(id, family::plain, 582, {0, 1, 2, 160, 12, 29, 34}, values({0, 2, 1, 5})));
      break;
    case CID_02_02_N3:
      add(table, id,
          rows::make(id, family::plain, 582, {0, 1, 161, 160, 12, 29, 34},
                     values({0, 2, 1, 3, 1})));
      break;
    case CID_02_03_01_N1:
      add(table, id,
          rows::make(id, family::zoom_menu, kPlaceholderTitle, {0, 1, 2, 160, 12, 13, 14},
                     {{1060, -1, kDone, 0},
                      {9001, 0, kDone, 0},
                      {9002, 1, kNone, 0},
                      {9003, 1, CID_02_03_01_N4, 0}}));
      break;
    case CID_02_03_01_N3:
      add(table, id,
          rows::make(id, family::zoom_ratios, kPlaceholderTitle, {0, 1, 2, 160, 12, 13, 15, 16},
                     ratios({4000, 2000, 1410, 1150, 1000, 860, 700, 500, 250}, CID_02_03_01_N5)));
      break;
    case CID_02_03_01_N6:
      add(table, id,
          rows::make(
              id, family::zoom_ratios, kPlaceholderTitle, {0, 1, 2, 160, 12, 13, 15, 16},
              ratios({4000, 2000, 1410, 1150, 1000, 900, 860, 700, 500, 250}, CID_02_03_01_N7)));
      break;
    case CID_02_03_01_N8:
      add(table, id,
          rows::make(id, family::zoom_ratios, kPlaceholderTitle, {0, 1, 2, 160, 12, 13, 15, 16},
                     ratios({4000, 2000, 1290, 1000, 780, 640, 500, 250}, CID_02_03_01_N9)));
      break;
    case CID_02_03_01_N5:
    case CID_02_03_01_N7:
    case CID_02_03_01_N9: {
      const int parent = id == CID_02_03_01_N5   ? CID_02_03_01_N3
                         : id == CID_02_03_01_N7 ? CID_02_03_01_N6
                                                 : CID_02_03_01_N8;
      add(table, id,
          rows::make(id, family::zoom_others, kPlaceholderTitle, {0, 1, 2, 160, 12, 13, 15, 16},
                     s_others_value_list_[parent], 0, activation::keep_position));
      break;
    }
    case CID_02_05_N1:
      add(table, id,
          rows::make(id, family::plain, 423, {0, 1, 206, 160, 185, 186, 187},
                     values({0, 1, 2, 4})));
      break;
    case CID_02_05_N3:
      add(table, id,
          rows::make(id, family::plain, 676, {0, 1, 2, 160, 12, 29, 164},
                     values({0, 1, 2, 3, 4, 5})));
      break;
    case CID_02_05_N13:
      // PLACEHOLDER key and values: the same setting as CID_02_05_N3, four rows.
      add(table, id,
          rows::make(id, family::plain, 676, {0, 1, 2, 160, 12, 29, 164}, values({0, 1, 2, 3})));
      break;
    case CID_02_06_N1:
      add(table, id,
          rows::make(id, family::plain, 677, {0, 1, 2, 160, 12, 104, 165},
                     values({6, 7, 1, 2, 3})));
      break;
    case CID_02_08_01_N5: {
      std::vector<LIST_ELEMENT> types;
      for (int v = 1; v <= 23; ++v)  // PLACEHOLDER: the three types after 20 are not known
        types.push_back({9000 + v, v, kDone, 0});
      add(table, id, rows::make(id, family::common, 556, {0, 1, 2, 160, 46, 49, 55}, types));
      break;
    }
    case CID_02_08_01_N6:
    case CID_02_08_01_N7:
    case CID_02_08_01_N8: {
      std::vector<LIST_ELEMENT> sizes;
      for (int v = 1; v <= 26; ++v)  // PLACEHOLDER: the 26 size codes are not known
        sizes.push_back({9000 + v, v, kDone, 0});
      add(table, id, rows::make(id, family::plain, 1411, {0, 1, 2, 160, 46, 49, 53}, sizes, 1));
      break;
    }
    case CID_02_08_01_N13:
      add(table, id,
          rows::make(id, family::paper_13, kPlaceholderTitle, none,
                     {{9000, 0, CID_02_08_01_N6, 0}, {9001, 1, CID_02_08_01_N9, 0}}));
      break;
    case CID_02_08_02_N1:
      add(table, id,
          rows::make(id, family::common, kPlaceholderTitle, none, placeholder_choices(2), 1));
      break;
    case CID_02_03_02_N1:
      // Values 2 and 0 as the machine has them; key and texts are not known (PLACEHOLDER).
      add(table, id, rows::make(id, family::common, kPlaceholderTitle, none, values({2, 0})));
      break;
    case CID_02_04_03_N1:
    case CID_02_04_03_N3:
    case CID_02_04_03_N4:
    case CID_02_04_03_N7:
    case CID_02_09_N1:
    case CID_02_09_N2:
    case CID_02_09_N3:
    case CID_02_42_N1:
    case CID_02_42_N2:
    case CID_02_42_N3:
      // PLACEHOLDER: the paper size lists, whose rows are not known.
      add(table, id,
          rows::make(id, family::common, kPlaceholderTitle, none, placeholder_choices(4)));
      break;
    case CID_02_09_N5:
    case CID_02_42_N5:
      // PLACEHOLDER key and values.
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, none, placeholder_choices(3)));
      break;
    case CID_02_10_N1: {
      CONTENTS_ELEMENT row = rows::make(
          id, family::common, 312, {0, 1, 2, 160, 46, 58, 59, 60},
          {{9000, 0, kDone, 0}, {9001, 1, CID_02_10_N3, 0}, {9002, 2, CID_02_10_N6, 0}}, 1);
      rows::with_detail_key(row, true);
      add(table, id, std::move(row));
      break;
    }
    case CID_02_11_N1:
      add(table, id, rows::make(id, family::plain, 310, {0, 1, 2, 160, 148, 149}, values({0, 1})));
      break;
    case CID_02_17_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 2, 160, 12, 35, 35},
                     values({0, 1})));
      break;
    case CID_02_19_N1:
      add(table, id, rows::make(id, family::plain, 631, {0, 1, 2, 160, 1, 11}, values({0, 128})));
      break;
    case CID_02_22_N3:
      add(table, id,
          rows::make(id, family::plain, 252, {0, 1, 161, 160, 1, 4, 5}, values({0, 1, 2, 3, 4})));
      break;
    case CID_02_22_N8:
    case CID_02_22_N9:
    case CID_02_22_N10:
      // PLACEHOLDER: the input method lists.
      add(table, id,
          rows::make(id, family::common, kPlaceholderTitle, none, placeholder_choices(2)));
      break;
    case CID_02_24_N1:
      add(table, id,
          rows::make(id, family::plain, 415, {0, 1, 161, 160, 198, 199},
                     values({0, 1}, CID_02_24_N3), 1));
      break;
    case CID_02_25_N1:
      add(table, id, rows::make(id, family::plain, 381, {0, 1, 2, 160, 46, 48}, values({0, 1})));
      break;
    case CID_02_26_N1:
    case CID_02_26_N2:
    case CID_02_26_N11:
    case CID_02_26_N12:
    case CID_02_26_N13:
    case CID_02_26_N14:
    case CID_02_60_N1:
    case CID_02_60_N2:
    case CID_02_60_N5:
    case CID_02_60_N8:
    case CID_02_60_N9:
    case CID_02_60_N10:
    case CID_02_60_N11:
    case CID_02_60_N12:
      // PLACEHOLDER: the PDF encryption lists.
      add(table, id,
          rows::make(id, family::common, kPlaceholderTitle, none, placeholder_choices(2)));
      break;
    case CID_02_29_N1:
      add(table, id,
          rows::make(id, family::plain, 476, {0, 1, 161, 160, 1, 6, 6},
                     values({0, 1}, CID_02_29_N3), 1));
      break;
    case CID_02_29_N3:
      add(table, id,
          rows::make(id, family::plain, 360, {0, 1, 161, 160, 1, 6, 7},
                     {{9000, 2, CID_02_29_N11, 0}, {9001, 1, CID_02_29_N7, 0}}));
      break;
    case CID_02_36_01_N1:
    case CID_02_46_N1: {
      // PLACEHOLDER key and values of the duplex lists.
      CONTENTS_ELEMENT row =
          rows::make(id, family::common, kPlaceholderTitle, none, placeholder_choices(3), 1);
      rows::with_detail_key(row, true);
      add(table, id, std::move(row));
      break;
    }
    case CID_02_37_N1: {
      CONTENTS_ELEMENT row =
          rows::make(id, family::plain, 376, {0, 1, 161, 160, 12, 28}, values({0, 1}), 1);
      rows::with_detail_key(row, true);
      add(table, id, std::move(row));
      break;
    }
    case CID_02_38_N1:
    case CID_02_41_N1:
      // PLACEHOLDER key and values, two rows.
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, none, placeholder_choices(2)));
      break;
    case CID_02_39_N1:
      add(table, id,
          rows::make(id, family::plain, 424, {0, 1, 206, 160, 203, 204}, values({0, 1})));
      break;
    case CID_02_43_N1:
    case CID_02_48_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, none, placeholder_choices(2)));
      break;
    case CID_02_49_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 207, 160, 46, 2743},
                     placeholder_choices(2)));
      break;
    case CID_02_50_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 207, 160, 46, 2747},
                     values({0, 1})));
      break;
    case CID_02_51_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 207, 160, 1, 208},
                     values({0, 1})));
      break;
    case CID_02_53_N1:
      add(table, id,
          rows::make(id, family::plain, 2501, {0, 1, 161, 160, 12, 104, 147},
                     values({0, 1, 2, 3, 4, 5, 6})));
      break;
    case CID_02_54_N1:
    case CID_02_54_N3: {
      const unsigned long leaf = id == CID_02_54_N1 ? 145 : 146;
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 161, 160, 12, 104, 145, leaf},
                     placeholder_choices(3), id == CID_02_54_N1 ? 1 : 0));
      break;
    }
    case CID_02_57_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 2, 160, 12, 2997},
                     values({0, 1})));
      break;
    case CID_02_58_N1:
      add(table, id, rows::make(id, family::plain, 2877, {0, 1, 161, 160, 411}, values({0, 2, 1})));
      break;
    case CID_02_61_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 2, 160, 3796, 3797},
                     values({0, 1})));
      break;
    case CID_02_63_N1:
      add(table, id,
          rows::make(id, family::plain, 3416, {0, 1, 2, 160, 12, 3686, 3687}, values({0, 1}), 1));
      break;
    case CID_02_63_N2:
      add(table, id,
          rows::make(id, family::common, kPlaceholderTitle, none, placeholder_choices(2)));
      break;
    case CID_02_64_N1:
      add(table, id,
          rows::make(id, family::plain, kPlaceholderTitle, {0, 1, 2, 160, 12, 23, 24},
                     values({0, 1})));
      break;
    case CID_02_65_N1:
      add(table, id,
          rows::make(id, family::plain, 3494, {0, 1, 2, 160, 12, 782},
                     values({1, 2, 3, 4, 5, 6, 7, 8, 9})));
      break;
    default:
      break;
  }
}

// ---- destination actions and the job and box menus: PLACEHOLDER menus ----
void D::Init_T_03(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id) {
  if (table.contains(id))
    return;
  switch (id) {
    case CID_03_01_03_N18:
    case CID_03_02_01_N3:
    case CID_03_02_01_N10:
    case CID_03_02_01_N19:
    case CID_03_02_06_N6:
    case CID_03_02_06_N7:
    case CID_03_02_06_N8:
    case CID_03_02_07_N7:
    case CID_03_02_07_N8:
    case CID_03_02_07_N9:
    case CID_03_02_07_N10:
    case CID_03_02_07_N11:
    case CID_03_02_08_N3:
    case CID_03_05_N7:
    case CID_03_06_N1:
    case CID_03_06_N6:
    case CID_03_06_N9:
    case CID_04_02_N5:
    case CID_04_03_N2:
    case CID_04_05_N11:
    case CID_04_10_N2:
    case CID_04_11_N4:
    case CID_04_13_N2:
    case CID_05_01_N1:
    case CID_05_08_01_N4:
    case CID_05_08_05_N1:
    case CID_05_14_N1:
    case CID_05_14_N2:
    case CID_05_14_N3:
    case CID_05_18_N4:
    case CID_05_20_01_N1:
    case CID_05_20_03_N2:
    case CID_05_21_01_N1:
    case CID_05_21_02_N3:
    case CID_05_21_03_N3:
    case CID_05_22_01_N4:
    case CID_05_22_03_N3:
    case CID_05_23_02_N1:
    case CID_05_23_03_N1:
    case CID_05_23_07_N1:
    case CID_05_23_08_N1:
    case CID_05_23_09_N1:
      table.add(id, rows::make(id, family::common, kPlaceholderTitle, {}, placeholder_menu(2)));
      break;
    default:
      break;
  }
}

// No row of the class lies in the ranges of these two builders; they keep the split by range.
void D::Init_T_07_01(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& /*table*/, int /*id*/) {}
void D::Init_T_07_02_0(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& /*table*/, int /*id*/) {}

// ---- the job menus of 1076 to 1703: PLACEHOLDER menus ----
void D::Init_T_07_02_1(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& /*table*/, int /*id*/) {}

// ---- from 1704: status, paper mismatch and information menus: PLACEHOLDER menus ----
void D::Init_T_08(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id) {
  if (table.contains(id))
    return;
  switch (id) {
    case CID_09_01_02_N6:
      // 19 paper types of the media type setting; PLACEHOLDER values 1 to 19.
      table.add(id, rows::make(id, family::common, 295, {0, 230, 49, 371, 372, 374},
                               placeholder_choices(19)));
      return;
    default:
      break;
  }
  // The status, paper mismatch and information menus of the class.
  static constexpr int kMenus[] = {
      1704, 1707, 1708, 1712, 1717, 1725, 1759, 1760, 1780, 1781, 1783, 1784, 1785,
      1787, 1788, 1789, 1790, 1794, 1795, 1796, 1797, 1798, 1799, 1800, 1801, 1802,
      1803, 1804, 1805, 1806, 1807, 1808, 1809, 1810, 1813, 2146, 2147, 2150, 2152,
      2154, 2155, 2156, 2157, 2158, 2159, 2160, 2161, 2163, 2164, 2165, 2166, 2168,
      2171, 2179, 2182, 2184, 2226, 2227, 2228, 2229, 2230, 2240, 2241, 2242,
  };
  if (std::binary_search(std::begin(kMenus), std::end(kMenus), id))
    table.add(id, rows::make(id, family::common, kPlaceholderTitle, {}, placeholder_menu(2)));
}

void D::build_row(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id) {
  if (id < 169)
    Init_T_02(table, id);
  else if (id < 580)
    Init_T_03(table, id);
  else if (id < 832)
    Init_T_07_01(table, id);
  else if (id < 1076)
    Init_T_07_02_0(table, id);
  else if (id < 1704)
    Init_T_07_02_1(table, id);
  else
    Init_T_08(table, id);
}

}  // namespace orvanta
