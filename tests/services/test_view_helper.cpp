// View helper on the parts of an open list page: codes and traces of failures, texts, entries,
// flexible keys, the list's scroll rule and stars, every row layout, animations, and the frame.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "contents/contents_probe.h"
#include "orvanta/host/font.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"

namespace orvanta::test {
namespace {

using gui_t = dvc_pnl_ceh_contents_hdl_gui;
constexpr unsigned long kTail = DVU_PNL_GCP_STATE_TAIL;

bool traced(const std::string& message) {
  return host::trace_sink::instance().has_message(message);
}

class ViewHelper : public ProbeFixture {
 protected:
  void SetUp() override {
    ProbeFixture::SetUp();
    ASSERT_EQ(host::layout_of(kA), "list");
    ASSERT_NE(open(kA), nullptr);
    host::trace_sink::instance().clear();
  }

  static dvu_pnl_gcp_components* comps() { return page(kA)->dvc_pnl_ceh_get_gui_components(); }
  static gui_t* gui() { return gui_t::dvc_pnl_ceh_register_gui_operator(comps()); }
  template <typename T>
  static T* part(int id) {
    return dynamic_cast<T*>(dvu_pnl_gcp_get_gui_parts_by_id(comps(), id));
  }
  template <typename T>
  static T* add(int id) {
    return static_cast<T*>(host::add_part(kA, kFunc, id, std::make_unique<T>()));
  }
  static dvu_pnl_gcp_list* list() { return part<dvu_pnl_gcp_list>(GUI_ID_LIST); }
  static int attr(const dvu_pnl_gcp_parts& p, int a) {
    int v = -999;
    p.dvu_pnl_gcp_get_int_val(a, v);
    return v;
  }
  static dvu_pnl_gcp_list_row& row(int i) {
    dvu_pnl_gcp_list_row* r = nullptr;
    list()->dvu_pnl_gcp_get_row(i, r);
    return *r;
  }
  static void fill(int rows) {
    for (int i = 0; i < rows; ++i)
      ASSERT_EQ(gui()->dvc_pnl_ceh_add_view_list_icon_text(i, "row " + std::to_string(i)), 0);
  }
};

TEST_F(ViewHelper, NullComponentsGiveSixEverywhereAndTheStarRowReadsMinusOne) {
  gui_t* g = gui_t::dvc_pnl_ceh_register_gui_operator(nullptr);
  EXPECT_TRUE(traced("p is NULL"));
  EXPECT_EQ(g->dvc_pnl_ceh_get_gui_components(), nullptr);
  int i = 0;
  std::string s;
  DATE_TIME d{};
  TIMER_SETTING t{};
  TCP_IP_IPV4_SETTING ip{};
  dvu_pnl_gcp_list_row* r = nullptr;
  const std::vector<std::function<int()>> ops = {
      [&] { return g->dvc_pnl_ceh_update_view_text_res(123, 1, 0); },
      [&] { return g->dvc_pnl_ceh_update_view_text(123, 1, 0); },
      [&] { return g->dvc_pnl_ceh_update_view_text(123, "a", 0); },
      [&] { return g->dvc_pnl_ceh_update_view_text_res_int(123, 1, 0, 1); },
      [&] { return g->dvc_pnl_ceh_update_view_text_res_hex(123, 1, 0, 1); },
      [&] { return g->dvc_pnl_ceh_update_view_text_res_str(123, 1, 0, "a"); },
      [&] { return g->dvc_pnl_ceh_update_view_icon(6, 1); },
      [&] { return g->dvc_pnl_ceh_get_view_icon(6, i); },
      [&] { return g->dvc_pnl_ceh_update_view_input_number(78, 1); },
      [&] { return g->dvc_pnl_ceh_get_view_input_number(78, i); },
      [&] { return g->dvc_pnl_ceh_update_view_date(53, d); },
      [&] { return g->dvc_pnl_ceh_get_view_date(53, d); },
      [&] { return g->dvc_pnl_ceh_update_view_time(78, d, 1); },
      [&] { return g->dvc_pnl_ceh_get_view_time(78, d); },
      [&] { return g->dvc_pnl_ceh_update_view_timer(78, t); },
      [&] { return g->dvc_pnl_ceh_get_view_timer(78, t); },
      [&] { return g->dvc_pnl_ceh_update_view_input_ip(78, ip); },
      [&] { return g->dvc_pnl_ceh_get_view_input_ip(78, ip); },
      [&] { return g->dvc_pnl_ceh_update_view_input_ipv6(78, "::1"); },
      [&] { return g->dvc_pnl_ceh_get_view_input_ipv6(78, s); },
      [&] { return g->dvc_pnl_ceh_update_view_input_edit_box(78, "a"); },
      [&] { return g->dvc_pnl_ceh_get_view_input_edit_box(78, s); },
      [&] { return g->dvc_pnl_ceh_update_view_input_edit_box_crlf(78, "a"); },
      [&] { return g->dvc_pnl_ceh_get_view_input_edit_box_with_right_space(78, s); },
      [&] { return g->dvc_pnl_ceh_get_view_input_select_mark(78, s); },
      [&] { return g->dvc_pnl_ceh_update_view_flexiblekey(-1, -1); },
      [&] { return g->dvc_pnl_ceh_set_list_scroll_count(1); },
      [&] { return g->dvc_pnl_ceh_get_list_scroll_pos(i); },
      [&] { return g->dvc_pnl_ceh_set_list_scroll_pos(0); },
      [&] { return g->dvc_pnl_ceh_get_list_select_row(i); },
      [&] { return g->dvc_pnl_ceh_set_list_select_row(0); },
      [&] { return g->dvc_pnl_ceh_get_list_row(0, r); },
      [&] { return g->dvc_pnl_ceh_clear_list(); },
      [&] { return g->dvc_pnl_ceh_set_star_to_select_row(0); },
      [&] { return g->dvc_pnl_ceh_reset_star_to_select_row(0); },
      [&] { return g->dvc_pnl_ceh_update_view_list_row_check_status(0); },
      [&] { return g->dvc_pnl_ceh_set_icon(0, 1); },
      [&] { return g->dvc_pnl_ceh_add_view_list_index_text(1, 1, 0); },
      [&] { return g->dvc_pnl_ceh_add_view_list_index_subfix_2text(1, 1, "a", "b", 0); },
      [&] { return g->dvc_pnl_ceh_add_view_list_text_icon_text_compact(1, 1, "a"); },
      [&] { return g->dvc_pnl_ceh_add_view_list_text_colon_percent(1, 1); },
      [&] { return g->dvc_pnl_ceh_add_view_list_mnt_layout5(3, "a"); },
      [&] {
        return g->dvc_pnl_ceh_add_view_list_mnt_layout2(0, "a", 0, "", 1, 0, 1, 0, 9, 0, 0, 0);
      },
  };
  for (std::size_t n = 0; n < ops.size(); ++n) {
    host::trace_sink::instance().clear();
    EXPECT_EQ(ops[n](), 6) << "operation " << n;
    EXPECT_TRUE(traced("p_comp_ is NULL")) << "operation " << n;
  }
  int star = 5;
  EXPECT_EQ(g->dvc_pnl_ceh_get_list_star_row(star), 6);
  EXPECT_EQ(star, -1);
  EXPECT_EQ(list()->dvu_pnl_gcp_get_max_row(), -1) << "no row reached the list";
  // The next registration serves again.
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_icon(GUI_ID_ARROW, 7), 0);
}

TEST_F(ViewHelper, BadIdsAndMissingPartsOrPartsOfAnotherKindGiveSixWithTheirText) {
  std::string s;
  DATE_TIME d{};
  const std::vector<std::pair<std::function<int()>, std::string>> cases = {
      {[] { return gui()->dvc_pnl_ceh_update_view_text_res(0, 1, 0); }, "gui_id : 0"},
      {[] { return gui()->dvc_pnl_ceh_update_view_icon(65536, 1); }, "gui_id : 65536"},
      {[] { return gui()->dvc_pnl_ceh_update_view_text(GUI_ID_ARROW, "a", 0); }, "p_text is NULL"},
      {[] { return gui()->dvc_pnl_ceh_update_view_icon(GUI_ID_TITLE, 1); }, "p_icon is NULL"},
      {[] { return gui()->dvc_pnl_ceh_update_view_input_number(500, 1); },
       "p_input_number is NULL"},
      {[&] { return gui()->dvc_pnl_ceh_update_view_date(500, d); }, "p_input_date is NULL"},
      {[&] { return gui()->dvc_pnl_ceh_get_view_time(500, d); }, "p_input_time is NULL"},
      {[] { return gui()->dvc_pnl_ceh_update_view_timer(500, {}); }, "p_input_timer is NULL"},
      {[&] { return gui()->dvc_pnl_ceh_get_view_input_ipv6(500, s); }, "p_input_ip is NULL"},
      {[&] { return gui()->dvc_pnl_ceh_get_view_input_edit_box(500, s); },
       "p_input_edit_box is NULL"},
      {[&] { return gui()->dvc_pnl_ceh_get_view_input_select_mark(500, s); },
       "p_input_select_mark is NULL"},
      {[] { return gui()->dvc_pnl_ceh_update_view_list_row_check_status(0); }, "list_row is NULL"},
      {[] { return gui()->dvc_pnl_ceh_set_icon(0, 1); }, "list_row is NULL"},
      {[] { return gui()->dvc_pnl_ceh_set_star_to_select_row(0); }, "row is NULL"},
  };
  for (const auto& [op, text] : cases) {
    host::trace_sink::instance().clear();
    EXPECT_EQ(op(), 6) << text;
    EXPECT_TRUE(traced(text)) << text;
  }
  add<dvu_pnl_gcp_text>(GUI_ID_FLEXIBLEKEY_LEFT);
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_flexiblekey(1, 2), 6);
  EXPECT_TRUE(traced("p_flexiblekey is NULL"));
  EXPECT_EQ(attr(*part<dvu_pnl_gcp_icon>(GUI_ID_FLEXIBLEKEY_BAR), 0), -999) << "nothing changed";
  add<dvu_pnl_gcp_icon>(GUI_ID_LIST);
  EXPECT_EQ(gui()->dvc_pnl_ceh_clear_list(), 6);
  EXPECT_TRUE(traced("p_list is NULL"));
}

TEST_F(ViewHelper, TextsSetResourceOrLiteralAndTheTailBit) {
  auto* title = part<dvu_pnl_gcp_text>(GUI_ID_TITLE);
  title->dvu_pnl_gcp_set_state(0x1);
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_text_res(GUI_ID_TITLE, 700, 1), 0);
  EXPECT_EQ(attr(*title, 1), 700);
  EXPECT_EQ(title->dvu_pnl_gcp_get_state(), 0x1 | kTail);
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_text(GUI_ID_TITLE, -42, 0), 0);
  EXPECT_EQ(attr(*title, 1), -1);
  EXPECT_EQ(title->dvu_pnl_gcp_get_state(), 0x1UL);
  std::string literal;
  title->dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_LITERAL, literal);
  EXPECT_EQ(literal, "-42");
  EXPECT_TRUE(title->wraps());
  const std::vector<std::pair<std::function<int()>, std::string>> formats = {
      {[] { return gui()->dvc_pnl_ceh_update_view_text_res_int(GUI_ID_TITLE, 9, 1, -7); }, "-7"},
      {[] { return gui()->dvc_pnl_ceh_update_view_text_res_hex(GUI_ID_TITLE, 9, 1, 0x1a); },
       "001A"},
      {[] { return gui()->dvc_pnl_ceh_update_view_text_res_hex(GUI_ID_TITLE, 9, 1, -1); },
       "FFFFFFFF"},
      {[] { return gui()->dvc_pnl_ceh_update_view_text_res_str(GUI_ID_TITLE, 9, 1, "x y"); },
       "x y"},
  };
  for (const auto& [op, shown] : formats) {
    EXPECT_EQ(op(), 0);
    EXPECT_EQ(attr(*title, 1), 9);
    EXPECT_EQ(title->format_argument(), shown);
    EXPECT_TRUE(title->dvu_pnl_gcp_get_state() & kTail);
  }
}

TEST_F(ViewHelper, EntryFieldsTakeAndGiveTheirAttributes) {
  auto* date = add<dvu_pnl_gcp_input_date>(500);
  auto* mark = add<dvu_pnl_gcp_parts>(GUI_ID_DATE_MARK);
  mark->dvu_pnl_gcp_set_state(0x40);
  DATE_TIME in{2024, 2, 29, 23, 58, 57, {}};
  DATE_TIME out{};
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_date(500, in), 0);
  EXPECT_EQ(mark->dvu_pnl_gcp_get_state(), 0x41UL);
  EXPECT_EQ((std::array{attr(*date, 28), attr(*date, 29), attr(*date, 30)}),
            (std::array{2024, 2, 29}));
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_date(500, out), 0);
  EXPECT_EQ((std::array{out.year, out.month, out.day}), (std::array{2024, 2, 29}));

  auto* time = add<dvu_pnl_gcp_input_time>(501);
  time->dvu_pnl_gcp_set_state(0x4);
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_time(501, in, 0), 0);
  EXPECT_EQ(time->dvu_pnl_gcp_get_state(), 0x4UL);
  EXPECT_EQ(attr(*time, 33), -999) << "no second without seconds";
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_time(501, in, 1), 0);
  EXPECT_EQ(time->dvu_pnl_gcp_get_state(), DVU_PNL_GCP_STATE_WITH_SECONDS);
  out = {};
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_time(501, out), 0);
  EXPECT_EQ((std::array{out.hour, out.minute, out.second, out.year}), (std::array{23, 58, 57, 0}));

  auto* timer = add<dvu_pnl_gcp_input_timer>(502);
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_timer(502, {3, 4, 5}), 0);
  EXPECT_EQ((std::array{attr(*timer, 30), attr(*timer, 31), attr(*timer, 32)}),
            (std::array{3, 4, 5}));
  TIMER_SETTING t{};
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_timer(502, t), 0);
  EXPECT_EQ((std::array{t.day, t.hour, t.minute}), (std::array{3, 4, 5}));

  auto* ip = add<dvu_pnl_gcp_input_ip>(503);
  ip->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_IPV4_COMMIT, 9);
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_input_ip(503, {{192, 168, 0, 7}}), 0);
  EXPECT_EQ(attr(*ip, 34), 0);
  TCP_IP_IPV4_SETTING octets{};
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_input_ip(503, octets), 0);
  EXPECT_EQ((std::array{octets.octet[0], octets.octet[1], octets.octet[2], octets.octet[3]}),
            (std::array{192, 168, 0, 7}));
  std::string s;
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_input_ipv6(503, "fe80::1"), 0);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_input_ipv6(503, s), 0);
  EXPECT_EQ(s, "fe80::1");

  auto* number = add<dvu_pnl_gcp_input_number>(504);
  int n = 0;
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_input_number(504, 77), 0);
  EXPECT_EQ(attr(*number, 19), 77);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_input_number(504, n), 0);
  EXPECT_EQ(n, 77);
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_icon(GUI_ID_ARROW, 12), 0);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_icon(GUI_ID_ARROW, n), 0);
  EXPECT_EQ(n, 12);
}

TEST_F(ViewHelper, EditBoxesAndMarkLists) {
  auto* box = host::add_part(kA, kFunc, 505, std::make_unique<dvu_pnl_gcp_input_edit_box>(6));
  std::string s;
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_input_edit_box(505, "ab  "), 0);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_input_edit_box(505, s), 0);
  EXPECT_EQ(s, "ab");
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_input_edit_box_with_right_space(505, s), 0);
  EXPECT_EQ(s, "ab  ");
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_input_edit_box_crlf(505, "a\r\nb\rc"), 0);
  EXPECT_EQ(static_cast<dvu_pnl_gcp_input_edit_box*>(box)->content(), "a\nb\nc");
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_input_edit_box_crlf(505, "abcdefg"), 1);
  EXPECT_TRUE(traced("dvu_pnl_gcp_set_crlf2lf_string ret_code = 1"));
  EXPECT_EQ(static_cast<dvu_pnl_gcp_input_edit_box*>(box)->content(), "a\nb\nc");
  add<dvu_pnl_gcp_input_select_mark>(506)->set_words({"one", "two"});
  part<dvu_pnl_gcp_input_select_mark>(506)->move_cursor(1);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_view_input_select_mark(506, s), 0);
  EXPECT_EQ(s, "two");
}

TEST_F(ViewHelper, FlexibleKeysShowTheBarOfTheKeysPresent) {
  struct keys_case {
    int left, right, bar;
  };
  auto* bar = part<dvu_pnl_gcp_icon>(GUI_ID_FLEXIBLEKEY_BAR);
  auto* left = part<dvu_pnl_gcp_flexiblekey>(GUI_ID_FLEXIBLEKEY_LEFT);
  auto* right = part<dvu_pnl_gcp_flexiblekey>(GUI_ID_FLEXIBLEKEY_RIGHT);
  for (const keys_case& c : {keys_case{-1, -1, 265}, keys_case{11, -1, 266}, keys_case{-1, 12, 267},
                             keys_case{11, 12, 268}}) {
    SCOPED_TRACE(::testing::Message() << c.left << "," << c.right);
    left->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_KEY_TEXT, 0);
    right->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_KEY_TEXT, 0);
    EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_flexiblekey(c.left, c.right), 0);
    EXPECT_EQ(attr(*bar, 0), c.bar);
    EXPECT_EQ(left->dvu_pnl_gcp_is_visible(), c.left != -1);
    EXPECT_EQ(right->dvu_pnl_gcp_is_visible(), c.right != -1);
    EXPECT_EQ(attr(*left, 2), c.left == -1 ? 0 : c.left);
    EXPECT_EQ(attr(*right, 2), c.right == -1 ? 0 : c.right);
  }
  for (auto [l, r, text] :
       {std::tuple{-2, 5, "rid_left : -2"}, std::tuple{5, -2, "rid_right : -2"}}) {
    EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_flexiblekey(l, r), 6);
    EXPECT_TRUE(traced(text));
    EXPECT_EQ(attr(*bar, 0), 268) << "nothing changed";
    EXPECT_TRUE(left->dvu_pnl_gcp_is_visible() && right->dvu_pnl_gcp_is_visible());
  }
}

TEST_F(ViewHelper, SelectingARowScrollsItToTheMiddleExceptAtTheEnds) {
  struct scroll_case {
    int rows, index, scroll;
  };
  for (const scroll_case& c :
       {scroll_case{10, 0, 0}, scroll_case{10, 1, 0}, scroll_case{10, 5, 4}, scroll_case{10, 8, 7},
        scroll_case{10, 9, 7}, scroll_case{3, 1, 0}, scroll_case{3, 2, 0}, scroll_case{3, 5, 0},
        scroll_case{4, 3, 1}, scroll_case{4, 2, 1}}) {
    SCOPED_TRACE(::testing::Message() << c.rows << " rows, index " << c.index);
    gui()->dvc_pnl_ceh_clear_list();
    fill(c.rows);
    EXPECT_EQ(gui()->dvc_pnl_ceh_set_list_select_row(c.index), 0);
    EXPECT_EQ((std::array{attr(*list(), 4), attr(*list(), 5)}), (std::array{c.index, c.scroll}));
    int selected = -1, scroll = -1;
    const int in_list = c.index < c.rows ? 0 : 7;
    EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_select_row(selected), in_list);
    EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_scroll_pos(scroll), 0);
    EXPECT_EQ((std::array{selected, scroll}), (std::array{c.index, c.scroll}));
  }
  for (int bad : {65536, -1}) {
    EXPECT_EQ(gui()->dvc_pnl_ceh_set_list_select_row(bad), 6);
    EXPECT_TRUE(traced("index : " + std::to_string(bad)));
  }
  EXPECT_EQ(attr(*list(), 4), 2) << "a refused index leaves the selection";
  EXPECT_EQ(gui()->dvc_pnl_ceh_set_list_scroll_pos(65536), 6);
  EXPECT_EQ(gui()->dvc_pnl_ceh_set_list_scroll_pos(4), 0);
  EXPECT_EQ(attr(*list(), 5), 4);
  int pos = -1;
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_scroll_pos(pos), 7) << "4 lies past the last row";
  EXPECT_EQ(gui()->dvc_pnl_ceh_set_list_scroll_count(2), 0);
  EXPECT_EQ(list()->scroll_amount(), 2);
}

TEST_F(ViewHelper, RowsAndPositionsOfAnEmptyOrShortList) {
  int value = -1;
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_select_row(value), 7);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_scroll_pos(value), 7);
  fill(2);
  dvu_pnl_gcp_list_row* r = nullptr;
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_row(1, r), 0);
  EXPECT_EQ(r, &row(1));
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_row(2, r), 6);
  EXPECT_EQ(r, nullptr);
  EXPECT_TRUE(traced("index : 2"));
  EXPECT_EQ(gui()->dvc_pnl_ceh_update_view_list_row_check_status(1), 0);
  EXPECT_EQ(gui()->dvc_pnl_ceh_set_icon(0, 44), 0);
  const dvu_pnl_gcp_label_item& check = row(1).items().back();
  EXPECT_EQ((std::array{check.cell, check.width, check.resource}), (std::array{19, 2, 0}));
  EXPECT_TRUE(check.is_icon);
  const dvu_pnl_gcp_label_item& icon = row(0).items().back();
  EXPECT_EQ((std::array{icon.cell, icon.width, icon.resource}), (std::array{19, 2, 44}));
  EXPECT_EQ(gui()->dvc_pnl_ceh_clear_list(), 0);
  EXPECT_EQ(list()->dvu_pnl_gcp_get_max_row(), -1);
}

TEST_F(ViewHelper, StarsMarkOneRow) {
  int star = 9;
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_star_row(star), 0);
  EXPECT_EQ(star, -1) << "empty list";
  fill(6);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_star_row(star), 0);
  EXPECT_EQ(star, -1) << "no star";
  EXPECT_EQ(gui()->dvc_pnl_ceh_set_star_to_select_row(4), 0);
  EXPECT_TRUE(list()->dvu_pnl_gcp_get_state() & DVU_PNL_GCP_STATE_STARS);
  EXPECT_EQ((std::array{attr(*list(), 4), attr(*list(), 5)}), (std::array{4, 3}));
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_star_row(star), 0);
  EXPECT_EQ(star, 4);

  list()->dvu_pnl_gcp_set_state(0);
  EXPECT_EQ(gui()->dvc_pnl_ceh_reset_star_to_select_row(1), 0);
  EXPECT_EQ((std::array{attr(*list(), 4), attr(*list(), 5)}), (std::array{1, 3}))
      << "the scroll position stays";
  EXPECT_EQ(list()->dvu_pnl_gcp_get_state(), 0UL) << "stars are not turned on";
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(attr(row(i), 6), i == 1 ? 1 : 0) << i;
  // A row counts only when both marks are set.
  row(1).dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ROW_STAR_SHOWN, 0);
  EXPECT_EQ(gui()->dvc_pnl_ceh_get_list_star_row(star), 0);
  EXPECT_EQ(star, -1);
  EXPECT_EQ(gui()->dvc_pnl_ceh_reset_star_to_select_row(65536), 6);
}

// One cell item as a row holds it.
struct item {
  bool icon;
  int cell, width, resource;
  std::string text;
  unsigned long state;
  bool operator==(const item&) const = default;
};
void PrintTo(const item& i, std::ostream* os) {
  *os << (i.icon ? "I " : "T ") << i.cell << "," << i.width << " " << i.resource << " \"" << i.text
      << "\" " << i.state;
}
item I(int cell, int width, int rid) {
  return {true, cell, width, rid, "", 0};
}
item T(int cell, int width, int rid, unsigned long state = 0) {
  return {false, cell, width, rid, "", state};
}
item L(int cell, int width, const std::string& text, unsigned long state = 0) {
  return {false, cell, width, -1, text, state};
}

TEST_F(ViewHelper, EveryRowLayoutPlacesItsItems) {
  struct row_case {
    std::function<int(const gui_t&)> add;
    std::vector<item> items;
  };
  const std::vector<row_case> cases = {
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_text(5, 700, 1); },
       {I(0, 2, 5), T(3, 18, 700, kTail)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_text(337, "abc", 0); },
       {I(0, 2, 337), L(3, 18, "abc")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_text_blank(6, "x", 1); },
       {I(0, 2, 6), L(3, 18, "x", kTail)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_text_status(1, 700, 9, 1); },
       {I(0, 2, 1), T(3, 16, 700, kTail), I(19, 2, 9)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_text_status(1, "s", 9, 0); },
       {I(0, 2, 1), L(3, 16, "s"), I(19, 2, 9)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_text_status_compact(1, 700, 9, 1); },
       {I(0, 2, 1), T(2, 17, 700, kTail), I(19, 2, 9)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_text_status_compact(1, "s", 9, 0); },
       {I(0, 2, 1), L(2, 17, "s"), I(19, 2, 9)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_subfix_text(1, 4, 700, 1); },
       {I(0, 2, 1), I(3, 2, 4), T(5, 16, 700, kTail)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_subfix_text(1, 4, "s", 0); },
       {I(0, 2, 1), I(3, 2, 4), L(5, 16, "s")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_subfix_2text(1, 4, 700, 701, 1); },
       {I(0, 2, 1), I(3, 2, 4), T(5, 8, 700, kTail), T(13, 8, 701)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_subfix_2text(1, 4, -3, 0, 1); },
       {I(0, 2, 1), I(3, 2, 4)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_subfix_2text(1, 4, "a", "b", 1); },
       {I(0, 2, 1), I(3, 2, 4), L(5, 8, "a", kTail), L(13, 8, "b")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_subfix_2text(1, 4, 0, "b", 1); },
       {I(0, 2, 1), I(3, 2, 4), L(13, 8, "b")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_index_subfix_2text(1, 4, 700, "b", 1); },
       {I(0, 2, 1), I(3, 2, 4), T(5, 8, 700, kTail), L(13, 8, "b")}},
      {[](auto& g) {
         return g.dvc_pnl_ceh_add_view_list_index_text_icon_text_icon(2, 1, 700, 336, 701);
       },
       {I(0, 2, 2), I(3, 2, 1), T(5, 7, 700), I(12, 2, 336), T(14, 7, 701)}},
      {[](auto& g) {
         return g.dvc_pnl_ceh_add_view_list_index_text_icon_text_icon(2, 0, 0, 337, -1);
       },
       {I(0, 2, 2)}},
      {[](auto& g) {
         return g.dvc_pnl_ceh_add_view_list_text_subfix_text_status(12345, 4, 700, 9, 1);
       },
       {L(0, 4, "2345"), I(5, 2, 4), T(7, 12, 700, kTail), I(19, 2, 9)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_text_subfix_text_status(7, 4, "s", 9, 0); },
       {L(0, 4, "0007"), I(5, 2, 4), L(7, 12, "s"), I(19, 2, 9)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_text_icon_text_compact(12345, 4, "s"); },
       {L(0, 4, "1234"), I(4, 2, 4), L(6, 15, "s")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_text_icon_text_compact(42, 4, "s"); },
       {L(0, 4, "0042"), I(4, 2, 4), L(6, 15, "s")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_icon_text(4, 700); },
       {I(0, 2, 4), T(3, 18, 700)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_icon_text(4, "s"); },
       {I(0, 2, 4), L(3, 18, "s")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_icon_text_compact(4, 700); },
       {I(0, 2, 4), T(2, 19, 700)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_icon_text_compact(4, "s"); },
       {I(0, 2, 4), L(2, 19, "s")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_icon_text_icon(4, "s", 9); },
       {I(0, 2, 4), L(2, 17, "s"), I(19, 2, 9)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_text_colon_text(700, 701); },
       {T(0, 14, 700), L(13, 1, ":"), T(14, 7, 701)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_text_colon_text("s", 701); },
       {L(0, 13, "s"), L(13, 1, ":"), T(14, 7, 701)}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_text_colon_percent(700, 45); },
       {T(0, 14, 700), L(13, 1, ":"), L(14, 7, "45%")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_mnt_layout1(4, "s"); },
       {I(0, 2, 4), L(3, 18, "s")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_mnt_layout5(4, "s"); },
       {I(0, 2, 4), L(3, 18, "s")}},
      {[](auto& g) { return g.dvc_pnl_ceh_add_view_list_mnt_layout5(5, "s"); }, {L(0, 21, "s")}},
      {[](auto& g) {
         return g.dvc_pnl_ceh_add_view_list_mnt_layout2(4, "s", 1, "ON", 0, 9, 0, 0, 0, 0, 0, 0);
       },
       {I(0, 2, 4), L(3, 13, "s"), L(17, 4, "ON")}},
      {[](auto& g) {
         return g.dvc_pnl_ceh_add_view_list_mnt_layout2(4, "s", 0, "ON", 5, 0, 1, 0, 9, 0, 0, 0);
       },
       {I(0, 2, 4), L(3, 13, "s")}},
  };
  for (std::size_t n = 0; n < cases.size(); ++n) {
    SCOPED_TRACE(::testing::Message() << "case " << n);
    ASSERT_EQ(cases[n].add(*gui()), 0);
    ASSERT_EQ(list()->dvu_pnl_gcp_get_max_row(), static_cast<int>(n));
    std::vector<item> got;
    for (const dvu_pnl_gcp_label_item& i : row(static_cast<int>(n)).items())
      got.push_back({i.is_icon, i.cell, i.width, i.resource, i.text, i.state});
    EXPECT_EQ(got, cases[n].items);
  }
}

TEST_F(ViewHelper, IconsOutsideTheRangeAddNoRow) {
  const std::vector<std::pair<std::function<int()>, std::string>> cases = {
      {[] { return gui()->dvc_pnl_ceh_add_view_list_index_text(338, 1, 0); },
       "(index_rid < ICON_NO_BLANK) || (index_rid > ICON_NO_MAX)"},
      {[] { return gui()->dvc_pnl_ceh_add_view_list_index_text(-1, "s", 0); },
       "(index_rid < ICON_NO_BLANK) || (index_rid > ICON_NO_MAX)"},
      {[] { return gui()->dvc_pnl_ceh_add_view_list_index_subfix_text(1, 338, 1, 0); },
       "subfix_icon_rid : 338"},
      {[] { return gui()->dvc_pnl_ceh_add_view_list_index_text_status(1, 1, 338, 0); },
       "status_icon_rid : 338"},
      {[] { return gui()->dvc_pnl_ceh_add_view_list_text_subfix_text_status(1, 1, 1, -1, 0); },
       "status_icon_rid : -1"},
      {[] { return gui()->dvc_pnl_ceh_add_view_list_icon_text_icon(1, "s", 338); },
       "icon_rid : 338"},
      {[] { return gui()->dvc_pnl_ceh_add_view_list_mnt_layout5(338, "s"); }, "icon_rid : 338"},
      {[] {
         return gui()->dvc_pnl_ceh_add_view_list_mnt_layout2(0, "s", 0, "", 1, 6, 1, 0, 9, 0, 0, 0);
       },
       "decimal_place : 6"},
  };
  for (const auto& [op, text] : cases) {
    host::trace_sink::instance().clear();
    EXPECT_EQ(op(), 6) << text;
    EXPECT_TRUE(traced(text)) << text;
  }
  EXPECT_EQ(list()->dvu_pnl_gcp_get_max_row(), -1);
}

TEST_F(ViewHelper, MaintenanceNumberRowsSplitTheValueAndSetLimitsInOrder) {
  ASSERT_EQ(
      gui()->dvc_pnl_ceh_add_view_list_mnt_layout2(4, "s", 0, "", 1234, 2, 5, 1, 99, 3, 0, 50), 0);
  const dvu_pnl_gcp_list_row& r = row(0);
  EXPECT_EQ(r.dvu_pnl_gcp_get_state(), DVU_PNL_GCP_STATE_DECIMAL_0 << 2);
  EXPECT_EQ((std::array{attr(r, 19), attr(r, 20), attr(r, 23), attr(r, 21), attr(r, 24),
                        attr(r, 22), attr(r, 27)}),
            (std::array{12, 34, 1, 99, 0, 50, 5}));
  EXPECT_TRUE(traced("increase_decimal_place : 3"));
  ASSERT_EQ(
      gui()->dvc_pnl_ceh_add_view_list_mnt_layout2(4, "s", 0, "", 1234, 0, 5, 1, 9999, 3, 0, 50),
      0);
  EXPECT_EQ((std::array{attr(row(1), 19), attr(row(1), 20), attr(row(1), 22)}),
            (std::array{1234, -999, -999}));

  // The attributes go to the row in a fixed order.
  struct recording_row : dvu_pnl_gcp_list_row {
    std::vector<int> order;
    int dvu_pnl_gcp_set_int_val(int a, int v) override {
      order.push_back(a);
      return dvu_pnl_gcp_list_row::dvu_pnl_gcp_set_int_val(a, v);
    }
  };
  recording_row with, without;
  dvc_pnl_ceh_gui_set_number_row(with, {1234, 2, 5, 1, 99, 0, 50});
  dvc_pnl_ceh_gui_set_number_row(without, {1234, 0, 5, 1, 99, 0, 50});
  EXPECT_EQ(with.order, (std::vector<int>{23, 21, 24, 22, 27, 19, 20}));
  EXPECT_EQ(without.order, (std::vector<int>{23, 21, 27, 19}));
}

TEST_F(ViewHelper, AnimationsStopInOrderAndLeaveTheTableByFirstMatch) {
  dvu_pnl_gcp_processing_animation a, b, c;
  for (auto* p : {&a, &b, &a}) {
    EXPECT_EQ(gui_t::register_animation(p), 0);
    p->dvu_pnl_gcp_processing_start();
  }
  c.dvu_pnl_gcp_processing_start();
  EXPECT_EQ(gui_t::register_animation(nullptr), 6);
  EXPECT_TRUE(traced("p is NULL"));
  gui_t::unregister_animation(&c);
  EXPECT_EQ(gui_t::animation_table(), (std::vector<dvu_pnl_gcp_processing_animation*>{&a, &b, &a}));
  gui_t::unregister_animation(&a);
  EXPECT_EQ(gui_t::animation_table(), (std::vector<dvu_pnl_gcp_processing_animation*>{&b, &a}));
  EXPECT_EQ(gui_t::stop_animation(), 0);
  EXPECT_FALSE(a.running() || b.running());
  EXPECT_TRUE(c.running()) << "an unregistered animation runs on";
  EXPECT_EQ(gui_t::animation_table().size(), 2U);
}

// True when the frame shows exactly `text` in the cells from (x, y) on.
bool shows(const unsigned char* frame, int x, int y, const std::string& text) {
  std::array<unsigned char, host::kFrameBytes> expected{};
  host::draw_text(expected.data(), x, y, text);
  for (int py = y; py < y + host::kGlyphHeight; ++py) {
    for (int px = x; px < x + host::kGlyphWidth * static_cast<int>(text.size()); ++px) {
      if (host::frame_pixel(frame, px, py) != host::frame_pixel(expected.data(), px, py))
        return false;
    }
  }
  return true;
}

TEST_F(ViewHelper, APageFilledThroughTheHelperDrawsItsTextsInPlace) {
  const std::size_t frames = host::devices().frames.size();
  // The probe's id label stands where the title is.
  dvu_pnl_gcp_get_gui_parts_by_id(page(kA)->dvc_pnl_ceh_get_gui_components(), kIdLabelPart)
      ->dvu_pnl_gcp_set_visible(false);
  ASSERT_EQ(gui()->dvc_pnl_ceh_update_view_text(GUI_ID_TITLE, "VIEW", 0), 0);
  fill(3);
  ASSERT_EQ(gui()->dvc_pnl_ceh_set_star_to_select_row(2), 0);
  ASSERT_EQ(gui()->dvc_pnl_ceh_set_list_select_row(0), 0);
  page(kA)->draw();
  ASSERT_EQ(host::devices().frames.size(), frames + 1) << "the frame changed";
  const unsigned char* frame = host::devices().frames.back().data();
  EXPECT_TRUE(shows(frame, 0, 0, "VIEW"));
  // List rows start at y 13, 12 pixels each; a row's text cell 3 starts at x 18; the star mark
  // stands in the last cell.
  EXPECT_TRUE(shows(frame, 18, 25, "row 1"));
  EXPECT_TRUE(shows(frame, 18, 37, "row 2"));
  EXPECT_TRUE(shows(frame, 120, 37, "*"));
  EXPECT_FALSE(shows(frame, 120, 25, "*"));
}

}  // namespace
}  // namespace orvanta::test
