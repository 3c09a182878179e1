// Contents base and handler base: keys and key repeat, keyboard keys, operation source, drawing
// and LCD output, going back, function ids, icons and device helpers, driven through the proxy.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "contents_probe.h"
#include "orvanta/host/font.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

namespace orvanta {
namespace {

using namespace test;

constexpr int kLockScreen = 2202;

// A USB keyboard key as the framework delivers it: event 1071 with the key code or a release.
int keyboard(long code, bool release = false) {
  dvc_pnl_evh_panel_event event(1071);
  if (release) {
    event.dvc_pnl_evh_set_event_source_valueset(test::make_valueset({{"0.4167", 1L}}));
  } else {
    event.dvc_pnl_evh_set_event_source_valueset(test::make_valueset({{"0.4166", code}}));
  }
  return proxy()->dvu_pnl_evd_notify(event);
}

// Runs the panel until the clock reads `t`; handlers may move the clock on their own meanwhile.
// After each step it also delivers what fell due without time passing.
void run_until(unsigned long t) {
  while (host::host_clock::instance().now_ms() < t) {
    host::host_clock::instance().advance(1);
    host::pump();
    host::host_clock::instance().run_due();
    host::pump();
  }
}

// The times at which the GUI notify of page `id` was called, in order.
std::vector<unsigned long> notify_times(const std::string& kind, int id) {
  std::vector<unsigned long> out;
  const std::string prefix = kind + " " + std::to_string(id) + " ";
  for (const std::string& s : journal_with(prefix))
    out.push_back(std::stoul(s.substr(s.rfind(' ') + 1)));
  return out;
}

void set_remote_status(long status) {
  ASSERT_EQ(host::host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
                DVC_PNL_PDM_REMOTE_PANEL_STATUS,
                test::leaf(test::make_valueset({{"0.2096", status}})).value()),
            0);
}

// Whether `frame` is the frame of the probe page `id`: its id label and nothing else.
bool shows(const std::array<unsigned char, 1024>& frame, int id) {
  std::array<unsigned char, 1024> want{};
  host::draw_text(want.data(), 0, 0, std::to_string(id));
  return frame == want;
}

int icon_of(probe* p, int part) {
  int icon = -1;
  dvu_pnl_gcp_parts* parts =
      dvu_pnl_gcp_get_gui_parts_by_id(p->dvc_pnl_ceh_get_gui_components(), part);
  if (parts != nullptr)
    parts->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_ICON, icon);
  return icon;
}

class ContentsBaseTest : public ProbeFixture {
 protected:
  // A page whose components report a button with key repeat of `kind`.
  probe* repeating_page(int id, int kind) {
    probe* p = open(id);
    host::gui_of(id, kFunc)->next_notify = DVU_PNL_GCP_NOTIFY{3, 0, kind, 0, 0};
    return p;
  }
};

// ---------------------------------------------------------------- key repeat

// The times of the press and the ticks after it, from the delays between them.
std::vector<unsigned long> times_of(const std::vector<std::pair<int, unsigned long>>& runs) {
  std::vector<unsigned long> out = {0};
  for (const auto& [count, delay] : runs) {
    for (int i = 0; i < count; ++i)
      out.push_back(out.back() + delay);
  }
  return out;
}

TEST_F(ContentsBaseTest, KeyRepeatDelaysByKind) {
  struct row {
    int kind;
    std::vector<std::pair<int, unsigned long>> delays;  // (how many, delay ms)
  };
  const row rows[] = {
      {1, {{1, 750}, {4, 300}, {10, 200}, {15, 125}, {6, 75}}},
      {2, {{5, 300}, {6, 200}}},
      {3, {{5, 300}, {6, 200}}},
      {4, {{1, 750}, {8, 80}}},
  };
  for (const row& r : rows) {
    SCOPED_TRACE("kind " + std::to_string(r.kind));
    SetUp();
    repeating_page(kA, r.kind);
    const std::vector<unsigned long> expected = times_of(r.delays);

    EXPECT_EQ(press(40), 0);
    run_for(expected.back());

    EXPECT_EQ(notify_times("button", kA), expected);
    // Each tick threw the repeat command; the count went up by one per tick.
    EXPECT_EQ(host::devices().panel_commands, std::vector<int>(expected.size() - 1, 75));
    EXPECT_EQ(journal_with("button").back(), "button 100 count " +
                                                 std::to_string(expected.size() - 1) + " at " +
                                                 std::to_string(expected.back()));
  }
}

TEST_F(ContentsBaseTest, KeyRepeatSubtractsTheTimeTheTickTook) {
  repeating_page(kA, 1);
  hooks_by_id()[kA].button = [](probe&, DVU_PNL_GCP_NOTIFY* n) {
    // Slow handling: the clock moves while the tick runs.
    const unsigned long slow[] = {0, 0, 40, 1040, 350};
    if (n->repeat_count >= 2 && n->repeat_count <= 4)
      host::host_clock::instance().advance(slow[n->repeat_count]);
    return 1;
  };
  press(40);
  run_until(3201);
  // 40 ms of handling leave 260 of the 300; of 1040 ms only the 40 within the second count; 350
  // ms leave the minimum of 1.
  const std::vector<unsigned long> expected = {0, 750, 1050, 1350, 2650, 3001, 3201};
  EXPECT_EQ(notify_times("button", kA), expected);
}

TEST_F(ContentsBaseTest, NewKeyEndsTheRepeatEvenWhenRefused) {
  repeating_page(kA, 1);
  press(40);
  run_for(100);
  host::gui_of(kA, kFunc)->next_notify = DVU_PNL_GCP_NOTIFY{1, 0, 0, 0, 0};
  EXPECT_EQ(press(41), 0);
  EXPECT_EQ(host::devices().buzzer, std::vector<int>{2});
  run_for(2000);
  EXPECT_TRUE(host::devices().panel_commands.empty());
  EXPECT_EQ(proxy()->running_timer_count(page(kA)), 0);
}

TEST_F(ContentsBaseTest, RefusalBeepsOnAPressAndNotOnATick) {
  probe* a = open(kA);
  host::gui_of(kA, kFunc)->next_notify = DVU_PNL_GCP_NOTIFY{1, 0, 1, 0, 0};
  EXPECT_EQ(press(40), 0);  // consumed
  EXPECT_EQ(host::devices().buzzer, std::vector<int>{2});
  const int draws = host::gui_of(kA, kFunc)->draws;
  run_for(750 + 300);
  EXPECT_EQ(host::devices().buzzer, std::vector<int>{2});
  EXPECT_EQ(host::devices().panel_commands, (std::vector<int>{75, 75}));
  EXPECT_EQ(host::gui_of(kA, kFunc)->draws, draws + 2);  // each tick still draws
  EXPECT_EQ(proxy()->running_timer_count(a), 1);
}

TEST_F(ContentsBaseTest, RepeatTickOnACoveredPageEndsTheRepeat) {
  for (long source : {1L, 2L}) {
    SCOPED_TRACE("source " + std::to_string(source));
    SetUp();
    probe* a = repeating_page(kA, 1);
    press(40, source);
    open(kB);
    journal().clear();
    run_for(3000);
    EXPECT_EQ(host::devices().panel_commands, std::vector<int>{source == 2 ? 159 : 75});
    EXPECT_TRUE(journal_with("key").empty());
    EXPECT_EQ(proxy()->running_timer_count(a), 0);
  }
}

TEST_F(ContentsBaseTest, RepeatTickThatTheScreenTakesEndsTheRepeat) {
  repeating_page(kA, 4);
  int keys = 0;
  hooks_by_id()[kA].key = [&](probe&, dvc_pnl_evh_panel_event&) { return ++keys == 3 ? 1 : 0; };
  press(40);
  run_for(2000);
  // The press and the first tick go through the components; the screen takes the second tick,
  // and no tick follows it.
  EXPECT_EQ(notify_times("button", kA), (std::vector<unsigned long>{0, 750}));
  EXPECT_EQ(host::devices().panel_commands, (std::vector<int>{75, 75}));
  EXPECT_EQ(journal_with("key").size(), 3u);
}

// ---------------------------------------------------------------- key press

TEST_F(ContentsBaseTest, NotifyTypeChoosesTheHandler) {
  struct row {
    int type;
    const char* handler;  // nullptr: none
  };
  const row rows[] = {{2, "edit"},   {5, "edit"}, {7, "edit"}, {8, "edit"},   {3, "button"},
                      {4, "button"}, {6, "list"}, {9, "list"}, {10, nullptr}, {0, nullptr}};
  probe* a = open(kA);
  (void)a;
  for (const row& r : rows) {
    SCOPED_TRACE("type " + std::to_string(r.type));
    for (int answer : {0, 1}) {
      hooks& h = hooks_by_id()[kA];
      h.edit = h.button = h.list = [answer](probe&, DVU_PNL_GCP_NOTIFY* n) {
        EXPECT_EQ(n->repeat_count, 0);
        return answer;
      };
      host::gui_of(kA, kFunc)->next_notify = DVU_PNL_GCP_NOTIFY{r.type, 7, 0, 0, 0};
      journal().clear();
      const int draws = host::gui_of(kA, kFunc)->draws;

      const int result = press(40);

      const std::vector<std::string> handled = journal_with(r.handler ? r.handler : "none");
      EXPECT_EQ(handled.size(), r.handler ? 1u : 0u);
      EXPECT_EQ(result, r.handler && answer == 1 ? 0 : 1);
      // Anything the components reported is drawn.
      EXPECT_EQ(host::gui_of(kA, kFunc)->draws, draws + (r.type != 0 ? 1 : 0));
    }
  }
}

TEST_F(ContentsBaseTest, KeyTakenByTheScreenSkipsTheComponents) {
  open(kA);
  hooks_by_id()[kA].key = [](probe&, dvc_pnl_evh_panel_event&) { return 1; };
  host::gui_of(kA, kFunc)->next_notify = DVU_PNL_GCP_NOTIFY{3, 0, 1, 0, 0};
  const int draws = host::gui_of(kA, kFunc)->draws;
  EXPECT_EQ(press(40), 0);
  EXPECT_TRUE(host::gui_of(kA, kFunc)->keys_seen.empty());
  EXPECT_EQ(host::gui_of(kA, kFunc)->draws, draws);
  run_for(1000);
  EXPECT_TRUE(host::devices().panel_commands.empty());
}

TEST_F(ContentsBaseTest, KeyReleaseReplacesTheRepeatedKey) {
  repeating_page(kA, 1);
  press(40);
  host::gui_of(kA, kFunc)->next_notify = DVU_PNL_GCP_NOTIFY{0, 0, 0, 0, 0};
  press(87);
  run_for(2000);
  EXPECT_TRUE(host::devices().panel_commands.empty());
  EXPECT_EQ(host::gui_of(kA, kFunc)->keys_seen, (std::vector<int>{40, 87}));
}

// ---------------------------------------------------------------- USB keyboard

TEST_F(ContentsBaseTest, KeyboardKeyNobodyTakesPlaysTheKeyboardRefusal) {
  open(kA);
  EXPECT_EQ(keyboard('x'), 1);
  EXPECT_EQ(host::devices().buzzer, std::vector<int>{12});
  EXPECT_EQ(journal_with("key"), std::vector<std::string>{"key 100 1071"});
}

TEST_F(ContentsBaseTest, KeyboardKeyBecomesItsHardKey) {
  open(kA);
  hooks_by_id()[kA].key = [](probe& self, dvc_pnl_evh_panel_event& event) {
    if (event.dvc_pnl_evh_get_id() != 40)
      return 0;
    self.buzzer(1);  // the keyboard form of the accept sound
    return 1;
  };
  EXPECT_EQ(keyboard(13), 0);
  EXPECT_EQ(journal_with("key"), (std::vector<std::string>{"key 100 1071", "key 100 40"}));
  EXPECT_EQ(host::devices().buzzer, std::vector<int>{11});

  // Outside keyboard handling the ordinary sound plays again.
  press(40);
  EXPECT_EQ(host::devices().buzzer, (std::vector<int>{11, 1}));
}

TEST_F(ContentsBaseTest, KeyboardReleaseCountsAsConsumed) {
  open(kA);
  EXPECT_EQ(keyboard(0, true), 0);
  EXPECT_EQ(journal_with("key"), (std::vector<std::string>{"key 100 1071", "key 100 87"}));
  EXPECT_TRUE(host::devices().buzzer.empty());
}

TEST_F(ContentsBaseTest, KeyboardKeyWithNoPageIsNotConsumed) {
  EXPECT_EQ(keyboard(13), 1);
  EXPECT_TRUE(host::devices().buzzer.empty());
}

// ---------------------------------------------------------------- operation source

TEST_F(ContentsBaseTest, OperationSourceIsStoredByEventClass) {
  struct row {
    int id;
    long source;  // 0: the event carries none
    int stored;
  };
  // 5 stands for what was stored before.
  const row rows[] = {
      {20, 2, 1},   {21, 2, 2},   {40, 2, 2},   {85, 2, 2},   {86, 2, 1},   {87, 2, 2},
      {88, 2, 2},   {89, 2, 1},   {930, 2, 1},  {931, 2, 2},  {932, 2, 2},  {933, 2, 1},
      {1232, 2, 1}, {1233, 2, 2}, {1386, 2, 1}, {1387, 2, 2}, {1388, 2, 2}, {1389, 2, 1},
      {40, 1, 1},   {40, 0, 5},   {100, 0, 1},
  };
  open(kA);
  for (const row& r : rows) {
    set_app_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE, 5);
    press(r.id, r.source);
    EXPECT_EQ(get_app_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE), r.stored)
        << "event " << r.id << " source " << r.source;
  }
}

TEST_F(ContentsBaseTest, OperationSourceReadsZeroWhenNothingIsStored) {
  probe* a = open(kA);
  EXPECT_EQ(a->dvc_pnl_ceh_get_operation_source(), 0);
  set_app_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE, 2);
  EXPECT_EQ(a->dvc_pnl_ceh_get_operation_source(), 2);
}

// ---------------------------------------------------------------- drawing and LCD output

TEST_F(ContentsBaseTest, LoadDrawsAFrameOfThePage) {
  open(kA);
  ASSERT_EQ(host::devices().frames.size(), 1u);
  EXPECT_TRUE(shows(host::devices().frames.back(), kA));
  EXPECT_EQ(dvc_pnl_ceh_contents_base::lcd_update_, 0);
}

TEST_F(ContentsBaseTest, CoveredPageDrawsNothing) {
  probe* a = open(kA);
  open(kB);
  const int draws = host::gui_of(kA, kFunc)->draws;
  const std::size_t frames = host::devices().frames.size();
  a->draw();
  EXPECT_EQ(host::gui_of(kA, kFunc)->draws, draws);
  EXPECT_EQ(host::devices().frames.size(), frames);
}

TEST_F(ContentsBaseTest, PageOfABackgroundFunctionDrawsNothing) {
  probe* copy_page = open(kA, 1);
  auto* psm = dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
  ASSERT_EQ(psm->dvc_pnl_psm_change_function(3), 0);
  open(kB, 3);
  const std::size_t frames = host::devices().frames.size();
  copy_page->draw();
  EXPECT_EQ(host::devices().frames.size(), frames);
  ASSERT_EQ(psm->dvc_pnl_psm_change_function(1), 0);
  page(kB, 3)->draw();  // now the send page is the one in the background
  EXPECT_EQ(host::devices().frames.size(), frames);
  copy_page->draw();
  ASSERT_EQ(host::devices().frames.size(), frames + 1);
  EXPECT_TRUE(shows(host::devices().frames.back(), kA));
}

TEST_F(ContentsBaseTest, PageWaitingToCloseDrawsNothing) {
  open(kA);
  open(kB);
  int draws_before = -1;
  int draws_after = -1;
  hooks_by_id()[kB].key = [&](probe& self, dvc_pnl_evh_panel_event&) {
    self.back_to_parent();
    draws_before = host::gui_of(kB, kFunc)->draws;
    self.draw();
    draws_after = host::gui_of(kB, kFunc)->draws;
    return 1;
  };
  press(40);
  EXPECT_EQ(draws_after, draws_before);
  // The only frame after the key is the parent's, drawn on its activation.
  EXPECT_TRUE(shows(host::devices().frames.back(), kA));
}

TEST_F(ContentsBaseTest, PageWithoutPageScopeDrawsNothing) {
  probe* a = open(kA);
  ASSERT_EQ(host::host_data_manager::instance().dvc_pnl_pdm_remove_by_page_scope(
                PAGE_SCOPE_DATA_LABEL, kFunc, kA),
            0);
  const int draws = host::gui_of(kA, kFunc)->draws;
  a->draw();
  EXPECT_EQ(host::gui_of(kA, kFunc)->draws, draws);
}

TEST_F(ContentsBaseTest, UnchangedImageSendsNothing) {
  probe* a = open(kA);
  host::gui_of(kA, kFunc)->draw_changes = false;
  a->draw();
  EXPECT_EQ(host::devices().frames.size(), 1u);
  EXPECT_EQ(dvc_pnl_ceh_contents_base::lcd_update_, 0);
}

TEST_F(ContentsBaseTest, PausedRedrawKeepsTheFrameForTheNextOutput) {
  probe* a = open(kA);
  dvc_pnl_ceh_event_proxy::redraw_pausing_ = 1;
  host::add_icon_part(kA, kFunc, 30, 7);  // a visible change
  a->draw();
  EXPECT_EQ(host::devices().frames.size(), 1u);
  EXPECT_EQ(dvc_pnl_ceh_contents_base::lcd_update_, 1);

  EXPECT_EQ(a->dvc_pnl_ceh_lcd_out(nullptr), 0);
  ASSERT_EQ(host::devices().frames.size(), 2u);
  EXPECT_NE(host::devices().frames[1], host::devices().frames[0]);
  EXPECT_EQ(dvc_pnl_ceh_contents_base::lcd_update_, 0);
}

TEST_F(ContentsBaseTest, RefusedFrameReportsFailureAndIsNotKept) {
  probe* a = open(kA);
  host::devices().refuse_lcd = true;
  dvc_pnl_ceh_contents_base::lcd_update_ = 1;
  EXPECT_EQ(a->dvc_pnl_ceh_lcd_out(nullptr), -1);
  EXPECT_EQ(dvc_pnl_ceh_contents_base::lcd_update_, 0);
  // Nothing to send is no failure.
  EXPECT_EQ(a->dvc_pnl_ceh_lcd_out(nullptr), 0);
}

TEST_F(ContentsBaseTest, CursorBlinksEightHundredMillisecondsAfterAFrame) {
  probe* a = open(kA);
  host::gui_script* gui = host::gui_of(kA, kFunc);
  gui->has_cursor = true;
  gui->draw_changes = true;             // every draw sends a frame
  gui->cursor_rect = {10, 20, 30, 40};  // x, y, width, height
  a->draw();
  run_for(799);
  EXPECT_TRUE(host::devices().blinks.empty());
  run_for(1);
  ASSERT_EQ(host::devices().blinks.size(), 1u);
  const host::blink_call& blink = host::devices().blinks[0];
  EXPECT_EQ(blink.x, 10);
  EXPECT_EQ(blink.width, 30);
  EXPECT_EQ(blink.y, 20);
  EXPECT_EQ(blink.height, 40);
  EXPECT_EQ(blink.mode, 9);
  EXPECT_EQ(dvc_pnl_ceh_contents_base::cursor_blink_, 1);
  // The blink timer does not repeat.
  run_for(2000);
  EXPECT_EQ(host::devices().blinks.size(), 1u);

  // The next frame ends the blink and arms it anew.
  a->draw();
  EXPECT_EQ(host::devices().blink_ends, 1);
  EXPECT_EQ(dvc_pnl_ceh_contents_base::cursor_blink_, 2);
  run_for(800);
  EXPECT_EQ(host::devices().blinks.size(), 2u);
}

TEST_F(ContentsBaseTest, FrameBeforeTheBlinkPostponesIt) {
  probe* a = open(kA);
  host::gui_of(kA, kFunc)->has_cursor = true;
  host::gui_of(kA, kFunc)->draw_changes = true;  // every draw sends a frame
  a->draw();
  run_for(500);
  a->draw();
  EXPECT_EQ(host::devices().blink_ends, 0);  // nothing was blinking yet
  run_for(799);
  EXPECT_TRUE(host::devices().blinks.empty());
  run_for(1);
  EXPECT_EQ(host::devices().blinks.size(), 1u);
}

TEST_F(ContentsBaseTest, LockScreenOnDisplayTakesFramesAndStopsTheBlink) {
  probe* a = open(kA);
  host::gui_of(kA, kFunc)->has_cursor = true;
  host::gui_of(kA, kFunc)->draw_changes = true;  // every draw sends a frame
  set_app_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST, 2);
  set_app_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY, 1);
  a->draw();
  EXPECT_EQ(host::devices().frames.size(), 1u);  // only the frame of the load
  ASSERT_EQ(host::devices().lock_screen_frames.size(), 1u);
  EXPECT_EQ(host::devices().lock_screen_frames[0].source, 0);
  EXPECT_EQ(host::devices().lock_screen_frames[0].exist, 2);
  run_for(2000);
  EXPECT_TRUE(host::devices().blinks.empty());

  // A lock screen that exists but is not on display leaves the ordinary path.
  set_app_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY, 0);
  a->draw();
  EXPECT_EQ(host::devices().frames.size(), 2u);
  run_for(800);
  EXPECT_EQ(host::devices().blinks.size(), 1u);
}

TEST_F(ContentsBaseTest, LockScreenDrawsForTheTypingSide) {
  open(kA);
  set_app_int(DVC_PNL_PDM_REMOTE_PANEL_PASSWORD_OPE_SRC, 2);
  set_app_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST, 1);
  probe* lock = open(kLockScreen);
  ASSERT_NE(lock, nullptr);
  host::gui_of(kLockScreen, kFunc)->has_cursor = true;
  host::gui_of(kLockScreen, kFunc)->draw_changes = true;  // every draw sends a frame
  lock->dvc_pnl_ceh_draw_lock_screen(nullptr);
  ASSERT_EQ(host::devices().lock_screen_frames.size(), 1u);
  EXPECT_EQ(host::devices().lock_screen_frames[0].source, 2);
  EXPECT_EQ(host::devices().lock_screen_frames[0].exist, 0);
  EXPECT_TRUE(shows(host::devices().lock_screen_frames[0].image, kLockScreen));
  // The lock exists: no blink.
  run_for(1000);
  EXPECT_TRUE(host::devices().blinks.empty());

  // Any other page does not draw as the lock screen.
  page(kA)->dvc_pnl_ceh_draw_lock_screen(nullptr);
  EXPECT_EQ(host::devices().lock_screen_frames.size(), 1u);

  // With the lock gone the cursor of the lock image blinks again.
  set_app_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST, 0);
  lock->dvc_pnl_ceh_draw_lock_screen(nullptr);
  EXPECT_EQ(host::devices().lock_screen_frames.size(), 2u);
  run_for(800);
  EXPECT_EQ(host::devices().blinks.size(), 1u);
}

TEST_F(ContentsBaseTest, LockScreenWithoutTypingSideSendsNothing) {
  probe* lock = open(kLockScreen);
  host::gui_of(kLockScreen, kFunc)->draw_changes = true;
  host::trace_sink::instance().clear();
  lock->dvc_pnl_ceh_draw_lock_screen(nullptr);
  EXPECT_TRUE(host::devices().lock_screen_frames.empty());
  EXPECT_TRUE(traced("get int from pdm error ret_code = 3"));
}

// ---------------------------------------------------------------- going back

TEST_F(ContentsBaseTest, BackToContentsClosesFromJustAboveTheTarget) {
  open(kA);
  open(kB);
  open(kC);
  open(kD);
  int answer = -2;
  hooks_by_id()[kD].key = [&](probe& self, dvc_pnl_evh_panel_event&) {
    answer = self.dvc_pnl_ceh_back_to_contents(kA);
    return 1;
  };
  const std::size_t log_before = host::page_stack_log().size();
  press(40);
  EXPECT_EQ(answer, 0);
  EXPECT_EQ(log_since(log_before),
            (std::vector<std::string>{"close 0 1 2 101", "close 0 1 2 102", "close 0 1 2 103"}));
  EXPECT_EQ(host::pages_of(kFunc).size(), 1u);
  EXPECT_EQ(journal_with("activate"), std::vector<std::string>{"activate 100"});
}

TEST_F(ContentsBaseTest, BackToContentsNotBelowClosesNothing) {
  open(kA);
  open(kB);
  open(kC);
  const std::size_t log_before = host::page_stack_log().size();
  EXPECT_EQ(page(kC)->dvc_pnl_ceh_back_to_contents(kD), -1);
  EXPECT_EQ(page(kB)->dvc_pnl_ceh_back_to_contents(kC), -1);
  EXPECT_EQ(host::page_stack_log().size(), log_before);
}

TEST_F(ContentsBaseTest, RelativesOfAPage) {
  probe* a = open(kA);
  probe* b = open(kB);
  probe* c = open(kC);
  EXPECT_EQ(b->dvc_pnl_ceh_get_parent_contents(), a);
  EXPECT_EQ(b->dvc_pnl_ceh_get_child_contents(), c);
  EXPECT_EQ(a->dvc_pnl_ceh_get_active_contents(), c);
  EXPECT_EQ(c->dvc_pnl_ceh_search_contents(kA), a);
  EXPECT_EQ(a->dvc_pnl_ceh_get_parent_contents(), nullptr);
  EXPECT_EQ(c->dvc_pnl_ceh_get_activate(), 1);
  EXPECT_EQ(b->dvc_pnl_ceh_get_activate(), 0);
  EXPECT_EQ(b->dvc_pnl_ceh_get_group_id(-1), 0);
  EXPECT_EQ(b->dvc_pnl_ceh_get_state_id(-1), 2);
  EXPECT_EQ(b->dvc_pnl_ceh_get_group_id(1761), 7);
  EXPECT_EQ(b->dvc_pnl_ceh_get_state_id(1761), 13);
}

// ---------------------------------------------------------------- handler base

TEST_F(ContentsBaseTest, FunctionIdsByFunction) {
  struct row {
    int function;
    int original;
    int view;
    int settings;
  };
  const row rows[] = {
      {1, 1, 1, 1}, {3, 3, 3, 3}, {4, 4, 4, 4},    {5, 5, 5, 1},   {6, 6, 6, 5},   {7, 7, 7, 6},
      {8, 8, 8, 1}, {9, 9, 9, 9}, {10, 10, 10, 1}, {11, 11, 1, 1}, {24, 24, 1, 1}, {2, 2, 2, 1},
  };
  for (const row& r : rows) {
    SCOPED_TRACE("function " + std::to_string(r.function));
    ASSERT_EQ(
        dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(
            r.function),
        0);
    probe* p = open(kA, r.function);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->dvc_pnl_ceh_get_func_id(), r.function);
    EXPECT_EQ(p->get_original_function_id(), r.original);
    EXPECT_EQ(p->get_view_function_id(), r.view);
    EXPECT_EQ(p->get_function_id(), r.settings);
  }
}

TEST_F(ContentsBaseTest, RemotePanelIconsFollowTheConnection) {
  probe* a = open(kA);
  host::add_icon_part(kA, kFunc, DVC_PNL_CEH_PART_FUNCTION_ICON, 50);
  host::add_icon_part(kA, kFunc, DVC_PNL_CEH_PART_REMOTE_ICON, 0);

  set_remote_status(2);
  a->draw();
  EXPECT_EQ(icon_of(a, DVC_PNL_CEH_PART_FUNCTION_ICON), 335);
  EXPECT_EQ(icon_of(a, DVC_PNL_CEH_PART_REMOTE_ICON), 336);
  // Drawn again while connected: the function icon is still remembered.
  a->draw();
  set_remote_status(1);
  a->draw();
  EXPECT_EQ(icon_of(a, DVC_PNL_CEH_PART_FUNCTION_ICON), 50);
  EXPECT_EQ(icon_of(a, DVC_PNL_CEH_PART_REMOTE_ICON), 102);
}

TEST_F(ContentsBaseTest, LockScreenRedrawSwapsIconsIntoTheLockImage) {
  set_app_int(DVC_PNL_PDM_REMOTE_PANEL_PASSWORD_OPE_SRC, 1);
  probe* lock = open(kLockScreen);
  ASSERT_NE(lock, nullptr);
  host::add_icon_part(kLockScreen, kFunc, DVC_PNL_CEH_PART_FUNCTION_ICON, 50);
  host::add_icon_part(kLockScreen, kFunc, DVC_PNL_CEH_PART_REMOTE_ICON, 0);
  host::gui_of(kLockScreen, kFunc)->draw_changes = true;
  set_remote_status(2);
  host::devices().lock_screen_frames.clear();
  lock->draw_lock_screen();
  EXPECT_EQ(icon_of(lock, DVC_PNL_CEH_PART_FUNCTION_ICON), 335);
  EXPECT_EQ(icon_of(lock, DVC_PNL_CEH_PART_REMOTE_ICON), 336);
  ASSERT_EQ(host::devices().lock_screen_frames.size(), 1u);
  EXPECT_EQ(host::devices().lock_screen_frames[0].source, 1);

  // Any other page changes its icons but sends no lock image.
  probe* a = open(kA);
  host::add_icon_part(kA, kFunc, DVC_PNL_CEH_PART_FUNCTION_ICON, 60);
  host::add_icon_part(kA, kFunc, DVC_PNL_CEH_PART_REMOTE_ICON, 0);
  a->draw_lock_screen();
  EXPECT_EQ(icon_of(a, DVC_PNL_CEH_PART_FUNCTION_ICON), 335);
  EXPECT_EQ(host::devices().lock_screen_frames.size(), 1u);
}

TEST_F(ContentsBaseTest, RemotePanelIconsNeedBothParts) {
  probe* a = open(kA);
  host::add_icon_part(kA, kFunc, DVC_PNL_CEH_PART_FUNCTION_ICON, 50);
  set_remote_status(3);
  a->draw();
  EXPECT_EQ(icon_of(a, DVC_PNL_CEH_PART_FUNCTION_ICON), 50);
  EXPECT_EQ(host::devices().frames.size(), 2u);
}

TEST_F(ContentsBaseTest, RemoteConnectedByStatus) {
  long status = -1;
  EXPECT_EQ(is_remote_connected(status), 0);  // nothing stored
  EXPECT_EQ(status, 0);
  const std::pair<long, int> rows[] = {{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 0}};
  for (const auto& [stored, connected] : rows) {
    set_remote_status(stored);
    EXPECT_EQ(is_remote_connected(status), connected) << stored;
    EXPECT_EQ(status, stored);
    EXPECT_EQ(is_remote_connected(), connected) << stored;
  }
}

TEST_F(ContentsBaseTest, ChildOpensUnderTheShownFunctionAndRemembersItsOpener) {
  probe* a = open(kA);
  EXPECT_EQ(a->open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kB)), 0);
  EXPECT_EQ(host::page_stack_log().back(), "open 0 1 2 101 2");
  EXPECT_EQ(probe::opener_of(kB), kA);

  dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(3);
  EXPECT_EQ(a->open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kC)), 0);
  // Placing looks at every window: the top group 0 window is still the copy page kB.
  EXPECT_EQ(host::page_stack_log().back(), "open 0 3 2 102 3");

  const std::size_t log_size = host::page_stack_log().size();
  EXPECT_EQ(a->open_child_contents(CID_NONE), 0);
  EXPECT_EQ(host::page_stack_log().size(), log_size);

  // A page that goes takes its own opener record with it.
  dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(1);
  page(kB)->back_to_parent();
  EXPECT_EQ(probe::opener_of(kB), -1);
}

TEST_F(ContentsBaseTest, OpenAfterCloseShowsNoFrameOfThePageBelow) {
  open(kA);
  open(kB);
  hooks_by_id()[kB].key = [](probe& self, dvc_pnl_evh_panel_event&) {
    self.set_open_after_close(kC);
    self.back_to_parent();
    return 1;
  };
  const std::size_t frames = host::devices().frames.size();
  const std::size_t log_before = host::page_stack_log().size();
  press(40);
  EXPECT_EQ(log_since(log_before),
            (std::vector<std::string>{"close 0 1 2 101", "open 0 1 2 102 2"}));
  EXPECT_EQ(dvc_pnl_ceh_event_proxy::redraw_pausing_, 0);
  ASSERT_EQ(host::devices().frames.size(), frames + 1);
  EXPECT_TRUE(shows(host::devices().frames.back(), kC));
  EXPECT_EQ(probe::opener_of(kC), kB);
  EXPECT_TRUE(journal_with("activate").empty());
}

TEST_F(ContentsBaseTest, ComingBackToTheTopActivatesThePage) {
  open(kA);
  open(kB);
  journal().clear();
  page(kB)->back_to_parent();
  EXPECT_EQ(journal(), (std::vector<std::string>{"close 101", "destroy 101", "activate 100"}));
}

TEST_F(ContentsBaseTest, BuzzerHelpers) {
  probe* a = open(kA);
  EXPECT_EQ(a->buzzer(1), 0);
  EXPECT_EQ(a->dvc_pnl_ceh_buzzer(7), 0);
  EXPECT_EQ(host::devices().buzzer, (std::vector<int>{1, 7}));
  host::devices().refuse_buzzer = true;
  EXPECT_EQ(a->dvc_pnl_ceh_buzzer(1), -1);
  EXPECT_EQ(a->buzzer(2), 1);
  EXPECT_TRUE(traced("dvu_pnl_dec_buzzer_controller::dvu_pnl_dec_set_buzzer_control is FALSE"));
}

TEST_F(ContentsBaseTest, LedHelpers) {
  probe* a = open(kA);
  EXPECT_EQ(a->dvc_pnl_ceh_get_led(8), 0);
  EXPECT_EQ(a->dvc_pnl_ceh_set_led(3, 8), 0);
  EXPECT_EQ(a->dvc_pnl_ceh_set_led(1, 4), 0);
  ASSERT_EQ(host::devices().led_calls.size(), 2u);
  EXPECT_EQ(host::devices().led_calls[0].id, 8);
  EXPECT_EQ(host::devices().led_calls[0].status, 3);
  EXPECT_EQ(a->dvc_pnl_ceh_get_led(8), 3);
  EXPECT_EQ(a->dvc_pnl_ceh_get_led(4), 1);
  host::devices().refuse_led = true;
  EXPECT_EQ(a->dvc_pnl_ceh_set_led(0, 8), -1);
}

TEST_F(ContentsBaseTest, EventFactors) {
  probe* a = open(kA);
  const char* keys[] = {"/application/state_box_detail", "/application/state_box_regist",
                        "/application/state_address", "/application/state_stop"};
  for (int factor = 0; factor < 4; ++factor) {
    SCOPED_TRACE(factor);
    EXPECT_EQ(a->dvc_pnl_ceh_get_enable_event_factor(factor), 0);
    a->dvc_pnl_ceh_set_enable_event_factor(factor, 7);
    EXPECT_EQ(get_app_int(keys[factor]), 7);
    EXPECT_EQ(a->dvc_pnl_ceh_get_enable_event_factor(factor), 1);
    a->dvc_pnl_ceh_set_enable_event_factor(factor, 0);
    EXPECT_EQ(a->dvc_pnl_ceh_get_enable_event_factor(factor), 0);
  }
  const std::size_t entries = host::host_data_manager::instance().application_entry_count();
  a->dvc_pnl_ceh_set_enable_event_factor(4, 1);
  EXPECT_EQ(host::host_data_manager::instance().application_entry_count(), entries);
  EXPECT_EQ(a->dvc_pnl_ceh_get_enable_event_factor(4), 0);
}

TEST_F(ContentsBaseTest, ValidCheckUsesTheInputValidator) {
  probe* a = open(kA);
  std::string digits = "0123";
  std::string letters = "12a";
  EXPECT_EQ(a->dvc_pnl_ceh_valid_check(digits, 12), 0);
  EXPECT_EQ(a->dvc_pnl_ceh_valid_check(letters, 12), -1);
}

}  // namespace
}  // namespace orvanta
