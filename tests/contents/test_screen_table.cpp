// The shared screen table: rows built lazily one id at a time and kept with their changes, empty
// member slots, and key maps.
#include <gtest/gtest.h>

#include "contents/dvc_pnl_ceh_screen_table.h"

namespace orvanta {
namespace {

// A screen class in miniature: its rows hold a title and two member slots.
struct screen {
  struct row {
    int title;
    int (screen::*on_key_)(dvc_pnl_evh_panel_event&);
    void (screen::*on_timer_)(int);
  };
  int enter(dvc_pnl_evh_panel_event& event) {
    last_key = event.dvc_pnl_evh_get_id();
    return 1;
  }
  void tick(int id) { last_timer = id; }
  int last_key = 0;
  int last_timer = -1;
};

// Builds rows for ids 1 and 2 only, counting how often it is asked.
struct builder {
  int* calls;
  void operator()(dvc_pnl_ceh_screen_table<screen::row>& table, int id) const {
    ++*calls;
    if (id == 1)
      table.add(1, {100, &screen::enter, &screen::tick});
    else if (id == 2)
      table.add(2, {200, nullptr, nullptr});
  }
};

TEST(ScreenTable, RowsAreBuiltOnceAndKeepTheirChanges) {
  dvc_pnl_ceh_screen_table<screen::row> table;
  int calls = 0;
  screen::row* first = table.row_of(1, builder{&calls});
  ASSERT_NE(nullptr, first);
  EXPECT_EQ(100, first->title);
  first->title = 101;  // a screen changes its row at run time
  EXPECT_EQ(first, table.row_of(1, builder{&calls}));
  EXPECT_EQ(101, table.row_of(1, builder{&calls})->title);
  EXPECT_EQ(1, calls) << "a row present is not built again";

  EXPECT_EQ(200, table.row_of(2, builder{&calls})->title);
  EXPECT_EQ(2u, table.size());
  EXPECT_EQ(101, first->title) << "adding a row keeps the others in place";

  // add() does not overwrite a row that exists.
  table.add(1, {999, nullptr, nullptr});
  EXPECT_EQ(101, table.find(1)->title);
}

TEST(ScreenTable, AnIdWithoutARowAnswersNullEveryTime) {
  dvc_pnl_ceh_screen_table<screen::row> table;
  int calls = 0;
  EXPECT_EQ(nullptr, table.row_of(7, builder{&calls}));
  EXPECT_EQ(nullptr, table.row_of(7, builder{&calls}));
  EXPECT_EQ(2, calls);
  EXPECT_FALSE(table.contains(7));
  table.row_of(1, builder{&calls});
  table.reset();
  EXPECT_EQ(0u, table.size());
}

TEST(ScreenTable, SlotsAndKeyMapsCallWhatIsThere) {
  screen s;
  const screen::row full{1, &screen::enter, &screen::tick};
  const screen::row empty{2, nullptr, nullptr};
  dvc_pnl_evh_panel_event enter(40);

  EXPECT_EQ(1, dvc_pnl_ceh_call_slot(&s, full.on_key_, enter));
  EXPECT_EQ(40, s.last_key);
  dvc_pnl_ceh_call_slot(&s, full.on_timer_, 3);
  EXPECT_EQ(3, s.last_timer);

  s = screen{};
  EXPECT_EQ(0, dvc_pnl_ceh_call_slot(&s, empty.on_key_, enter));
  dvc_pnl_ceh_call_slot(&s, empty.on_timer_, 3);
  EXPECT_EQ(0, s.last_key);
  EXPECT_EQ(-1, s.last_timer);

  const dvc_pnl_ceh_key_map<screen> keys = {{40, &screen::enter}, {61, nullptr}};
  EXPECT_EQ(1, dvc_pnl_ceh_call_key(&s, keys, enter));
  EXPECT_EQ(40, s.last_key);
  dvc_pnl_evh_panel_event back(61);
  dvc_pnl_evh_panel_event other(57);
  EXPECT_EQ(0, dvc_pnl_ceh_call_key(&s, keys, back));
  EXPECT_EQ(0, dvc_pnl_ceh_call_key(&s, keys, other));
  EXPECT_EQ(40, s.last_key);
}

}  // namespace
}  // namespace orvanta
