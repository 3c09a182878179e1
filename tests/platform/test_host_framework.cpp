// Host framework stand-ins: semaphores, virtual-clock timers, event pump, page stack and window
// list, GUI components, device records, keyboard keys and the host reset.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/host/value_faults.h"
#include "orvanta/platform/dvc_pnl_cly_contents_layout.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/emw_trace.h"
#include "orvanta/platform/osw.h"
#include "support/valueset_builder.h"

namespace orvanta::host {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

long elapsed_ms(steady_clock::time_point since) {
  return static_cast<long>(
      std::chrono::duration_cast<milliseconds>(steady_clock::now() - since).count());
}

// ---- semaphore and creation guard ----

TEST(OswSemaphore, TryRequestOnATakenSemaphoreFailsAtOnce) {
  OSW_Mutex_Semaphore sem(1);
  ASSERT_EQ(sem.request(0), 0);
  const auto t0 = steady_clock::now();
  EXPECT_NE(sem.request(0), 0);
  EXPECT_LT(elapsed_ms(t0), 1000);
  EXPECT_EQ(sem.release(), 0);
  EXPECT_EQ(sem.request(0), 0);
}

TEST(OswSemaphore, CountsUpToItsInitialValue) {
  OSW_Mutex_Semaphore sem(2);
  EXPECT_EQ(sem.request(0), 0);
  EXPECT_EQ(sem.request(0), 0);
  EXPECT_NE(sem.request(0), 0);
  sem.release();
  EXPECT_EQ(sem.request(0), 0);
}

TEST(OswSemaphore, TimedRequestWaitsItsTimeThenFails) {
  OSW_Mutex_Semaphore sem(0);
  const auto t0 = steady_clock::now();
  EXPECT_NE(sem.request(60), 0);
  EXPECT_GE(elapsed_ms(t0), 60);
}

TEST(OswSemaphore, ReleaseFromAnotherThreadWakesAWaiter) {
  for (int timeout : {-1, 10000}) {
    OSW_Mutex_Semaphore sem(0);
    std::thread releaser([&sem] {
      std::this_thread::sleep_for(milliseconds(30));
      sem.release();
    });
    const auto t0 = steady_clock::now();
    EXPECT_EQ(sem.request(timeout), 0) << timeout;
    EXPECT_LT(elapsed_ms(t0), 5000) << timeout;
    releaser.join();
    EXPECT_NE(sem.request(0), 0) << "the one release was used up, timeout " << timeout;
  }
}

TEST(OswThreadGuard, IsRecursiveOnOneThreadAndExcludesOthers) {
  std::atomic<bool> entered{false};
  std::thread other;
  {
    OSW_Thread_Guard outer;
    OSW_Thread_Guard inner;  // would deadlock if the guard were not recursive
    other = std::thread([&entered] {
      OSW_Thread_Guard g;
      entered = true;
    });
    std::this_thread::sleep_for(milliseconds(50));
    EXPECT_FALSE(entered.load());
  }
  other.join();
  EXPECT_TRUE(entered.load());
}

// ---- virtual clock and timers ----

struct expiry {
  int tag;
  unsigned long at;
  friend bool operator==(const expiry& a, const expiry& b) {
    return a.tag == b.tag && a.at == b.at;
  }
};

std::vector<expiry> g_expiries;
OSW_Timer_Control* g_victim = nullptr;  // a timer that the `stop_victim` callback stops

void record_expiry(OSW_Timer_Control&, int tag, int, int, int) {
  g_expiries.push_back({tag, emwOSWGetSysTimer()});
}

// Restarts itself with the period in a2 while fewer than a3 expiries were recorded.
void restart_self(OSW_Timer_Control& control, int tag, int period, int limit, int) {
  g_expiries.push_back({tag, emwOSWGetSysTimer()});
  if (static_cast<int>(g_expiries.size()) < limit)
    control.start(period, restart_self, tag, period, limit, 0);
}

void stop_victim(OSW_Timer_Control&, int tag, int, int, int) {
  g_expiries.push_back({tag, emwOSWGetSysTimer()});
  g_victim->stop();
}

class VirtualClock : public ::testing::Test {
 protected:
  void SetUp() override {
    reset();
    g_expiries.clear();
  }
  void TearDown() override {
    g_victim = nullptr;
    reset();
  }
  host_clock& clock = host_clock::instance();
};

TEST_F(VirtualClock, TimersExpireByDueTimeThenStartOrderWithTheClockAtTheirDueTime) {
  OSW_Timer_Control t1(32768), t2(32768), t3(32768), t4(32768);
  t1.start(30, record_expiry, 1, 0, 0, 0);
  t2.start(10, record_expiry, 2, 0, 0, 0);
  t3.start(10, record_expiry, 3, 0, 0, 0);
  t4.start(50, record_expiry, 4, 0, 0, 0);
  EXPECT_EQ(clock.pending(), 4u);

  clock.advance(40);
  EXPECT_EQ(g_expiries, (std::vector<expiry>{{2, 10}, {3, 10}, {1, 30}}));
  EXPECT_EQ(clock.now_ms(), 40u);
  EXPECT_EQ(emwOSWGetSysTimer(), 40u);
  EXPECT_EQ(clock.pending(), 1u);
  EXPECT_FALSE(t1.running());
  EXPECT_TRUE(t4.running());

  clock.advance(10);
  EXPECT_EQ(g_expiries.back(), (expiry{4, 50}));
  EXPECT_EQ(clock.pending(), 0u);
}

TEST_F(VirtualClock, AZeroMsTimerRunsOnlyWhenDueTimersAreRun) {
  OSW_Timer_Control t(32768);
  t.start(0, record_expiry, 7, 0, 0, 0);
  EXPECT_TRUE(g_expiries.empty()) << "start() must not run the callback";
  EXPECT_TRUE(t.running());
  clock.run_due();
  EXPECT_EQ(g_expiries, (std::vector<expiry>{{7, 0}}));
  EXPECT_EQ(clock.now_ms(), 0u);
  clock.run_due();
  EXPECT_EQ(g_expiries.size(), 1u) << "a timer is one-shot";
}

TEST_F(VirtualClock, NextDueNamesTheEarliestRunningTimer) {
  OSW_Timer_Control t1(32768), t2(32768);
  EXPECT_EQ(clock.next_due_ms(), std::nullopt);
  clock.advance(5);
  t1.start(30, record_expiry, 1, 0, 0, 0);
  t2.start(10, record_expiry, 2, 0, 0, 0);
  EXPECT_EQ(clock.next_due_ms(), std::optional<unsigned long>(15));
  t2.stop();
  EXPECT_EQ(clock.next_due_ms(), std::optional<unsigned long>(35));
  clock.advance(30);
  EXPECT_EQ(clock.next_due_ms(), std::nullopt);
}

TEST_F(VirtualClock, RunDueLeavesLaterTimersAndTime) {
  OSW_Timer_Control t(32768);
  clock.advance(5);
  t.start(1, record_expiry, 1, 0, 0, 0);
  clock.run_due();
  EXPECT_TRUE(g_expiries.empty());
  EXPECT_EQ(clock.now_ms(), 5u);
}

TEST_F(VirtualClock, StopCancelsAndRestartMovesTheExpiry) {
  OSW_Timer_Control stopped(32768), moved(32768);
  stopped.start(10, record_expiry, 1, 0, 0, 0);
  moved.start(10, record_expiry, 2, 0, 0, 0);
  EXPECT_EQ(stopped.stop(), 0);
  EXPECT_FALSE(stopped.running());
  moved.start(30, record_expiry, 3, 0, 0, 0);
  clock.advance(20);
  EXPECT_TRUE(g_expiries.empty());
  clock.advance(10);
  EXPECT_EQ(g_expiries, (std::vector<expiry>{{3, 30}}));
}

TEST_F(VirtualClock, ACallbackRestartingItsTimerFiresAgainInTheSameAdvance) {
  OSW_Timer_Control t(32768);
  t.start(25, restart_self, 1, 25, 100, 0);
  clock.advance(100);
  EXPECT_EQ(g_expiries, (std::vector<expiry>{{1, 25}, {1, 50}, {1, 75}, {1, 100}}));
  EXPECT_TRUE(t.running());
  EXPECT_EQ(clock.pending(), 1u);
}

TEST_F(VirtualClock, AZeroMsRestartInsideACallbackWaitsForTheNextPass) {
  OSW_Timer_Control t(32768);
  t.start(0, restart_self, 1, 0, 100, 0);
  clock.run_due();
  EXPECT_EQ(g_expiries.size(), 1u);
  clock.advance(10);
  EXPECT_EQ(g_expiries.size(), 2u);
  EXPECT_EQ(g_expiries.back(), (expiry{1, 0})) << "it was due at 0";
  EXPECT_TRUE(t.running());
}

TEST_F(VirtualClock, ACallbackCanStopATimerDueAtTheSameTime) {
  OSW_Timer_Control first(32768), second(32768);
  g_victim = &second;
  first.start(10, stop_victim, 1, 0, 0, 0);
  second.start(10, record_expiry, 2, 0, 0, 0);
  clock.advance(10);
  EXPECT_EQ(g_expiries, (std::vector<expiry>{{1, 10}}));
  EXPECT_EQ(clock.pending(), 0u);
}

TEST_F(VirtualClock, DestroyingAStartedControlCancelsIt) {
  auto t = std::make_unique<OSW_Timer_Control>(32768);
  t->start(10, record_expiry, 1, 0, 0, 0);
  t.reset();
  EXPECT_EQ(clock.pending(), 0u);
  clock.advance(20);
  EXPECT_TRUE(g_expiries.empty());
}

TEST_F(VirtualClock, ResetDropsTimersAndRewindsTime) {
  OSW_Timer_Control t(32768);
  clock.advance(100);
  t.start(10, record_expiry, 1, 0, 0, 0);
  clock.reset();
  EXPECT_EQ(clock.now_ms(), 0u);
  EXPECT_EQ(clock.pending(), 0u);
  EXPECT_FALSE(t.running());
  clock.advance(200);
  EXPECT_TRUE(g_expiries.empty());
  EXPECT_EQ(t.start(0, nullptr, 0, 0, 0, 0), 1) << "a timer without callback is refused";
}

TEST(OswLocalTime, ConvertsSecondsAndRefusesANullOutput) {
  EXPECT_NE(emwCLBLocalTime(0, nullptr), 0);
  std::tm tm{};
  ASSERT_EQ(emwCLBLocalTime(1700000000L, &tm), 0);  // 2023-11-14 22:13:20 UTC
  EXPECT_EQ(tm.tm_year, 123);
  EXPECT_EQ(tm.tm_mon, 10);
  EXPECT_TRUE(tm.tm_mday == 14 || tm.tm_mday == 15) << tm.tm_mday;
  EXPECT_EQ(tm.tm_sec, 20);
}

// ---- panel events ----

TEST(PanelEvent, FieldsAndValueSetsAreCopiedDeeply) {
  dvc_pnl_evh_panel_event e;
  EXPECT_EQ(e.dvc_pnl_evh_set_id(1039), 0);
  EXPECT_EQ(e.dvc_pnl_evh_set_init_type(2), 0);
  EXPECT_EQ(e.dvc_pnl_evh_set_priority(3), 0);
  dvc_pnl_cmm_valueset src = test::make_valueset({{"0.2878.2879", 5L}});
  dvc_pnl_cmm_valueset custom = test::make_valueset({{"0", 0L}});
  ASSERT_EQ(e.dvc_pnl_evh_set_event_source_valueset(src), 0);
  ASSERT_EQ(e.dvc_pnl_evh_set_custom_valueset(custom), 0);
  src.dvc_pnl_cmm_clear();  // the event keeps its own copy

  dvc_pnl_evh_panel_event copy(e);
  e.dvc_pnl_evh_set_event_source_valueset(custom);
  EXPECT_EQ(copy.dvc_pnl_evh_get_id(), 1039);
  EXPECT_EQ(copy.dvc_pnl_evh_get_init_type(), 2);
  EXPECT_EQ(copy.dvc_pnl_evh_get_priority(), 3);
  dvc_pnl_cmm_valueset out;
  ASSERT_EQ(copy.dvc_pnl_evh_get_event_source_valueset(out), 0);
  EXPECT_TRUE(test::sets_equal(out, test::make_valueset({{"0.2878.2879", 5L}})));
  out.dvc_pnl_cmm_clear();
  EXPECT_EQ(copy.source().dvc_pnl_cmm_size(), 1u) << "a read hands out a copy";
  ASSERT_EQ(copy.dvc_pnl_evh_get_custom_valueset(out), 0);
  EXPECT_TRUE(test::sets_equal(out, custom));
}

// ---- event dispatch and pump ----

// Records "<name>:<id>" for each event it hears and runs an optional hook.
class recording_handler : public dvu_pnl_evd_event_handler {
 public:
  recording_handler(std::string name, std::vector<std::string>& heard)
      : name_(std::move(name)), heard_(heard) {}
  int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) override {
    heard_.push_back(name_ + ":" + std::to_string(event.dvc_pnl_evh_get_id()));
    if (hook)
      hook(event);
    return 0;
  }
  std::function<void(const dvc_pnl_evh_panel_event&)> hook;

 private:
  std::string name_;
  std::vector<std::string>& heard_;
};

class EventPump : public ::testing::Test {
 protected:
  void SetUp() override { reset(); }
  void TearDown() override { reset(); }
  void post(int id) {
    ASSERT_EQ(dvc_pnl_evh_event_handler::dvc_pnl_evh_instance()->dvc_pnl_evm_notify_panel_event(
                  dvc_pnl_evh_panel_event(id)),
              0);
  }
  dvu_pnl_evd_event_dispatcher& evd = *dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance();
  std::vector<std::string> heard;
  recording_handler h1{"h1", heard};
  recording_handler h2{"h2", heard};
  recording_handler after{"after", heard};
};

TEST_F(EventPump, EachSubscribedHandlerHearsAnEventOnceThenTheAfterEventHandlers) {
  ASSERT_EQ(evd.dvu_pnl_evd_add_handler(100, &h1), 0);
  ASSERT_EQ(evd.dvu_pnl_evd_add_handler(100, &h2), 0);
  ASSERT_EQ(evd.dvu_pnl_evd_add_handler(100, &h1), 0);
  ASSERT_EQ(evd.dvu_pnl_evd_add_after_event_handler(&after), 0);
  EXPECT_EQ(subscription_count(100, &h1), 2);
  EXPECT_EQ(subscription_count(100, &h2), 1);

  deliver(dvc_pnl_evh_panel_event(100));
  deliver(dvc_pnl_evh_panel_event(200));  // nobody subscribed: only the after-event handler
  EXPECT_EQ(heard, (std::vector<std::string>{"h1:100", "h2:100", "after:100", "after:200"}));
}

TEST_F(EventPump, ThePostedLogKeepsDeliveredEventsOnlyWhileAsked) {
  post(5);
  EXPECT_TRUE(take_posted_log().empty()) << "off by default";
  keep_posted_log(true);
  post(6);
  post(7);
  pump();
  std::vector<int> ids;
  for (const auto& e : take_posted_log())
    ids.push_back(e.dvc_pnl_evh_get_id());
  EXPECT_EQ(ids, (std::vector<int>{6, 7}));
  EXPECT_TRUE(take_posted_log().empty()) << "a take empties the log";
  post(8);
  reset();
  EXPECT_TRUE(take_posted_log().empty()) << "reset empties the log";
  post(9);
  EXPECT_EQ(take_posted_log().size(), 1u) << "and keeps the setting";
  keep_posted_log(false);
}

TEST_F(EventPump, EachRemoveTakesOneCount) {
  evd.dvu_pnl_evd_add_handler(100, &h1);
  evd.dvu_pnl_evd_add_handler(100, &h1);
  ASSERT_EQ(evd.dvu_pnl_evd_remove_handler(100, &h1), 0);
  EXPECT_EQ(subscription_count(100, &h1), 1);
  deliver(dvc_pnl_evh_panel_event(100));
  EXPECT_EQ(heard, (std::vector<std::string>{"h1:100"}));

  ASSERT_EQ(evd.dvu_pnl_evd_remove_handler(100, &h1), 0);
  EXPECT_EQ(subscription_count(100, &h1), 0);
  deliver(dvc_pnl_evh_panel_event(100));
  EXPECT_EQ(heard.size(), 1u);
  EXPECT_NE(evd.dvu_pnl_evd_remove_handler(100, &h1), 0) << "nothing left to remove";
  EXPECT_NE(evd.dvu_pnl_evd_add_handler(100, nullptr), 0);
  EXPECT_NE(evd.dvu_pnl_evd_add_after_event_handler(nullptr), 0);
}

TEST_F(EventPump, SubscriptionsOfAHandlerComeInOrderOfFirstSubscription) {
  for (int id : {7, 3, 7, 5})
    evd.dvu_pnl_evd_add_handler(id, &h1);
  evd.dvu_pnl_evd_add_handler(9, &h2);
  EXPECT_EQ(subscriptions_of(&h1), (std::vector<int>{7, 3, 5}));
  EXPECT_EQ(subscriptions_of(&h2), (std::vector<int>{9}));
}

TEST_F(EventPump, AHandlerUnsubscribedByAnEarlierOneDoesNotHearTheEvent) {
  evd.dvu_pnl_evd_add_handler(100, &h1);
  evd.dvu_pnl_evd_add_handler(100, &h2);
  h1.hook = [this](const dvc_pnl_evh_panel_event&) { evd.dvu_pnl_evd_remove_handler(100, &h2); };
  deliver(dvc_pnl_evh_panel_event(100));
  EXPECT_EQ(heard, (std::vector<std::string>{"h1:100"}));
}

TEST_F(EventPump, PumpDeliversOldestFirstAndEventsPostedMeanwhileAfterThem) {
  for (int id : {1, 2, 10})
    evd.dvu_pnl_evd_add_handler(id, &h1);
  h1.hook = [this](const dvc_pnl_evh_panel_event& e) {
    if (e.dvc_pnl_evh_get_id() == 1)
      post(10);
  };
  post(1);
  post(2);
  EXPECT_EQ(posted_count(), 2u);
  EXPECT_TRUE(heard.empty()) << "posting does not deliver";
  EXPECT_EQ(pump(), 3u);
  EXPECT_EQ(heard, (std::vector<std::string>{"h1:1", "h1:2", "h1:10"}));
  EXPECT_EQ(posted_count(), 0u);
  EXPECT_EQ(pump(), 0u);
}

TEST_F(EventPump, EventsPostedFromAnotherThreadArriveInTheirOrder) {
  constexpr int kCount = 500;
  std::vector<int> ids;
  h1.hook = [&ids](const dvc_pnl_evh_panel_event& e) { ids.push_back(e.dvc_pnl_evh_get_id()); };
  for (int i = 0; i < kCount; ++i)
    evd.dvu_pnl_evd_add_handler(1000 + i, &h1);
  std::thread poster([this] {
    for (int i = 0; i < kCount; ++i)
      post(1000 + i);
  });
  // Pump while the other thread posts, until everything arrived.
  const auto t0 = steady_clock::now();
  while (static_cast<int>(ids.size()) < kCount && elapsed_ms(t0) < 10000)
    pump();
  poster.join();
  pump();
  ASSERT_EQ(static_cast<int>(ids.size()), kCount);
  for (int i = 0; i < kCount; ++i)
    ASSERT_EQ(ids[i], 1000 + i) << i;
}

// A timer callback posts, as the library's timer procedure does; the pump then delivers it.
void post_timer_event(OSW_Timer_Control& control, int handle, int, int, int) {
  control.stop();
  dvc_pnl_evh_panel_event e(1039);
  e.dvc_pnl_evh_set_priority(handle);
  dvc_pnl_evh_event_handler::dvc_pnl_evh_instance()->dvc_pnl_evm_notify_panel_event(e);
}

TEST_F(EventPump, ATimerExpiryPostsAndThePumpDeliversIt) {
  std::vector<int> handles;
  h1.hook = [&handles](const dvc_pnl_evh_panel_event& e) {
    handles.push_back(e.dvc_pnl_evh_get_priority());
  };
  evd.dvu_pnl_evd_add_handler(1039, &h1);
  OSW_Timer_Control t(32768);
  t.start(100, post_timer_event, 42, 100, 0, 0);
  host_clock::instance().advance(99);
  EXPECT_EQ(posted_count(), 0u);
  host_clock::instance().advance(1);
  EXPECT_EQ(posted_count(), 1u);
  EXPECT_TRUE(handles.empty());
  pump();
  EXPECT_EQ(handles, (std::vector<int>{42}));
}

// ---- page stack ----

class PageStack;

// A screen that records what the framework does to it, and checks its lock and page scope at
// the moments that matter.
class journal_contents : public dvc_pnl_ceh_contents_interface {
 public:
  journal_contents(int id, dvu_pnl_gcp_components* gui, PageStack& t);
  ~journal_contents() override;

  void dvc_pnl_ceh_on_load() override;
  void dvc_pnl_ceh_on_close() override;
  void dvc_pnl_ceh_on_activate_pre() override { note("activate_pre"); }
  void dvc_pnl_ceh_on_deactivate() override { note("deactivate"); }
  void dvc_pnl_ceh_on_timer_base(int, int) override {}
  int dvc_pnl_ceh_on_key_base(dvc_pnl_evh_panel_event&) override { return 0; }
  int dvc_pnl_ceh_on_usb_keyboard_base(dvc_pnl_evh_panel_event&) override { return 0; }
  void dvc_pnl_ceh_lock() override { lock_.request(-1); }
  void dvc_pnl_ceh_unlock() override {
    lock_.release();
    note("unlock");
  }

  // True when nobody holds the lock.
  bool unlocked() {
    if (lock_.request(0) != 0)
      return false;
    lock_.release();
    return true;
  }
  dvu_pnl_gcp_components* gui() const { return gui_; }

 private:
  void note(const std::string& what);
  int id_;
  dvu_pnl_gcp_components* gui_;
  PageStack& t_;
  OSW_Mutex_Semaphore lock_{1};
};

class PageStack : public ::testing::Test {
 protected:
  void SetUp() override {
    reset();
    set_contents_creator(
        [this](int id, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
          if (refused.count(id) != 0)
            return nullptr;
          return new journal_contents(id, gui, *this);
        });
  }
  void TearDown() override {
    reset();
    set_contents_creator(nullptr);
    EXPECT_EQ(live, 0);
  }

  std::vector<int> ids_of(int function) {
    std::vector<int> ids;
    for (const page_record& p : pages_of(function))
      ids.push_back(p.contents_id);
    return ids;
  }
  journal_contents* contents_of(int id, int function) {
    for (const page_record& p : pages_of(function)) {
      if (p.contents_id == id)
        return static_cast<journal_contents*>(p.contents);
    }
    return nullptr;
  }
  bool has_label(int function, int id) {
    dvc_pnl_cmm_value v;
    return host_data_manager::instance().dvc_pnl_pdm_get_by_page_scope(PAGE_SCOPE_DATA_LABEL,
                                                                       function, id, v) == 0;
  }

 public:
  dvc_pnl_psm_page_stack_matrix& psm = *dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
  dvu_pnl_wmg_list_controller& windows = *dvu_pnl_wmg_list_controller::get_instance();
  std::vector<std::string> calls;
  std::map<int, std::function<void()>> on_load;   // by contents id
  std::map<int, std::function<void()>> on_close;  // by contents id
  std::set<int> refused;
  int live = 0;
};

journal_contents::journal_contents(int id, dvu_pnl_gcp_components* gui, PageStack& t)
    : id_(id), gui_(gui), t_(t) {
  // Like the contents base: the new object comes out locked.
  lock_.request(-1);
  ++t_.live;
  note("create(active function " + std::to_string(t_.psm.dvc_pnl_psm_get_function()) + ")");
}

journal_contents::~journal_contents() {
  --t_.live;
  note("destroy");
}

void journal_contents::note(const std::string& what) {
  t_.calls.push_back(what + " " + std::to_string(id_));
}

void journal_contents::dvc_pnl_ceh_on_load() {
  note(unlocked() ? "load" : "load while locked");
  auto it = t_.on_load.find(id_);
  if (it != t_.on_load.end())
    it->second();
}

void journal_contents::dvc_pnl_ceh_on_close() {
  note("close");
  auto it = t_.on_close.find(id_);
  if (it != t_.on_close.end())
    it->second();
}

TEST_F(PageStack, OpenCreatesUnlocksCoversThePreviousTopThenLoads) {
  ASSERT_EQ(psm.dvc_pnl_psm_open(1, 1, 0, 100, 1), 0);
  EXPECT_TRUE(has_label(1, 100));
  ASSERT_EQ(psm.dvc_pnl_psm_open(1, 1, 0, 200, 1), 0);
  EXPECT_EQ(calls, (std::vector<std::string>{"create(active function 1) 100", "unlock 100",
                                             "load 100", "create(active function 1) 200",
                                             "unlock 200", "deactivate 100", "load 200"}));
  EXPECT_EQ(ids_of(1), (std::vector<int>{100, 200}));
  EXPECT_TRUE(has_label(1, 200));
  EXPECT_TRUE(contents_of(200, 1)->unlocked());
  EXPECT_EQ(page_stack_log(), (std::vector<std::string>{"open 1 1 0 100 1", "open 1 1 0 200 1"}));
}

TEST_F(PageStack, CloseRunsCloseDestroysThenActivatesTheUncoveredPage) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  psm.dvc_pnl_psm_open(1, 1, 0, 200, 1);
  bool label_during_close = false;
  on_close[200] = [&] { label_during_close = has_label(1, 200); };
  calls.clear();

  ASSERT_EQ(psm.dvc_pnl_psm_close(1, 1, 0, 200), 0);
  EXPECT_EQ(calls, (std::vector<std::string>{"close 200", "destroy 200", "activate_pre 100"}));
  EXPECT_TRUE(label_during_close);
  EXPECT_FALSE(has_label(1, 200));
  EXPECT_TRUE(has_label(1, 100));
  EXPECT_EQ(ids_of(1), (std::vector<int>{100}));
  EXPECT_EQ(page_stack_log().back(), "close 1 1 0 200");
}

TEST_F(PageStack, ClosingAPageBelowTheTopActivatesNothing) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  psm.dvc_pnl_psm_open(1, 1, 0, 200, 1);
  calls.clear();
  ASSERT_EQ(psm.dvc_pnl_psm_close(1, 1, 0, 100), 0);
  EXPECT_EQ(calls, (std::vector<std::string>{"close 100", "destroy 100"}));
  EXPECT_EQ(ids_of(1), (std::vector<int>{200}));
}

TEST_F(PageStack, CloseOfAnAbsentPageFailsAndChangesNothing) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  calls.clear();
  EXPECT_NE(psm.dvc_pnl_psm_close(1, 1, 0, 999), 0);
  EXPECT_NE(psm.dvc_pnl_psm_close(2, 1, 0, 100), 0) << "another group";
  EXPECT_NE(psm.dvc_pnl_psm_close(1, 1, 3, 100), 0) << "another state";
  EXPECT_NE(psm.dvc_pnl_psm_close(1, 2, 0, 100), 0) << "another function";
  EXPECT_NE(psm.dvc_pnl_psm_close(1, 40, 0, 100), 0) << "no such function";
  EXPECT_TRUE(calls.empty());
  EXPECT_EQ(ids_of(1), (std::vector<int>{100}));
  EXPECT_EQ(page_stack_log().size(), 6u) << "failed calls are logged too";
}

TEST_F(PageStack, ClosesAndClearsInsideADispatchWaitForItsEnd) {
  psm.dvc_pnl_psm_open(0, 1, 2, 100, 1);
  psm.dvc_pnl_psm_open(0, 1, 2, 200, 1);
  psm.dvc_pnl_psm_open(1, 1, 0, 300, 1);
  calls.clear();
  {
    dispatch_scope outer;
    {
      dispatch_scope inner;
      ASSERT_EQ(psm.dvc_pnl_psm_close(1, 1, 0, 300), 0);
      ASSERT_EQ(psm.dvc_pnl_psm_clear(0, 1, 2), 0);
      // An absent page is refused at once, as outside a dispatch.
      EXPECT_NE(psm.dvc_pnl_psm_close(1, 1, 0, 999), 0);
      // Opens are not held back; a page opened after the clear is not part of it.
      ASSERT_EQ(psm.dvc_pnl_psm_open(0, 1, 2, 400, 1), 0);
    }
    EXPECT_EQ(ids_of(1), (std::vector<int>{100, 200, 400, 300})) << "the outer scope holds";
    calls.clear();
  }
  EXPECT_EQ(calls,
            (std::vector<std::string>{"close 300", "destroy 300", "activate_pre 400", "close 200",
                                      "destroy 200", "close 100", "destroy 100"}));
  EXPECT_EQ(ids_of(1), (std::vector<int>{400}));
  // With no dispatch on, a close happens at once again.
  ASSERT_EQ(psm.dvc_pnl_psm_close(0, 1, 2, 400), 0);
  EXPECT_TRUE(ids_of(1).empty());
}

TEST_F(PageStack, ResetDropsClosesStillWaiting) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  {
    dispatch_scope scope;
    psm.dvc_pnl_psm_close(1, 1, 0, 100);
    reset();
    ASSERT_EQ(psm.dvc_pnl_psm_open(1, 1, 0, 100, 1), 0);
  }
  EXPECT_EQ(ids_of(1), (std::vector<int>{100})) << "the close asked before the reset is gone";
}

TEST_F(PageStack, LayoutAttributeWordsAnswerZeroUntilSet) {
  std::string name;
  unsigned long attributes = 99;
  ASSERT_EQ(dvc_pnl_cly_get_layout_name(100, name, attributes), 0);
  EXPECT_EQ(attributes, 0u);
  EXPECT_EQ(name, "d_01_01_04_01") << "a layout is named after the family of its screens";
  set_layout_attributes(100, 3);
  dvc_pnl_cly_get_layout_name(100, name, attributes);
  EXPECT_EQ(attributes, 3u);
  dvc_pnl_cly_get_layout_name(101, name, attributes);
  EXPECT_EQ(attributes, 0u);
  reset();
  dvc_pnl_cly_get_layout_name(100, name, attributes);
  EXPECT_EQ(attributes, 0u);
}

TEST_F(PageStack, PagesOfAFunctionNotShownAreNeitherDeactivatedNorActivated) {
  ASSERT_EQ(psm.dvc_pnl_psm_get_function(), 1);
  psm.dvc_pnl_psm_open(1, 2, 0, 100, 1);
  psm.dvc_pnl_psm_open(1, 2, 0, 200, 1);
  psm.dvc_pnl_psm_close(1, 2, 0, 200);
  EXPECT_EQ(calls,
            (std::vector<std::string>{"create(active function 1) 100", "unlock 100", "load 100",
                                      "create(active function 1) 200", "unlock 200", "load 200",
                                      "close 200", "destroy 200"}));
  EXPECT_EQ(ids_of(2), (std::vector<int>{100}));
  EXPECT_TRUE(ids_of(1).empty());
}

TEST_F(PageStack, WindowsStackByGroupThenOrderThenOpening) {
  struct placed {
    int group;
    unsigned order;
    int id;
  };
  for (const placed& p : std::vector<placed>{{2, 1, 10}, {1, 5, 11}, {1, 2, 12}, {1, 2, 13}})
    ASSERT_EQ(psm.dvc_pnl_psm_open(p.group, 1, 0, p.id, p.order), 0);
  EXPECT_EQ(ids_of(1), (std::vector<int>{12, 13, 11, 10}));
  // 10 stayed on top the whole time: nothing opened below it covered it.
  for (const std::string& c : calls)
    EXPECT_NE(c, "deactivate 10");

  psm.dvc_pnl_psm_open(3, 1, 0, 14, 0);
  EXPECT_EQ(calls.back(), "load 14");
  EXPECT_EQ(calls[calls.size() - 2], "deactivate 10");

  std::vector<DVC_PNL_PSM_PAGE_DESCRIPTOR> list;
  ASSERT_EQ(psm.dvc_pnl_psm_get_open_page_list(1, list), 0);
  ASSERT_EQ(list.size(), 5u);
  const std::vector<std::pair<int, unsigned>> expected{{1, 2}, {1, 2}, {1, 5}, {2, 1}, {3, 0}};
  for (std::size_t i = 0; i < list.size(); ++i) {
    EXPECT_EQ(list[i].group, expected[i].first) << i;
    EXPECT_EQ(list[i].order, expected[i].second) << i;
    EXPECT_EQ(list[i].function, 1) << i;
  }
  EXPECT_EQ(list[0].contents_id, 12);
  EXPECT_EQ(list[4].contents_id, 14);
}

TEST_F(PageStack, ClearClosesTheCellTopFirst) {
  psm.dvc_pnl_psm_open(1, 1, 5, 50, 1);  // another cell: stays
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 2);
  psm.dvc_pnl_psm_open(1, 1, 0, 200, 3);
  psm.dvc_pnl_psm_open(1, 2, 0, 300, 1);  // another function: stays
  calls.clear();
  ASSERT_EQ(psm.dvc_pnl_psm_clear(1, 1, 0), 0);
  EXPECT_EQ(calls, (std::vector<std::string>{"close 200", "destroy 200", "activate_pre 100",
                                             "close 100", "destroy 100", "activate_pre 50"}));
  EXPECT_EQ(ids_of(1), (std::vector<int>{50}));
  EXPECT_EQ(ids_of(2), (std::vector<int>{300}));
  EXPECT_EQ(page_stack_log().back(), "clear 1 1 0");
  EXPECT_EQ(psm.dvc_pnl_psm_clear(1, 1, 0), 0) << "an empty cell is already clear";
}

TEST_F(PageStack, ChangeFunctionAcceptsZeroToThirtySixAndOpensNothing) {
  struct row {
    int function;
    bool ok;
  };
  const std::vector<row> rows{{3, true}, {0, true}, {36, true}, {37, false}, {-1, false}};
  int shown = 1;
  for (const row& r : rows) {
    EXPECT_EQ(psm.dvc_pnl_psm_change_function(r.function) == 0, r.ok) << r.function;
    if (r.ok)
      shown = r.function;
    EXPECT_EQ(psm.dvc_pnl_psm_get_function(), shown) << r.function;
    EXPECT_EQ(page_stack_log().back(), "change " + std::to_string(r.function));
  }
  EXPECT_TRUE(calls.empty());
  EXPECT_NE(psm.dvc_pnl_psm_open(1, 37, 0, 100, 1), 0);
  EXPECT_EQ(live, 0);
}

TEST_F(PageStack, NewContentsSeeTheFunctionShownWhenTheyAreBuilt) {
  psm.dvc_pnl_psm_change_function(4);
  psm.dvc_pnl_psm_open(1, 4, 0, 100, 1);
  EXPECT_EQ(calls.front(), "create(active function 4) 100");
}

TEST_F(PageStack, WindowListPutsTheShownFunctionOnTop) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  psm.dvc_pnl_psm_open(1, 1, 0, 200, 1);
  psm.dvc_pnl_psm_open(1, 2, 0, 300, 1);

  // Function 1 is shown: the background function's window lies below its windows.
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> all;
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> survive;
  ASSERT_EQ(windows.dvu_pnl_lst_get_list(all), 0);
  ASSERT_EQ(windows.dvu_pnl_lst_create_survive_list(survive), 0);
  const std::vector<std::pair<int, int>> expected = {{300, 2}, {100, 1}, {200, 1}};
  ASSERT_EQ(all.size(), expected.size());
  ASSERT_EQ(survive.size(), expected.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(all[i].contents_id, expected[i].first);
    EXPECT_EQ(all[i].function, expected[i].second);
    EXPECT_EQ(all[i].manager->dvc_pnl_cmg_get_contents(),
              contents_of(all[i].contents_id, all[i].function));
    EXPECT_EQ(survive[i].contents_id, all[i].contents_id);
    EXPECT_EQ(survive[i].manager, all[i].manager);
  }

  int id = 200;
  EXPECT_EQ(windows.dvu_pnl_lst_check(id, 1), 2);
  id = 100;
  EXPECT_EQ(windows.dvu_pnl_lst_check(id, 1), 1);
  id = 300;
  EXPECT_EQ(windows.dvu_pnl_lst_check(id, 2), 0);
  EXPECT_EQ(windows.dvu_pnl_lst_check(id, 1), -1) << "the function is part of the address";
  id = 999;
  EXPECT_EQ(windows.dvu_pnl_lst_check(id, 1), -1);

  psm.dvc_pnl_psm_change_function(2);
  windows.dvu_pnl_lst_get_list(all);
  ASSERT_EQ(all.size(), 3u);
  EXPECT_EQ(all.back().contents_id, 300);
  id = 300;
  EXPECT_EQ(windows.dvu_pnl_lst_check(id, 2), 2);
}

TEST_F(PageStack, ExtPageTraitsNameGroupAndStateOfAnOpenPage) {
  psm.dvc_pnl_psm_open(6, 3, 12, 100, 1);
  int group = -1;
  int state = -1;
  ASSERT_EQ(psm.dvc_pnl_psm_get_ext_page_traits(100, 3, group, state), 0);
  EXPECT_EQ(group, 6);
  EXPECT_EQ(state, 12);
  EXPECT_NE(psm.dvc_pnl_psm_get_ext_page_traits(100, 1, group, state), 0);
  EXPECT_NE(psm.dvc_pnl_psm_get_ext_page_traits(101, 3, group, state), 0);
}

TEST_F(PageStack, ACreatorAnsweringNothingFailsTheOpenAndLeavesNoTrace) {
  refused.insert(100);
  EXPECT_NE(psm.dvc_pnl_psm_open(1, 1, 0, 100, 1), 0);
  EXPECT_TRUE(pages_of(1).empty());
  EXPECT_FALSE(has_label(1, 100));
  EXPECT_EQ(gui_of(100, 1), nullptr);
  EXPECT_TRUE(trace_sink::instance().lines().empty());
  EXPECT_EQ(page_stack_log(), (std::vector<std::string>{"open 1 1 0 100 1"}));

  set_contents_creator(nullptr);
  EXPECT_NE(psm.dvc_pnl_psm_open(1, 1, 0, 200, 1), 0);
  EXPECT_TRUE(pages_of(1).empty());
}

TEST_F(PageStack, ALoadThatOpensAChildKeepsTheListConsistent) {
  on_load[100] = [this] { psm.dvc_pnl_psm_open(1, 1, 0, 200, 1); };
  on_load[200] = [this] { psm.dvc_pnl_psm_open(1, 1, 0, 300, 1); };
  ASSERT_EQ(psm.dvc_pnl_psm_open(1, 1, 0, 100, 1), 0);
  EXPECT_EQ(ids_of(1), (std::vector<int>{100, 200, 300}));
  EXPECT_EQ(calls,
            (std::vector<std::string>{"create(active function 1) 100", "unlock 100", "load 100",
                                      "create(active function 1) 200", "unlock 200",
                                      "deactivate 100", "load 200", "create(active function 1) 300",
                                      "unlock 300", "deactivate 200", "load 300"}));
}

TEST_F(PageStack, ALoadThatClosesThePageBelowLeavesOnlyItself) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  on_load[200] = [this] { psm.dvc_pnl_psm_close(1, 1, 0, 100); };
  calls.clear();
  ASSERT_EQ(psm.dvc_pnl_psm_open(1, 1, 0, 200, 1), 0);
  EXPECT_EQ(ids_of(1), (std::vector<int>{200}));
  EXPECT_EQ(calls,
            (std::vector<std::string>{"create(active function 1) 200", "unlock 200",
                                      "deactivate 100", "load 200", "close 100", "destroy 100"}));
}

TEST_F(PageStack, ACloseHandlerThatOpensAPageSuppressesTheActivationOfTheUncoveredOne) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  psm.dvc_pnl_psm_open(1, 1, 0, 200, 1);
  on_close[200] = [this] { psm.dvc_pnl_psm_open(1, 1, 0, 300, 1); };
  calls.clear();
  ASSERT_EQ(psm.dvc_pnl_psm_close(1, 1, 0, 200), 0);
  EXPECT_EQ(ids_of(1), (std::vector<int>{100, 300}));
  EXPECT_EQ(calls,
            (std::vector<std::string>{"close 200", "create(active function 1) 300", "unlock 300",
                                      "deactivate 100", "load 300", "destroy 200"}));
}

// ---- keyboard convertor ----

TEST(KeyboardConvertor, MapsKeyboardCodesToHardKeys) {
  struct row {
    const char* what;
    std::vector<test::entry> source;
    int hkey;
  };
  const std::vector<row> rows{
      {"enter", {{"0.4166", 13L}}, 40},
      {"escape is back", {{"0.4166", 27L}}, 61},
      {"backspace is clear", {{"0.4166", 8L}}, 38},
      {"digit 0", {{"0.4166", static_cast<long>('0')}}, 45},
      {"digit 5", {{"0.4166", static_cast<long>('5')}}, 50},
      {"digit 9", {{"0.4166", static_cast<long>('9')}}, 54},
      {"below the digits", {{"0.4166", static_cast<long>('/')}}, -1},
      {"above the digits", {{"0.4166", static_cast<long>(':')}}, -1},
      {"a letter", {{"0.4166", static_cast<long>('A')}}, -1},
      {"release", {{"0.4166", 13L}, {"0.4167", 1L}}, 87},
      {"release without code", {{"0.4167", 1L}}, 87},
      {"not a release", {{"0.4166", 13L}, {"0.4167", 0L}}, 40},
      {"no code", {}, -1},
      {"code as text", {{"0.4166", "13"}}, -1},
  };
  for (const row& r : rows) {
    dvc_pnl_evh_panel_event e(1071);
    e.dvc_pnl_evh_set_event_source_valueset(test::make_valueset(r.source));
    EXPECT_EQ(dvu_pnl_gcp_keyboard_convertor::key_to_hkey(e), r.hkey) << r.what;
  }
}

// ---- devices ----

class Devices : public ::testing::Test {
 protected:
  void SetUp() override { reset(); }
  void TearDown() override { reset(); }
  dvu_pnl_dec_lcd_controller& lcd = *dvu_pnl_dec_lcd_controller::dvu_pnl_dec_get_instance();
  dvu_pnl_dec_led_controller& led = *dvu_pnl_dec_led_controller::dvu_pnl_dec_get_instance();
  dvu_pnl_dec_buzzer_controller& buzzer =
      *dvu_pnl_dec_buzzer_controller::dvu_pnl_dec_get_instance();
  dvu_pnl_dec_key_controller& keys = *dvu_pnl_dec_key_controller::dvu_pnl_dec_get_instance();
};

TEST_F(Devices, LcdCallsAreRecordedWithACopyOfTheFrame) {
  std::vector<unsigned char> img(kFrameBytes, 0x11);
  ASSERT_EQ(lcd.dvu_pnl_dec_set_lcd_bitmap_data(img.data()), 1);
  img[0] = 0x22;
  ASSERT_EQ(lcd.dvu_pnl_dec_set_lcd_bitmap_data_lock_screen(img.data(), 2, 1), 1);
  img[0] = 0x33;
  ASSERT_EQ(lcd.dvu_pnl_dec_set_lcd_reverse_blink_data(1, 2, 3, 4, 9), 1);
  ASSERT_EQ(lcd.dvu_pnl_dec_set_lcd_reverse_blink_end(), 1);

  const device_record& d = devices();
  ASSERT_EQ(d.frames.size(), 1u);
  EXPECT_EQ(d.frames[0][0], 0x11);
  EXPECT_EQ(d.frames[0][kFrameBytes - 1], 0x11);
  ASSERT_EQ(d.lock_screen_frames.size(), 1u);
  EXPECT_EQ(d.lock_screen_frames[0].image[0], 0x22);
  EXPECT_EQ(d.lock_screen_frames[0].source, 2);
  EXPECT_EQ(d.lock_screen_frames[0].exist, 1);
  ASSERT_EQ(d.blinks.size(), 1u);
  EXPECT_EQ(d.blinks[0].x, 1);
  EXPECT_EQ(d.blinks[0].width, 2);
  EXPECT_EQ(d.blinks[0].y, 3);
  EXPECT_EQ(d.blinks[0].height, 4);
  EXPECT_EQ(d.blinks[0].mode, 9);
  EXPECT_EQ(d.blink_ends, 1);
  EXPECT_EQ(lcd.dvu_pnl_dec_set_lcd_bitmap_data(nullptr), 0);
  EXPECT_EQ(d.frames.size(), 1u);
}

TEST_F(Devices, LedCallsAreRecordedAndTheStatusListKeepsTheLatestPerLed) {
  ASSERT_EQ(led.dvu_pnl_dec_set_led_status(8, 1), 1);
  ASSERT_EQ(led.dvu_pnl_dec_set_led_status(3, 2), 1);
  ASSERT_EQ(led.dvu_pnl_dec_set_led_status(8, 0), 1);
  EXPECT_EQ(devices().led_calls.size(), 3u);
  std::vector<DVU_PNL_DEC_LED_STATUS> list{{99, 99}};
  ASSERT_EQ(led.dvu_pnl_dec_get_led_status(list), 1);
  ASSERT_EQ(list.size(), 2u);
  EXPECT_EQ(list[0].id, 8);
  EXPECT_EQ(list[0].status, 0);
  EXPECT_EQ(list[1].id, 3);
  EXPECT_EQ(list[1].status, 2);
}

TEST_F(Devices, BuzzerAndKeyControllerRecordInOrder) {
  for (int p : {1, 2, 12})
    ASSERT_EQ(buzzer.dvu_pnl_dec_set_buzzer_control(p), 1);
  for (int c : {75, 159})
    ASSERT_EQ(keys.dvu_pnl_dec_throw_key_event(c), 1);
  EXPECT_EQ(devices().buzzer, (std::vector<int>{1, 2, 12}));
  EXPECT_EQ(devices().panel_commands, (std::vector<int>{75, 159}));
}

TEST_F(Devices, ARefusingControllerAnswersZeroAndRecordsNothing) {
  std::vector<unsigned char> img(kFrameBytes, 0);
  struct row {
    const char* what;
    bool device_record::*flag;
    std::function<int()> call;
  };
  const std::vector<row> rows{
      {"lcd frame", &device_record::refuse_lcd,
       [&] { return lcd.dvu_pnl_dec_set_lcd_bitmap_data(img.data()); }},
      {"lcd lock frame", &device_record::refuse_lcd,
       [&] { return lcd.dvu_pnl_dec_set_lcd_bitmap_data_lock_screen(img.data(), 1, 1); }},
      {"lcd blink", &device_record::refuse_lcd,
       [&] { return lcd.dvu_pnl_dec_set_lcd_reverse_blink_data(0, 1, 0, 1, 9); }},
      {"lcd blink end", &device_record::refuse_lcd,
       [&] { return lcd.dvu_pnl_dec_set_lcd_reverse_blink_end(); }},
      {"led set", &device_record::refuse_led, [&] { return led.dvu_pnl_dec_set_led_status(8, 1); }},
      {"led get", &device_record::refuse_led,
       [&] {
         std::vector<DVU_PNL_DEC_LED_STATUS> list;
         return led.dvu_pnl_dec_get_led_status(list);
       }},
      {"buzzer", &device_record::refuse_buzzer,
       [&] { return buzzer.dvu_pnl_dec_set_buzzer_control(1); }},
      {"key", &device_record::refuse_key, [&] { return keys.dvu_pnl_dec_throw_key_event(75); }},
  };
  for (const row& r : rows) {
    reset();
    devices().*r.flag = true;
    EXPECT_EQ(r.call(), 0) << r.what;
    const device_record& d = devices();
    EXPECT_TRUE(d.frames.empty() && d.lock_screen_frames.empty() && d.blinks.empty() &&
                d.blink_ends == 0 && d.led_calls.empty() && d.led_status.empty() &&
                d.buzzer.empty() && d.panel_commands.empty())
        << r.what;
    devices().*r.flag = false;
    EXPECT_EQ(r.call(), 1) << r.what << " takes calls again once the flag is cleared";
  }
}

// ---- reset ----

class HostReset : public PageStack {};

TEST_F(HostReset, ReturnsEveryPartToAFreshRunWithoutLeaks) {
  psm.dvc_pnl_psm_open(1, 1, 0, 100, 1);
  psm.dvc_pnl_psm_open(1, 1, 0, 200, 1);
  psm.dvc_pnl_psm_open(1, 2, 0, 300, 1);
  psm.dvc_pnl_psm_change_function(5);
  std::vector<std::string> heard;
  recording_handler h("h", heard);
  dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_add_handler(5, &h);
  dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_add_after_event_handler(&h);
  dvc_pnl_evh_event_handler::dvc_pnl_evh_instance()->dvc_pnl_evm_notify_panel_event(
      dvc_pnl_evh_panel_event(5));
  OSW_Timer_Control timer(32768);
  host_clock::instance().advance(70);
  timer.start(10, record_expiry, 1, 0, 0, 0);
  dvu_pnl_dec_buzzer_controller::dvu_pnl_dec_get_instance()->dvu_pnl_dec_set_buzzer_control(1);
  devices().refuse_lcd = true;
  dvc_pnl_cmm_value v;
  v.dvc_pnl_cmm_set_int(1);
  host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
      DVC_PNL_PDM_CEH_OPERATION_SOURCE, v);
  emwGENTrcPrintf(8706, 258, 2, "%s", "a line");
  fail_value_op(value_op::value_read);
  calls.clear();
  ASSERT_EQ(live, 3);

  reset();

  EXPECT_EQ(live, 0) << "the contents objects were destroyed";
  for (const std::string& c : calls)
    EXPECT_EQ(c.rfind("destroy ", 0), 0u) << "no handler but the destructor ran: " << c;
  EXPECT_TRUE(pages_of(1).empty());
  EXPECT_TRUE(pages_of(2).empty());
  EXPECT_FALSE(has_label(1, 100));
  EXPECT_EQ(psm.dvc_pnl_psm_get_function(), 1);
  EXPECT_TRUE(page_stack_log().empty());
  EXPECT_EQ(posted_count(), 0u);
  EXPECT_EQ(subscription_count(5, &h), 0);
  deliver(dvc_pnl_evh_panel_event(5));
  EXPECT_TRUE(heard.empty()) << "the after-event handler is gone too";
  EXPECT_EQ(host_clock::instance().now_ms(), 0u);
  EXPECT_EQ(host_clock::instance().pending(), 0u);
  EXPECT_FALSE(timer.running());
  EXPECT_TRUE(devices().buzzer.empty());
  EXPECT_FALSE(devices().refuse_lcd);
  EXPECT_EQ(host_data_manager::instance().application_entry_count(), 0u);
  EXPECT_TRUE(trace_sink::instance().lines().empty());
  long out = 0;
  EXPECT_EQ(v.dvc_pnl_cmm_get_int(out), 0) << "the injected read failure was disarmed";

  // The creator stays wired: pages open again after a reset.
  EXPECT_EQ(psm.dvc_pnl_psm_open(1, 1, 0, 100, 1), 0);
  EXPECT_EQ(live, 1);
}

}  // namespace
}  // namespace orvanta::host
