// Event proxy: the two entries, deferred closes, page placing, relatives, timers and lock screen
// keys.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "contents_probe.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"

namespace orvanta {
namespace {

using namespace test;

int id_of(dvc_pnl_ceh_contents_interface* contents) {
  auto* p = dynamic_cast<probe*>(contents);
  return p == nullptr ? -1 : p->get_contents_id();
}

int remote_icon_of(int id) {
  int icon = 0;
  dvu_pnl_gcp_get_gui_parts_by_id(page(id)->dvc_pnl_ceh_get_gui_components(),
                                  DVC_PNL_CEH_PART_REMOTE_ICON)
      ->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_ICON, icon);
  return icon;
}

// Delivers what is due now, 0 ms timers included, until nothing is left.
void settle() {
  for (int i = 0; i < 1000; ++i) {
    host::host_clock::instance().run_due();
    if (host::pump() == 0)
      return;
  }
  ADD_FAILURE() << "the panel did not settle";
}

class EventProxyTest : public ProbeFixture {};

// ---------------------------------------------------------------- set-up of the proxy

TEST_F(EventProxyTest, OneInstance) {
  EXPECT_EQ(dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance(), proxy());
}

TEST_F(EventProxyTest, InitializeSubscribesTheEventTableInOrder) {
  const std::vector<int> expected = {
      690, 880, 123, 222, 117, 124, 126,  224,  118,  149,  148, 1039, 584,  687,  132,  120, 247,
      219, 113, 264, 263, 262, 688, 122,  249,  221,  115,  190, 886,  1044, 843,  844,  213, 16,
      90,  92,  730, 184, 186, 187, 183,  185,  988,  271,  152, 110,  854,  626,  1029, 121, 248,
      220, 114, 159, 158, 583, 19,  1213, 1214, 1071, 1068, 268, 1318, 1319, 1501, 1496};
  EXPECT_EQ(host::subscriptions_of(proxy()), expected);
  for (int id : expected)
    EXPECT_EQ(host::subscription_count(id, proxy()), 1) << id;
  // Keys come through the GUI entry only.
  EXPECT_EQ(host::subscription_count(40, proxy()), 0);
}

// ---------------------------------------------------------------- panel events

TEST_F(EventProxyTest, PanelEventWalksFromTheTopUntilOneAnswers) {
  open(kA);
  open(kB);
  open(kC);
  hooks_by_id()[kB].panel = [](probe&, dvc_pnl_evh_panel_event&) { return 1; };
  journal().clear();

  EXPECT_EQ(proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(880)), 0);
  EXPECT_EQ(journal_with("panel"), (std::vector<std::string>{"panel 102 880", "panel 101 880"}));
}

TEST_F(EventProxyTest, PanelEventNobodyConsumesAnswersOne) {
  open(kA);
  open(kB);
  journal().clear();

  EXPECT_EQ(proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(880)), 1);
  EXPECT_EQ(journal_with("panel"), (std::vector<std::string>{"panel 101 880", "panel 100 880"}));
}

TEST_F(EventProxyTest, PanelEventAnswerOtherThanOneEndsTheWalkButCountsAsNotConsumed) {
  open(kA);
  open(kB);
  hooks_by_id()[kB].panel = [](probe&, dvc_pnl_evh_panel_event&) { return 2; };
  journal().clear();

  EXPECT_EQ(proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(880)), 1);
  EXPECT_EQ(journal_with("panel"), (std::vector<std::string>{"panel 101 880"}));
}

TEST_F(EventProxyTest, PanelEventWithNoPagesAnswersOne) {
  EXPECT_EQ(proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(880)), 1);
}

TEST_F(EventProxyTest, SubscribedEventsArriveThroughTheDispatcher) {
  open(kA);
  journal().clear();
  host::deliver(dvc_pnl_evh_panel_event(249));
  EXPECT_EQ(journal_with("panel"), (std::vector<std::string>{"panel 100 249"}));
}

TEST_F(EventProxyTest, RemoteConnectionEventsRedrawTheTopPageFirst) {
  for (int event_id : {1496, 1501}) {
    SCOPED_TRACE(event_id);
    host::reset();
    proxy()->reset_for_tests();
    proxy()->dvc_pnl_ceh_event_initialize();
    open(kA);
    open(kB);
    for (int id : {kA, kB}) {
      host::add_icon_part(id, kFunc, DVC_PNL_CEH_PART_FUNCTION_ICON, 50);
      host::add_icon_part(id, kFunc, DVC_PNL_CEH_PART_REMOTE_ICON, 102);
    }
    ASSERT_EQ(host::host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
                  DVC_PNL_PDM_REMOTE_PANEL_STATUS,
                  test::leaf(test::make_valueset({{"0.2096", 2L}})).value()),
              0);
    const int top_draws = host::gui_of(kB, kFunc)->draws;
    const int below_draws = host::gui_of(kA, kFunc)->draws;
    int draws_seen_by_handler = -1;
    hooks_by_id()[kB].panel = [&](probe&, dvc_pnl_evh_panel_event&) {
      draws_seen_by_handler = host::gui_of(kB, kFunc)->draws;
      return 0;
    };

    proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(event_id));

    EXPECT_EQ(draws_seen_by_handler, top_draws + 1);
    EXPECT_EQ(host::gui_of(kA, kFunc)->draws, below_draws);
    // Only the top page: the page below keeps its icons until it draws itself.
    EXPECT_EQ(remote_icon_of(kB), 336);
    EXPECT_EQ(remote_icon_of(kA), 102);
  }
}

TEST_F(EventProxyTest, OtherPanelEventsDoNotRedraw) {
  open(kA);
  const int draws = host::gui_of(kA, kFunc)->draws;
  proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(880));
  EXPECT_EQ(host::gui_of(kA, kFunc)->draws, draws);
}

TEST_F(EventProxyTest, PageClosedDuringAWalkStillHearsTheEventAndGoesAtTheEnd) {
  open(kA);
  open(kB);
  open(kC);
  hooks_by_id()[kC].panel = [](probe& self, dvc_pnl_evh_panel_event&) {
    self.close_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kB));
    return 0;
  };
  journal().clear();
  const std::size_t log_before = host::page_stack_log().size();

  EXPECT_EQ(proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(880)), 1);

  EXPECT_EQ(journal(), (std::vector<std::string>{"panel 102 880", "panel 101 880", "panel 100 880",
                                                 "close 101", "destroy 101"}));
  EXPECT_EQ(log_since(log_before), (std::vector<std::string>{"close 0 1 2 101"}));
}

// ---------------------------------------------------------------- GUI events

TEST_F(EventProxyTest, KeyGoesToTheTopPageOnly) {
  open(kA);
  open(kB);
  hooks_by_id()[kB].key = [](probe&, dvc_pnl_evh_panel_event&) { return 1; };
  journal().clear();

  EXPECT_EQ(press(40), 0);
  EXPECT_EQ(journal_with("key"), (std::vector<std::string>{"key 101 40"}));
}

TEST_F(EventProxyTest, KeyNobodyConsumesAnswersOne) {
  open(kA);
  EXPECT_EQ(press(40), 1);
}

TEST_F(EventProxyTest, KeyWithNoPagesAnswersOne) {
  EXPECT_EQ(press(40), 1);
}

TEST_F(EventProxyTest, ScreenClosingItselfDuringAKeyLivesToTheEndOfTheDispatch) {
  open(kA);
  open(kB);
  host::gui_of(kB, kFunc)->next_notify = DVU_PNL_GCP_NOTIFY{3, 0, 0, 0, 0};
  std::size_t log_in_handler = 0;
  bool open_in_button_handler = false;
  hooks_by_id()[kB].key = [&](probe& self, dvc_pnl_evh_panel_event&) {
    self.back_to_parent();
    log_in_handler = host::page_stack_log().size();
    return 0;  // the components go on to report a button
  };
  hooks_by_id()[kB].button = [&](probe&, DVU_PNL_GCP_NOTIFY*) {
    open_in_button_handler = page(kB) != nullptr;
    return 1;
  };
  journal().clear();
  const std::size_t frames_before = host::devices().frames.size();

  EXPECT_EQ(press(40), 0);

  EXPECT_TRUE(open_in_button_handler);
  EXPECT_EQ(page(kB), nullptr);
  ASSERT_EQ(host::page_stack_log().size(), log_in_handler + 1);
  EXPECT_EQ(host::page_stack_log().back(), "close 0 1 2 101");
  EXPECT_EQ(journal(), (std::vector<std::string>{"key 101 40", "button 101 count 0 at 0",
                                                 "close 101", "destroy 101", "activate 100"}));
  // The closing page's own draw after the key sent nothing: the only frame is the parent's.
  ASSERT_EQ(host::devices().frames.size(), frames_before + 1);
}

TEST_F(EventProxyTest, CloseOutsideADispatchHappensAtOnce) {
  open(kA);
  open(kB);
  journal().clear();
  EXPECT_EQ(page(kB)->back_to_parent(), 0);
  EXPECT_EQ(page(kB), nullptr);
  EXPECT_EQ(journal(), (std::vector<std::string>{"close 101", "destroy 101", "activate 100"}));
}

TEST_F(EventProxyTest, CloseOfAPageNotOpenIsRefused) {
  open(kA);
  CONTENTS_OPEN_INFO info{0, kFunc, 2, kC};
  EXPECT_EQ(proxy()->dvc_pnl_ceh_close_contents(info), -1);
  EXPECT_TRUE(traced(
      "dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_close_contents dvu_pnl_lst_check error id:102 func:1"));
  EXPECT_EQ(host::page_stack_log().back(), "open 0 1 2 100 1");
}

TEST_F(EventProxyTest, RemoveContentsInPageStackClosesByIdAndFunction) {
  open(kA);
  open(805);  // group 5, state 11
  open(kB);
  EXPECT_EQ(proxy()->dvc_pnl_ceh_remove_contents_in_page_stack(805, kFunc), 0);
  EXPECT_EQ(host::page_stack_log().back(), "close 5 1 11 805");
  EXPECT_EQ(page(805), nullptr);

  EXPECT_EQ(proxy()->dvc_pnl_ceh_remove_contents_in_page_stack(805, kFunc), -1);
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_remove_contents_in_page_stack "
             "dvc_pnl_psm_get_ext_page_traits error id:805 func:1 ret_code = 1"));
}

TEST_F(EventProxyTest, DeferredCloseCancelsThePageTimersAtOnce) {
  open(kA);
  open(kB);
  page(kA)->set_timer(5, 100);
  hooks_by_id()[kB].key = [](probe& self, dvc_pnl_evh_panel_event&) {
    self.close_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kA));
    EXPECT_EQ(proxy()->running_timer_count(page(kA)), 0);
    EXPECT_EQ(proxy()->check_delete_list(kA), 1);
    return 1;
  };
  press(40);
  EXPECT_EQ(proxy()->check_delete_list(kA), 0);
  EXPECT_EQ(page(kA), nullptr);
  run_for(300);
  EXPECT_TRUE(journal_with("timer").empty());
}

// ---------------------------------------------------------------- remote-operation lock screen

struct lock_key_case {
  int exist;
  int display;
  long source;
  bool reaches_top;
};

TEST_F(EventProxyTest, LockScreenTakesKeysOfTheLockedOutSide) {
  const lock_key_case cases[] = {
      {2, 1, 2, false}, {2, 1, 1, true}, {1, 1, 1, false}, {1, 1, 2, true},
      {2, 0, 2, true},  {0, 1, 2, true}, {1, 0, 1, true},
  };
  open(kA);
  hooks_by_id()[kA].key = [](probe&, dvc_pnl_evh_panel_event&) { return 1; };
  for (const lock_key_case& c : cases) {
    SCOPED_TRACE("exist " + std::to_string(c.exist) + " display " + std::to_string(c.display) +
                 " source " + std::to_string(c.source));
    set_app_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST, c.exist);
    set_app_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY, c.display);
    set_app_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE, 9);
    journal().clear();
    host::trace_sink::instance().clear();

    const int answer = press(40, c.source);

    EXPECT_EQ(journal_with("key").size(), c.reaches_top ? 1u : 0u);
    EXPECT_EQ(answer, c.reaches_top ? 0 : 1);
    // The source is recorded for the top page whoever gets the key.
    EXPECT_EQ(get_app_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE), c.source);
    // With no lock screen contents present, a key for it is dropped.
    EXPECT_EQ(traced("lock screen contents is NULL: key 40 dropped"), !c.reaches_top);
  }
}

TEST_F(EventProxyTest, NoLockScreenInstanceYet) {
  EXPECT_EQ(proxy()->dvc_pnl_ceh_get_lock_screen_instance(), nullptr);
  EXPECT_EQ(proxy()->dvc_pnl_ceh_open_rop_lock_screen(2202), -1);
  EXPECT_EQ(proxy()->dvc_pnl_ceh_get_lock_screen_instance(), nullptr);
}

// ---------------------------------------------------------------- placing pages

TEST_F(EventProxyTest, PagesArePlacedAboveTheHighestWindowOfTheirGroup) {
  open(kA);
  open(kB);
  open(805);  // group 5: the first page of that group
  open(kC);
  open(806);
  const std::vector<std::string> expected = {
      "open 0 1 2 100 1", "open 0 1 2 101 2",  "open 5 1 11 805 1",
      "open 0 1 2 102 3", "open 5 1 11 806 2",
  };
  EXPECT_EQ(host::page_stack_log(), expected);
}

TEST_F(EventProxyTest, RemotePanelInformationPageHasAFixedOrder) {
  open(kA);
  open(1761);
  EXPECT_EQ(host::page_stack_log().back(), "open 7 1 13 1761 120051");
}

TEST_F(EventProxyTest, WhileARemotePageIsOpenPagesLandInTheRemoteLayer) {
  open(kA);
  open(1761);
  open(kB);
  EXPECT_EQ(host::page_stack_log().back(), "open 6 1 12 101 120052");
  // The alert layer keeps its own placing.
  open(1765);
  EXPECT_EQ(host::page_stack_log().back().rfind("open 0 1 1 1765 ", 0), 0u)
      << host::page_stack_log().back();
}

TEST_F(EventProxyTest, RemotePlacingGoesAboveTheRemoteLayer) {
  open(kA);
  page(kA)->open_child_forced_remote(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kB));
  // No remote window: placed as usual.
  EXPECT_EQ(host::page_stack_log().back(), "open 0 1 2 101 2");

  open(1762);  // group 7, state 13
  const unsigned order = host::pages_of(kFunc).back().order;
  page(1762)->open_child_forced_remote(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kC));
  EXPECT_EQ(host::page_stack_log().back(), "open 6 1 12 102 " + std::to_string(order + 1));
}

TEST_F(EventProxyTest, RemotePageStateKeepsGroupsAndStatesOfTheRemoteLayer) {
  open(kA);
  open(1761);
  struct row {
    CONTENTS_OPEN_INFO in;
    int answer;
    CONTENTS_OPEN_INFO out;
  };
  const row rows[] = {
      {{0, kFunc, 2, kB}, 1, {6, kFunc, 12, kB}},
      {{7, kFunc, 13, kB}, 1, {7, kFunc, 13, kB}},
      {{6, kFunc, 12, kB}, 1, {6, kFunc, 12, kB}},
      {{0, kFunc, 1, kB}, 0, {0, kFunc, 1, kB}},  // the alert layer
      {{0, 3, 2, kB}, 0, {0, 3, 2, kB}},          // another function has no remote page
      {{0, 3, 2, 1761}, 1, {0, 3, 2, 1761}},      // fixed order, record unchanged
  };
  for (const row& r : rows) {
    CONTENTS_OPEN_INFO info = r.in;
    unsigned order = 0;
    EXPECT_EQ(proxy()->dvc_pnl_ceh_is_remote_panel_page_state(info, order), r.answer);
    EXPECT_EQ(info.group, r.out.group);
    EXPECT_EQ(info.state, r.out.state);
    if (r.answer == 1) {
      EXPECT_EQ(order, 120051u - (r.in.contents_id == 1761 ? 1u : 0u));
    }
  }
}

// ---------------------------------------------------------------- relatives

TEST_F(EventProxyTest, GetContentsModes) {
  EXPECT_EQ(proxy()->dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS_PARENT, kA, kFunc), nullptr);
  EXPECT_EQ(proxy()->dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS_ACTIVE, kA, kFunc), nullptr);
  open(kA);
  open(kB);
  open(kC);
  struct row {
    int mode;
    int id;
    int func;
    int expected;  // -1: none
  };
  const row rows[] = {
      {0, kB, kFunc, kA}, {0, kA, kFunc, -1}, {0, kD, kFunc, kC}, {0, kB, 3, kC},
      {1, kB, kFunc, kC}, {1, kC, kFunc, -1}, {1, kD, kFunc, -1}, {2, kD, 7, kC},
      {3, kB, kFunc, kB}, {3, kD, kFunc, -1}, {3, kB, 3, -1},     {4, kB, kFunc, -1},
  };
  for (const row& r : rows) {
    EXPECT_EQ(id_of(proxy()->dvc_pnl_ceh_get_contents(static_cast<DVC_PNL_CEH_GET_CONTENTS>(r.mode),
                                                      r.id, r.func)),
              r.expected)
        << "mode " << r.mode << " id " << r.id << " func " << r.func;
  }
}

TEST_F(EventProxyTest, SurviveScreenNeedsThePageScopeLabel) {
  probe* a = open(kA);
  EXPECT_EQ(proxy()->is_survive_screen(a), 1);
  ASSERT_EQ(host::host_data_manager::instance().dvc_pnl_pdm_remove_by_page_scope(
                PAGE_SCOPE_DATA_LABEL, kFunc, kA),
            0);
  EXPECT_EQ(proxy()->is_survive_screen(a), 0);
  EXPECT_EQ(proxy()->is_survive_screen(nullptr), 6);
}

// ---------------------------------------------------------------- timers

TEST_F(EventProxyTest, ScreenTimersArePeriodicUntilKilled) {
  probe* a = open(kA);
  int fired = 0;
  hooks_by_id()[kA].timer = [&](probe& self, int id) {
    if (++fired == 3)
      self.kill_timer(id);
  };
  a->set_timer(5, 100);
  run_for(1000);
  EXPECT_EQ(
      journal_with("timer"),
      (std::vector<std::string>{"timer 100 5 at 100", "timer 100 5 at 200", "timer 100 5 at 300"}));
  EXPECT_EQ(proxy()->running_timer_count(a), 0);
}

TEST_F(EventProxyTest, TimerRestartedInItsOwnHandlerRunsWithTheNewPeriod) {
  probe* a = open(kA);
  hooks_by_id()[kA].timer = [](probe& self, int id) {
    if (emwOSWGetSysTimer() == 100)
      self.set_timer(id, 300);
  };
  a->set_timer(5, 100);
  run_for(1000);
  EXPECT_EQ(journal_with("timer"),
            (std::vector<std::string>{"timer 100 5 at 100", "timer 100 5 at 400",
                                      "timer 100 5 at 700", "timer 100 5 at 1000"}));
  EXPECT_EQ(proxy()->timer_period(a, 5), 300) << "the period follows the latest start";
  a->kill_timer(5);
  EXPECT_EQ(proxy()->timer_period(a, 5), -1);
}

TEST_F(EventProxyTest, StaleExpiryOfARestartedTimerIsDropped) {
  probe* a = open(kA);
  a->set_timer(5, 100);
  host::host_clock::instance().advance(100);  // the expiry is posted, not yet delivered
  ASSERT_EQ(host::posted_count(), 1u);
  hooks_by_id()[kA].key = [](probe& self, dvc_pnl_evh_panel_event&) {
    self.set_timer(5, 50);
    return 1;
  };
  press(40);
  host::pump();
  EXPECT_TRUE(journal_with("timer").empty());
  EXPECT_TRUE(traced("stale timer event handle:0"));
  run_for(50);
  EXPECT_EQ(journal_with("timer"), (std::vector<std::string>{"timer 100 5 at 150"}));
}

TEST_F(EventProxyTest, ZeroTimerSetInADispatchRunsAfterIt) {
  open(kA);
  hooks_by_id()[kA].key = [](probe& self, dvc_pnl_evh_panel_event&) {
    self.set_timer(7, 0);
    note("key done");
    return 1;
  };
  hooks_by_id()[kA].timer = [](probe& self, int id) { self.kill_timer(id); };
  journal().clear();
  press(40);
  EXPECT_EQ(journal(), (std::vector<std::string>{"key 100 40", "key done"}));
  settle();
  EXPECT_EQ(journal(), (std::vector<std::string>{"key 100 40", "key done", "timer 100 7 at 0"}));
}

TEST_F(EventProxyTest, ZeroTimerLoopIsStopped) {
  probe* a = open(kA);
  a->set_timer(8, 0);
  settle();
  EXPECT_EQ(journal_with("timer").size(),
            static_cast<std::size_t>(DVC_PNL_CEH_ZERO_TIMER_LOOP_LIMIT - 1));
  char expected[96];
  std::snprintf(expected, sizeof(expected), "timer loop stopped owner:%p id:%d",
                static_cast<const void*>(static_cast<dvc_pnl_ceh_contents_interface*>(a)), 8);
  EXPECT_TRUE(traced(expected)) << test::trace_dump();
  EXPECT_EQ(proxy()->running_timer_count(a), 0);
}

TEST_F(EventProxyTest, ZeroTimerLoopCountRestartsAfterInput) {
  const std::function<void()> inputs[] = {
      [] { press(40); },
      [] { proxy()->dvu_pnl_evd_notify(dvc_pnl_evh_panel_event(880)); },
  };
  for (const auto& input : inputs) {
    SetUp();
    probe* a = open(kA);
    int fired = 0;
    hooks_by_id()[kA].timer = [&](probe& self, int id) {
      if (++fired == 150)
        self.kill_timer(id);
    };
    a->set_timer(8, 0);
    // One expiry per round; input between rounds 60 and 61 ends the run of expiries.
    for (int round = 0; round < 200 && fired < 150; ++round) {
      host::host_clock::instance().run_due();
      host::pump();
      if (round == 59)
        input();
    }
    EXPECT_EQ(fired, 150);
    for (const std::string& m : host::trace_sink::instance().messages())
      EXPECT_NE(m.rfind("timer loop stopped", 0), 0u) << m;
  }
}

TEST_F(EventProxyTest, ZeroTimerLoopCountRestartsWhenTimeMoves) {
  probe* a = open(kA);
  int fired = 0;
  hooks_by_id()[kA].timer = [&](probe& self, int id) {
    if (++fired == 150)
      self.kill_timer(id);
  };
  a->set_timer(8, 0);
  for (int round = 0; round < 200 && fired < 150; ++round) {
    if (round == 59) {
      host::host_clock::instance().advance(1);
    } else {
      host::host_clock::instance().run_due();
    }
    host::pump();
  }
  EXPECT_EQ(fired, 150);
}

// A timer owner that knows only the interface: nothing in it restarts its timer.
class bare_owner : public dvc_pnl_ceh_contents_interface {
 public:
  void dvc_pnl_ceh_on_timer_base(int timer_id, int period_ms) override {
    expiries.push_back({timer_id, period_ms, emwOSWGetSysTimer(), locked});
  }
  int dvc_pnl_ceh_on_key_base(dvc_pnl_evh_panel_event&) override { return 0; }
  int dvc_pnl_ceh_on_usb_keyboard_base(dvc_pnl_evh_panel_event&) override { return 0; }
  void dvc_pnl_ceh_lock() override { ++locked; }
  void dvc_pnl_ceh_unlock() override { --locked; }

  struct expiry {
    int id;
    int period;
    unsigned long at;
    int locked;
  };
  std::vector<expiry> expiries;
  int locked = 0;
};

TEST_F(EventProxyTest, ProxyRunsATimerAgainWhenItsHandlerLeftIt) {
  bare_owner owner;
  proxy()->dvc_pnl_ceh_set_timer(3, 100, &owner);
  run_for(300);
  ASSERT_EQ(owner.expiries.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(owner.expiries[i].id, 3);
    EXPECT_EQ(owner.expiries[i].period, 100);
    EXPECT_EQ(owner.expiries[i].at, 100 * (i + 1));
    EXPECT_EQ(owner.expiries[i].locked, 1);  // the owner is locked around its handler
  }
  EXPECT_EQ(owner.locked, 0);
  proxy()->dvc_pnl_ceh_set_timer(-1, -1, &owner);
  run_for(300);
  EXPECT_EQ(owner.expiries.size(), 3u);
}

TEST_F(EventProxyTest, StoppingOneTimerLeavesTheOthersOfItsOwner) {
  bare_owner owner;
  proxy()->dvc_pnl_ceh_set_timer(1, 100, &owner);
  proxy()->dvc_pnl_ceh_set_timer(2, 150, &owner);
  proxy()->dvc_pnl_ceh_set_timer(1, -1, &owner);
  EXPECT_EQ(proxy()->running_timer_count(&owner), 1);
  // The free row is used again.
  proxy()->dvc_pnl_ceh_set_timer(4, 50, &owner);
  EXPECT_EQ(proxy()->running_timer_count(&owner), 2);
  run_for(150);
  ASSERT_EQ(owner.expiries.size(), 4u);
  EXPECT_EQ(owner.expiries[0].id, 4);
  EXPECT_EQ(owner.expiries[1].id, 4);
  EXPECT_EQ(owner.expiries[2].id, 2);
  EXPECT_EQ(owner.expiries[3].id, 4);
  proxy()->dvc_pnl_ceh_set_timer(-1, -1, &owner);
  EXPECT_EQ(proxy()->running_timer_count(&owner), 0);
}

TEST_F(EventProxyTest, DestroyedPageLeavesNoTimers) {
  probe* a = open(kA);
  open(kB);
  probe* b = page(kB);
  b->set_timer(1, 100);
  b->set_timer(2, 100);
  a->set_timer(1, 100);
  EXPECT_EQ(proxy()->running_timer_count(b), 2);
  b->back_to_parent();
  run_for(150);
  EXPECT_EQ(journal_with("timer"), (std::vector<std::string>{"timer 100 1 at 100"}));
}

// Keeps the timer events that reach the dispatcher, beside the proxy.
class timer_event_recorder : public dvu_pnl_evd_event_handler {
 public:
  int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) override {
    dvc_pnl_cmm_valueset source;
    event.dvc_pnl_evh_get_event_source_valueset(source);
    sources.push_back(source);
    return 1;
  }
  std::vector<dvc_pnl_cmm_valueset> sources;
};

TEST_F(EventProxyTest, TimerEventCarriesHandleAndPeriod) {
  timer_event_recorder recorder;
  dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_add_handler(1039,
                                                                                    &recorder);
  probe* a = open(kA);
  a->set_timer(5, 40);
  run_for(40);
  EXPECT_EQ(journal_with("timer"), (std::vector<std::string>{"timer 100 5 at 40"}));
  ASSERT_EQ(recorder.sources.size(), 1u);
  const dvc_pnl_cmm_valueset expected =
      test::make_valueset({{"0.2878.2879", 0L}, {"0.2878.2880", 40L}}, 2);
  EXPECT_TRUE(test::sets_equal(recorder.sources[0], expected));

  // The same expiry again is stale: the timer runs under a new handle now.
  dvc_pnl_evh_panel_event again(1039);
  again.dvc_pnl_evh_set_event_source_valueset(expected);
  EXPECT_EQ(proxy()->dvu_pnl_evd_notify(again), 1);
  EXPECT_EQ(journal_with("timer").size(), 1u);
  EXPECT_TRUE(traced("stale timer event handle:0"));
  dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_remove_handler(1039,
                                                                                       &recorder);
}

}  // namespace
}  // namespace orvanta
