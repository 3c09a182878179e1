// Tests of the host GUI components: layouts, parts, keys, drawing and the resource table.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "orvanta/host/font.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvc_pnl_cly_contents_layout.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "orvanta/platform/dvu_pnl_gcp_resource.h"
#include "support/valueset_builder.h"

namespace orvanta::host {
namespace {

// Contents ids: one without a screen family (its page has no parts until a test adds them) and
// one of each layout the tests look at.
constexpr int kBare = 10;
constexpr int kListPage = 100;    // an option list
constexpr int kTextEntry = 678;   // a text entry
constexpr int kNumberEntry = 16;  // a numeric entry, the common form
constexpr int kHome = 0;          // the copy home screen

// A contents that does nothing: these tests drive the components directly.
class plain_contents : public dvc_pnl_ceh_contents_interface {
 public:
  void dvc_pnl_ceh_on_load() override {}
  void dvc_pnl_ceh_on_close() override {}
  void dvc_pnl_ceh_on_activate_pre() override {}
  void dvc_pnl_ceh_on_deactivate() override {}
  void dvc_pnl_ceh_on_timer_base(int, int) override {}
  int dvc_pnl_ceh_on_key_base(dvc_pnl_evh_panel_event&) override { return 0; }
  int dvc_pnl_ceh_on_usb_keyboard_base(dvc_pnl_evh_panel_event&) override { return 0; }
  void dvc_pnl_ceh_lock() override {}
  void dvc_pnl_ceh_unlock() override {}
};

class GuiStandIn : public ::testing::Test {
 protected:
  void SetUp() override {
    reset();
    set_contents_creator([this](int id, dvu_pnl_gcp_components* gui) {
      guis[id] = gui;
      return new plain_contents;
    });
  }
  void TearDown() override {
    reset();
    set_contents_creator(nullptr);
    restore_default_resources();
  }

  dvu_pnl_gcp_components* open(int id) {
    auto* psm = dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
    EXPECT_EQ(psm->dvc_pnl_psm_open(1, 1, 0, id, 1), 0);
    return guis[id];
  }
  template <class T>
  T* part(dvu_pnl_gcp_components* gui, int id) {
    return dynamic_cast<T*>(dvu_pnl_gcp_get_gui_parts_by_id(gui, id));
  }
  static DVU_PNL_GCP_NOTIFY key(dvu_pnl_gcp_components* gui, int id) {
    DVU_PNL_GCP_NOTIFY n{-1, -1, -1, -1, -1};
    EXPECT_EQ(dvu_pnl_gcp_on_key(gui, dvc_pnl_evh_panel_event(id), n), 0);
    return n;
  }
  static int attr(const dvu_pnl_gcp_parts* p, int attribute) {
    int v = -999;
    p->dvu_pnl_gcp_get_int_val(attribute, v);
    return v;
  }
  using frame = std::array<unsigned char, kFrameBytes>;
  static frame draw(dvu_pnl_gcp_components* gui) {
    frame img{};
    dvu_pnl_gcp_draw(gui, img.data());
    return img;
  }
  // The frame that draw_text alone makes of `text` at (x, y).
  static frame text_at(int x, int y, const std::string& text) {
    frame img{};
    draw_text(img.data(), x, y, text);
    return img;
  }
  // Whether every dark pixel of `want` is dark in `have`.
  static bool covers(const frame& have, const frame& want) {
    for (std::size_t i = 0; i < have.size(); ++i) {
      if ((have[i] & want[i]) != want[i])
        return false;
    }
    return true;
  }
  static dvu_pnl_gcp_list_row text_row(const std::string& text) {
    dvu_pnl_gcp_list_row row;
    row.dvu_pnl_gcp_add_text(3, 18, text);
    return row;
  }

  std::map<int, dvu_pnl_gcp_components*> guis;
};

// ---- layouts ----

TEST_F(GuiStandIn, EveryRoutedIdHasTheLayoutOfItsFamilyAndItsPartsLieInTheFrame) {
  std::string name;
  unsigned long attributes = 0;
  EXPECT_EQ(dvc_pnl_cly_get_layout_name(kBare, name, attributes), 1);
  EXPECT_EQ(layout_of(kBare), "");
  int ids = 0;
  for (int id = 0; id <= 2249; ++id) {
    if (dvc_pnl_cly_get_layout_name(id, name, attributes) != 0)
      continue;
    ++ids;
    EXPECT_FALSE(layout_of(id).empty()) << id << " of family " << name;
  }
  EXPECT_EQ(ids, 2200);
  EXPECT_EQ(layout_of(kListPage), "list");
  EXPECT_EQ(layout_of(kHome), "home");
  EXPECT_EQ(layout_of(kTextEntry), "entry_text");

  for (int id : {kListPage, kTextEntry, kNumberEntry, kHome, 1, 2202, 1980, 5}) {
    dvu_pnl_gcp_components* gui = open(id);
    for (const auto& [part_id, p] : parts_of(id, 1)) {
      int x = 0, y = 0, w = 0, h = 0;
      p->dvu_pnl_gcp_get_position(x, y);
      p->dvu_pnl_gcp_get_size(w, h);
      EXPECT_TRUE(x >= 0 && y >= 0 && w > 0 && h > 0 && x + w <= kFrameWidth &&
                  y + h <= kFrameHeight)
          << "part " << part_id << " of " << id;
    }
    for (int common : {30, 31, 32})
      EXPECT_NE(dvu_pnl_gcp_get_gui_parts_by_id(gui, common), nullptr) << id << " " << common;
  }
}

TEST_F(GuiStandIn, ALayoutGivesItsPartsTheirKindsAndTheKeysToItsFirstEntryPart) {
  dvu_pnl_gcp_components* list = open(kListPage);
  EXPECT_NE(part<dvu_pnl_gcp_text>(list, 123), nullptr);
  EXPECT_NE(part<dvu_pnl_gcp_list>(list, 64), nullptr);
  EXPECT_NE(part<dvu_pnl_gcp_flexiblekey>(list, 30), nullptr);
  EXPECT_NE(part<dvu_pnl_gcp_icon>(list, 32), nullptr);
  EXPECT_EQ(dvu_pnl_gcp_get_focus(list), 64);

  dvu_pnl_gcp_components* entry = open(kTextEntry);
  EXPECT_NE(part<dvu_pnl_gcp_input_edit_box>(entry, 78), nullptr);
  EXPECT_EQ(dvu_pnl_gcp_get_focus(entry), 78);
  EXPECT_EQ(dvu_pnl_gcp_set_focus(entry, 5), 1) << "no such part";
  EXPECT_EQ(dvu_pnl_gcp_set_focus(entry, 123), 0);
  EXPECT_EQ(dvu_pnl_gcp_get_focus(entry), 123);

  dvu_pnl_gcp_components* bare = open(kBare);
  EXPECT_TRUE(parts_of(kBare, 1).empty());
  EXPECT_EQ(dvu_pnl_gcp_get_focus(bare), -1);
  EXPECT_EQ(dvu_pnl_gcp_get_focus(nullptr), -1);
}

// ---- keys ----

TEST_F(GuiStandIn, CursorKeysMoveTheListSelectionWithTheSelectedRowInTheMiddle) {
  dvu_pnl_gcp_components* gui = open(kListPage);
  auto* list = part<dvu_pnl_gcp_list>(gui, 64);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(key(gui, 58).type, DVU_PNL_GCP_NOTIFY_REFUSED) << "an empty list cannot move";
  for (int i = 0; i < 6; ++i)
    list->dvu_pnl_gcp_add_row(text_row("row " + std::to_string(i)));

  struct step {
    int key, type, selected, scroll;
  };
  const step steps[] = {
      {57, DVU_PNL_GCP_NOTIFY_REFUSED, 0, 0},  // already at the top
      {58, DVU_PNL_GCP_NOTIFY_LIST, 1, 0},    {58, DVU_PNL_GCP_NOTIFY_LIST, 2, 1},
      {58, DVU_PNL_GCP_NOTIFY_LIST, 3, 2},    {58, DVU_PNL_GCP_NOTIFY_LIST, 4, 3},
      {58, DVU_PNL_GCP_NOTIFY_LIST, 5, 3},  // the last row keeps two rows above it in view
      {58, DVU_PNL_GCP_NOTIFY_REFUSED, 5, 3}, {57, DVU_PNL_GCP_NOTIFY_LIST, 4, 3},
      {40, DVU_PNL_GCP_NOTIFY_NONE, 4, 3},  // Enter is not the list's
  };
  for (const step& s : steps) {
    const DVU_PNL_GCP_NOTIFY n = key(gui, s.key);
    EXPECT_EQ(n.type, s.type) << s.key << " to " << s.selected;
    EXPECT_EQ(attr(list, DVU_PNL_GCP_ATTR_LIST_SELECT_ROW), s.selected);
    EXPECT_EQ(attr(list, DVU_PNL_GCP_ATTR_LIST_SCROLL_POS), s.scroll);
    if (n.type == DVU_PNL_GCP_NOTIFY_LIST) {
      EXPECT_EQ(n.repeat_kind, 1) << "a held cursor key repeats";
      EXPECT_EQ(n.part_id, 64);
      EXPECT_EQ(n.value, s.selected);
    }
  }
  list->set_scroll_amount(3);
  key(gui, 57);
  EXPECT_EQ(attr(list, DVU_PNL_GCP_ATTR_LIST_SELECT_ROW), 1) << "a step of three rows";
  ASSERT_EQ(dvu_pnl_gcp_set_enable_select_listitem(gui, 64, false), 0);
  EXPECT_EQ(key(gui, 58).type, DVU_PNL_GCP_NOTIFY_NONE);
  EXPECT_EQ(dvu_pnl_gcp_set_enable_select_listitem(gui, 123, true), 1) << "not a list";
}

TEST_F(GuiStandIn, ANumberEntryTakesDigitsUpToItsLengthAndClears) {
  dvu_pnl_gcp_components* gui = open(kNumberEntry);
  auto* number = part<dvu_pnl_gcp_input_number>(gui, 78);
  ASSERT_NE(number, nullptr);
  number->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, 5);
  DVU_PNL_GCP_NOTIFY n = key(gui, 46);  // digit 1 starts a new value
  EXPECT_EQ(n.type, DVU_PNL_GCP_NOTIFY_NUMBER);
  EXPECT_EQ(n.value, 1);
  key(gui, 47);
  n = key(gui, 48);
  EXPECT_EQ(n.value, 123);
  n = key(gui, 49);
  EXPECT_EQ(n.type, DVU_PNL_GCP_NOTIFY_REFUSED) << "three digits at most";
  EXPECT_EQ(attr(number, DVU_PNL_GCP_ATTR_NUMBER), 123);
  n = key(gui, 38);
  EXPECT_EQ(n.type, DVU_PNL_GCP_NOTIFY_CLEAR);
  EXPECT_EQ(attr(number, DVU_PNL_GCP_ATTR_NUMBER), 0);
  EXPECT_EQ(key(gui, 57).type, DVU_PNL_GCP_NOTIFY_NONE);
}

TEST_F(GuiStandIn, AnEditBoxTypesErasesAndMovesItsCursor) {
  dvu_pnl_gcp_components* gui = open(kTextEntry);
  auto* box = part<dvu_pnl_gcp_input_edit_box>(gui, 78);
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(key(gui, 38).type, DVU_PNL_GCP_NOTIFY_REFUSED) << "nothing to erase";
  EXPECT_EQ(key(gui, 47).type, DVU_PNL_GCP_NOTIFY_EDIT);
  key(gui, 49);
  EXPECT_EQ(key(gui, 59).type, DVU_PNL_GCP_NOTIFY_CURSOR);
  dvc_pnl_evh_panel_event keyboard(1071);
  keyboard.dvc_pnl_evh_set_event_source_valueset(
      test::make_valueset({{"0.4166", static_cast<long>('x')}}));
  DVU_PNL_GCP_NOTIFY n{};
  dvu_pnl_gcp_on_key(gui, keyboard, n);
  EXPECT_EQ(n.type, DVU_PNL_GCP_NOTIFY_EDIT) << "a keyboard types its character";
  EXPECT_EQ(box->content(), "2x4");
  EXPECT_EQ(key(gui, 60).type, DVU_PNL_GCP_NOTIFY_CURSOR);
  EXPECT_EQ(key(gui, 60).type, DVU_PNL_GCP_NOTIFY_REFUSED) << "the cursor is at the end";
  EXPECT_EQ(key(gui, 38).type, DVU_PNL_GCP_NOTIFY_CLEAR);
  EXPECT_EQ(box->content(), "2x");

  int rect[4] = {};
  ASSERT_EQ(dvu_pnl_gcp_get_cursor_info(gui, rect), 1);
  EXPECT_EQ(rect[0], 2 * kGlyphWidth) << "the cursor stands after the content";
  EXPECT_EQ(rect[2], kGlyphWidth);

  box->dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_EDIT_CONTENT, "ab  ");
  std::string text;
  box->dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_EDIT_CONTENT, text);
  EXPECT_EQ(text, "ab");
  box->dvu_pnl_gcp_get_space_added_string(text);
  EXPECT_EQ(text, "ab  ");
  EXPECT_TRUE(box->dvu_pnl_gcp_set_crlf2lf_string("a\r\nb\rc\n"));
  EXPECT_EQ(box->content(), "a\nb\nc\n");
  EXPECT_FALSE(box->dvu_pnl_gcp_set_crlf2lf_string(std::string(65, 'z')));
  EXPECT_EQ(box->content(), "a\nb\nc\n") << "a refused content leaves the box as it was";
}

TEST_F(GuiStandIn, FieldEntriesKeepEachFieldWithinItsLimit) {
  dvu_pnl_gcp_components* gui = open(kBare);
  auto* ip = static_cast<dvu_pnl_gcp_input_ip*>(
      add_part(kBare, 1, 78, std::make_unique<dvu_pnl_gcp_input_ip>()));
  dvu_pnl_gcp_set_focus(gui, 78);
  for (int digit : {2, 5})
    EXPECT_EQ(key(gui, 45 + digit).type, DVU_PNL_GCP_NOTIFY_EDIT);
  EXPECT_EQ(key(gui, 51).type, DVU_PNL_GCP_NOTIFY_REFUSED) << "256 is no octet";
  EXPECT_EQ(attr(ip, DVU_PNL_GCP_ATTR_IPV4_FIRST), 25);
  EXPECT_EQ(key(gui, 60).type, DVU_PNL_GCP_NOTIFY_CURSOR);
  key(gui, 46);
  EXPECT_EQ(attr(ip, DVU_PNL_GCP_ATTR_IPV4_FIRST + 1), 1);
  for (int i = 0; i < 2; ++i)
    key(gui, 60);
  EXPECT_EQ(key(gui, 60).type, DVU_PNL_GCP_NOTIFY_REFUSED) << "four fields";

  auto* time = static_cast<dvu_pnl_gcp_input_time*>(
      add_part(kBare, 1, 79, std::make_unique<dvu_pnl_gcp_input_time>()));
  EXPECT_EQ(time->field_count(), 2);
  time->dvu_pnl_gcp_set_state(DVU_PNL_GCP_STATE_WITH_SECONDS);
  EXPECT_EQ(time->field_count(), 3);
  dvu_pnl_gcp_input_date date;
  EXPECT_EQ(date.move_cursor(1), 0);
  EXPECT_EQ(date.type_digit(1), 0);
  EXPECT_EQ(date.type_digit(3), 1) << "month 13";
}

TEST_F(GuiStandIn, FlexibleKeysAnswerUnlessHiddenAndAForcedNotifyWinsForOtherKeys) {
  dvu_pnl_gcp_components* gui = open(kListPage);
  EXPECT_EQ(key(gui, kKeyFlexLeft).type, kNotifyFlexLeft);
  EXPECT_EQ(key(gui, kKeyFlexRight).type, kNotifyFlexRight);
  part<dvu_pnl_gcp_flexiblekey>(gui, 31)->dvu_pnl_gcp_set_visible(false);
  EXPECT_EQ(key(gui, kKeyFlexRight).type, DVU_PNL_GCP_NOTIFY_NONE);

  gui_of(kListPage, 1)->next_notify = DVU_PNL_GCP_NOTIFY{6, 9, 1, 17, 4};
  const DVU_PNL_GCP_NOTIFY n = key(gui, 40);
  EXPECT_EQ(n.type, 6);
  EXPECT_EQ(n.repeat_count, 9);
  EXPECT_EQ(n.part_id, 17);
  EXPECT_EQ(key(gui, kKeyFlexLeft).type, kNotifyFlexLeft);
  EXPECT_EQ(gui_of(kListPage, 1)->keys_seen,
            (std::vector<int>{kKeyFlexLeft, kKeyFlexRight, kKeyFlexRight, 40, kKeyFlexLeft}));
  DVU_PNL_GCP_NOTIFY none{};
  EXPECT_EQ(dvu_pnl_gcp_on_key(nullptr, dvc_pnl_evh_panel_event(40), none), 1);
}

TEST_F(GuiStandIn, NumberRowsAreBroughtWithinTheirLimitsAndOntoTheirStep) {
  dvu_pnl_gcp_components* gui = open(kListPage);
  auto* list = part<dvu_pnl_gcp_list>(gui, 64);
  dvu_pnl_gcp_list_row row;
  row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_INT_MIN, 10);
  row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_INT_MAX, 50);
  row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_STEP, 5);
  struct value_case {
    int in, out;
  };
  for (const value_case c : {value_case{3, 10}, {23, 20}, {99, 50}, {35, 35}}) {
    row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, c.in);
    list->dvu_pnl_gcp_clear_all_row();
    list->dvu_pnl_gcp_add_row(row);
    ASSERT_EQ(dvu_pnl_gcp_round_value_list_row(gui, 64, 0), 0);
    dvu_pnl_gcp_list_row* kept = nullptr;
    list->dvu_pnl_gcp_get_row(0, kept);
    EXPECT_EQ(attr(kept, DVU_PNL_GCP_ATTR_NUMBER), c.out) << c.in;
  }
  EXPECT_EQ(dvu_pnl_gcp_round_value_list_row(gui, 64, 1), 1);
  list->dvu_pnl_gcp_add_row(text_row("plain"));
  EXPECT_EQ(dvu_pnl_gcp_round_value_list_row(gui, 64, 1), 1) << "not a number row";
}

// ---- drawing ----

TEST_F(GuiStandIn, ADrawReportsOnlyAChangedFrame) {
  dvu_pnl_gcp_components* gui = open(kListPage);
  frame img{};
  EXPECT_EQ(dvu_pnl_gcp_draw(gui, img.data()), 0) << "an empty layout draws a blank frame";
  part<dvu_pnl_gcp_text>(gui, 123)->dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_LITERAL, "Copy");
  EXPECT_EQ(dvu_pnl_gcp_draw(gui, img.data()), 1);
  EXPECT_EQ(img, text_at(0, 0, "Copy"));
  EXPECT_EQ(dvu_pnl_gcp_draw(gui, img.data()), 0);
  EXPECT_EQ(gui_of(kListPage, 1)->draws, 3);

  gui_of(kListPage, 1)->draw_changes = false;
  frame kept;
  kept.fill(0x55);
  EXPECT_EQ(dvu_pnl_gcp_draw(gui, kept.data()), 0);
  EXPECT_EQ(kept[0], 0x55) << "a forced unchanged draw leaves the image alone";
  EXPECT_EQ(dvu_pnl_gcp_draw(nullptr, img.data()), 0);
  EXPECT_EQ(dvu_pnl_gcp_draw(gui, nullptr), 0);
}

TEST_F(GuiStandIn, TextsShowTheirResourceOrLiteralWrappedOrByTheirTail) {
  dvu_pnl_gcp_components* gui = open(kBare);
  auto* text =
      static_cast<dvu_pnl_gcp_text*>(add_part(kBare, 1, 67, std::make_unique<dvu_pnl_gcp_text>()));
  text->dvu_pnl_gcp_set_position(0, 13);
  text->dvu_pnl_gcp_set_size(4 * kGlyphWidth, 2 * kGlyphHeight);
  set_text_resource(9001, "Paper %s left");

  struct text_case {
    const char* what;
    std::function<void()> fill;
    std::vector<std::string> lines;  // what each line shows
  };
  const std::vector<text_case> cases{
      {"a literal cut to its width",
       [&] { text->dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_LITERAL, "abcdef"); },
       {"abcd"}},
      {"the tail of a long literal",
       [&] { text->dvu_pnl_gcp_set_state(DVU_PNL_GCP_STATE_TAIL); },
       {"cdef"}},
      {"wrapped at blanks",
       [&] {
         text->dvu_pnl_gcp_set_state(0);
         text->dvu_pnl_gcp_set_orikaeshi_string("ab cd ef");
       },
       {"ab", "cd"}},
      {"wrapped, the last lines",
       [&] { text->dvu_pnl_gcp_set_state(DVU_PNL_GCP_STATE_TAIL); },
       {"cd", "ef"}},
      {"a resource over the literal",
       [&] {
         text->dvu_pnl_gcp_set_state(0);
         text->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, 9002);
       },
       {"9002"}},
      {"a resource format with its argument",
       [&] { text->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, 9001, "A4"); },
       {"Pape", "r A4"}},
  };
  for (const text_case& c : cases) {
    c.fill();
    frame want{};
    for (std::size_t i = 0; i < c.lines.size(); ++i)
      draw_text(want.data(), 0, 13 + static_cast<int>(i) * kGlyphHeight, c.lines[i]);
    EXPECT_EQ(draw(gui), want) << c.what;
  }
}

TEST_F(GuiStandIn, AListDrawsThreeRowsFromItsScrollPositionWithStarsAndTheSelection) {
  dvu_pnl_gcp_components* gui = open(kListPage);
  auto* list = part<dvu_pnl_gcp_list>(gui, 64);
  for (const char* t : {"zero", "one", "two", "three"})
    list->dvu_pnl_gcp_add_row(text_row(t));
  list->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, 1);
  list->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, 0);  // out of view
  dvu_pnl_gcp_list_row* row = nullptr;
  list->dvu_pnl_gcp_get_row(2, row);
  row->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ROW_STAR, 1);

  frame want{};
  draw_text(want.data(), 18, 13, "one");
  draw_text(want.data(), 18, 25, "two");
  draw_text(want.data(), 18, 37, "three");
  EXPECT_EQ(draw(gui), want) << "stars show only when the list turns them on";

  list->dvu_pnl_gcp_set_state(DVU_PNL_GCP_STATE_STARS);
  draw_text(want.data(), 20 * kGlyphWidth, 25, "*");
  EXPECT_EQ(draw(gui), want);

  list->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, 3);
  const frame selected = draw(gui);
  for (int x : {0, 17, 127})
    EXPECT_TRUE(frame_pixel(selected.data(), x, 40)) << "the selected row is inverted at " << x;
  EXPECT_FALSE(frame_pixel(selected.data(), 0, 28));
}

TEST_F(GuiStandIn, IconsDrawTheirBitmapOrTheirNumberAndIconZeroIsBlank) {
  dvu_pnl_gcp_components* gui = open(kListPage);
  auto* bar = part<dvu_pnl_gcp_icon>(gui, 32);
  bar->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, 268);  // both keys
  frame img = draw(gui);
  EXPECT_TRUE(frame_pixel(img.data(), 10, 52)) << "the left tab's top line";
  EXPECT_TRUE(frame_pixel(img.data(), 100, 52)) << "the right tab's top line";
  bar->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, 267);  // the right key only
  img = draw(gui);
  EXPECT_FALSE(frame_pixel(img.data(), 10, 52));
  EXPECT_TRUE(frame_pixel(img.data(), 100, 52));
  bar->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, 0);
  EXPECT_EQ(draw(gui), frame{});

  auto* icon = part<dvu_pnl_gcp_icon>(gui, 6);  // 12 pixels wide at x 116
  icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, 7);
  EXPECT_EQ(draw(gui), text_at(116 + 3, 0, "7")) << "a number, centred in its place";
  load_resources("icon 7 2 1\n#.\n");
  img = draw(gui);
  EXPECT_TRUE(frame_pixel(img.data(), 116, 0));
  EXPECT_FALSE(frame_pixel(img.data(), 117, 0));
}

TEST_F(GuiStandIn, FlexibleKeysShowTheirTextCentredAndHiddenPartsNothing) {
  dvu_pnl_gcp_components* gui = open(kListPage);
  set_text_resource(9003, "OK");
  auto* right = part<dvu_pnl_gcp_flexiblekey>(gui, 31);
  right->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_KEY_TEXT, 9003);
  EXPECT_EQ(draw(gui), text_at(64 + (64 - 2 * kGlyphWidth) / 2, 52, "OK"));
  right->dvu_pnl_gcp_set_visible(false);
  EXPECT_EQ(draw(gui), frame{});
}

TEST_F(GuiStandIn, EntriesDrawTheirValues) {
  dvu_pnl_gcp_components* gui = open(kBare);
  auto* ip = add_part(kBare, 1, 1, std::make_unique<dvu_pnl_gcp_input_ip>());
  ip->dvu_pnl_gcp_set_size(kFrameWidth, kGlyphHeight);
  for (int i = 0; i < 4; ++i)
    ip->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_IPV4_FIRST + i, i == 0 ? 192 : i);
  auto* number = add_part(kBare, 1, 2, std::make_unique<dvu_pnl_gcp_input_number>());
  number->dvu_pnl_gcp_set_position(0, 12);
  number->dvu_pnl_gcp_set_size(36, kGlyphHeight);
  number->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, 42);
  auto* date = add_part(kBare, 1, 3, std::make_unique<dvu_pnl_gcp_input_date>());
  date->dvu_pnl_gcp_set_position(0, 24);
  date->dvu_pnl_gcp_set_size(kFrameWidth, kGlyphHeight);
  date->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_DATE_FIRST, 2026);
  date->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_DATE_FIRST + 1, 11);
  date->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_DATE_FIRST + 2, 3);

  frame want = text_at(0, 0, "192.001.002.003");
  draw_text(want.data(), 36 - 2 * kGlyphWidth, 12, "42");  // right-aligned
  draw_text(want.data(), 0, 24, "2026/11/03");
  EXPECT_EQ(draw(gui), want);
}

TEST_F(GuiStandIn, ARunningAnimationMovesOnWithEveryDraw) {
  dvu_pnl_gcp_components* gui = open(kBare);
  auto* animation = static_cast<dvu_pnl_gcp_processing_animation*>(
      add_part(kBare, 1, 5, std::make_unique<dvu_pnl_gcp_processing_animation>()));
  animation->dvu_pnl_gcp_set_size(kFrameWidth, 2 * kGlyphHeight);
  animation->dvu_pnl_gcp_processing_resister(-1, -1);
  EXPECT_EQ(draw(gui), frame{}) << "not started";
  animation->dvu_pnl_gcp_processing_start();
  const frame first = draw(gui);
  const frame second = draw(gui);
  EXPECT_NE(first, frame{});
  EXPECT_NE(first, second);
  animation->dvu_pnl_gcp_processing_stop();
  EXPECT_EQ(draw(gui), frame{});

  // A registered icon and text stand on the first line: the icon at its start, the text centred.
  set_text_resource(9004, "Wait");
  animation->dvu_pnl_gcp_processing_resister(9004, 7);
  animation->dvu_pnl_gcp_processing_start();
  frame line = draw(gui);
  for (int y = kGlyphHeight; y < 2 * kGlyphHeight; ++y) {
    for (int x = 0; x < kFrameWidth; ++x)
      line[static_cast<std::size_t>(y * kFrameStride + x / 8)] &=
          static_cast<unsigned char>(~(0x80 >> (x % 8)));  // the bar's line is not compared
  }
  frame want = text_at(3, 0, "7");
  draw_text(want.data(), (kFrameWidth - 4 * kGlyphWidth) / 2, 0, "Wait");
  EXPECT_EQ(line, want);
}

// ---- resources ----

TEST_F(GuiStandIn, TheCompiledInResourcesHoldTheKeyBarsAndPlaceholderTexts) {
  icon_bitmap bar;
  for (int rid : {265, 266, 267, 268}) {
    ASSERT_TRUE(icon_of(rid, bar)) << rid;
    EXPECT_EQ(bar.width, kFrameWidth);
    EXPECT_EQ(bar.height, kGlyphHeight);
  }
  EXPECT_EQ(dvu_pnl_gcp_resource::get_text_resource(48), "OK");
  EXPECT_EQ(dvu_pnl_gcp_resource::get_text_resource(49), "49");
}

TEST_F(GuiStandIn, ALoadedResourceFileReplacesTheTableAndABadOneChangesNothing) {
  load_resources("# mine\n\ntext 5 Five words here\nicon 3 2 2\n##\n.#\n");
  EXPECT_EQ(dvu_pnl_gcp_resource::get_text_resource(5), "Five words here");
  EXPECT_EQ(dvu_pnl_gcp_resource::get_text_resource(48), "48") << "the old table is gone";
  icon_bitmap icon;
  ASSERT_TRUE(icon_of(3, icon));
  EXPECT_EQ(icon.rows, (std::vector<std::string>{"##", ".#"}));

  struct bad_file {
    const char* content;
    const char* message;
  };
  const bad_file bad[] = {
      {"text x Hello\n", "resources line 1: bad resource id \"x\""},
      {"\nicon 3 2 2\n##\n", "resources line 2: icon 3 has fewer rows than its height"},
      {"icon 3 2 1\n#x\n", "resources line 2: an icon row is 2 of \"#\" and \".\""},
      {"icon 3 200 1\n",
       "resources line 1: an icon is \"icon <id> <width> <height>\" within 128x64"},
      {"label 3 x\n", "resources line 1: expected \"text\" or \"icon\", found \"label\""},
  };
  for (const bad_file& b : bad) {
    try {
      load_resources(b.content);
      ADD_FAILURE() << b.content;
    } catch (const std::invalid_argument& e) {
      EXPECT_STREQ(e.what(), b.message);
    }
    EXPECT_EQ(dvu_pnl_gcp_resource::get_text_resource(5), "Five words here");
  }
  restore_default_resources();
  EXPECT_EQ(dvu_pnl_gcp_resource::get_text_resource(48), "OK");
}

}  // namespace
}  // namespace orvanta::host
