// Event proxy: the one door between the framework's event delivery and the screens, with the
// timer table, the placing of pages and the closes deferred to the end of a dispatch.
#pragma once

#include <atomic>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "orvanta/platform/dvc_pnl_ceh_contents_interface.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"
#include "orvanta/platform/osw.h"

namespace orvanta {

class dvc_pnl_ceh_contents_base;
class dvu_pnl_wmg_window_controller;

// Where a page goes: one cell of the page stack matrix and the id.
struct CONTENTS_OPEN_INFO {
  int group;
  int function;
  int state;
  int contents_id;
};

// A deferred page operation; `op` 0 is a close, the only kind there is.
struct CONTENTS_OP_INFO {
  int group;
  int function;
  int state;
  int contents_id;
  int op;
};

// Which relative dvc_pnl_ceh_get_contents looks for.
enum DVC_PNL_CEH_GET_CONTENTS : int {
  DVC_PNL_CEH_GET_CONTENTS_PARENT = 0,
  DVC_PNL_CEH_GET_CONTENTS_CHILD = 1,
  DVC_PNL_CEH_GET_CONTENTS_ACTIVE = 2,
  DVC_PNL_CEH_GET_CONTENTS_SEARCH = 3,
};

// Panel events the proxy itself acts on.
inline constexpr int DVC_PNL_CEH_EVENT_TIMER = 1039;
inline constexpr int DVC_PNL_CEH_EVENT_USB_KEYBOARD = 1071;
inline constexpr int DVC_PNL_CEH_EVENT_REMOTE_PANEL_CONNECTION = 1496;
inline constexpr int DVC_PNL_CEH_EVENT_REMOTE_PANEL_CONNECTION_2 = 1501;

// Nodes of the timer event's data: the set under (0, 2878) holds the handle and the period.
inline constexpr unsigned long DVC_PNL_CEH_NODE_TIMER_INFO = 2878;
inline constexpr unsigned long DVC_PNL_CEH_NODE_TIMER_HANDLE = 2879;
inline constexpr unsigned long DVC_PNL_CEH_NODE_TIMER_PERIOD = 2880;

// A run of 0 ms expiries of one timer with no input and no clock advance between them is a loop
// that would keep the panel from ever waiting; at this count the timer is no longer delivered.
inline constexpr int DVC_PNL_CEH_ZERO_TIMER_LOOP_LIMIT = 100;

// One row of the timer table. `id` -1 marks a free row; `handle` is the number of the latest
// start, so that an expiry of an earlier start finds no row.
struct timer_info {
  timer_info() : control(32768) {}
  int id = -1;
  int handle = 0;
  int period = 0;  // ms of the latest start, for inspection
  OSW_Timer_Control control;
  dvc_pnl_ceh_contents_interface* owner = nullptr;
};

class dvc_pnl_ceh_event_proxy : public dvu_pnl_evd_event_handler {
 public:
  // The singleton; created on first use.
  static dvc_pnl_ceh_event_proxy* dvc_pnl_ceh_get_instance();

  ~dvc_pnl_ceh_event_proxy() override;
  dvc_pnl_ceh_event_proxy(const dvc_pnl_ceh_event_proxy&) = delete;
  dvc_pnl_ceh_event_proxy& operator=(const dvc_pnl_ceh_event_proxy&) = delete;

  // ---- called by the framework ----

  // Subscribes the proxy to the panel events the screens answer. Called once before delivery.
  void dvc_pnl_ceh_event_initialize();
  // A subscribed panel event. 0 when a contents consumed it, 1 otherwise or without the lock.
  int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) override;
  // A key or GUI event for the top page. 0 when consumed, 1 otherwise or without the lock.
  int dvc_pnl_ceh_gui_event_proc(const dvc_pnl_evh_panel_event& event);
  // The contents manager of the remote-operation lock screen, or nullptr when there is none.
  dvc_pnl_cmg_contents_manager* dvc_pnl_ceh_get_lock_screen_instance();

  // ---- called by the contents ----

  int dvc_pnl_ceh_get_active_func();
  dvc_pnl_ceh_contents_interface* dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS mode, int id,
                                                           int func);
  // Places and opens a page at once, also inside a dispatch. `opener` names the asking page and
  // takes no part in the placing. Always 0: a failed open is traced.
  int dvc_pnl_ceh_open_contents(CONTENTS_OPEN_INFO& open, CONTENTS_OPEN_INFO& opener);
  // The same in the remote panel layer.
  int dvc_pnl_ceh_open_contents_remote(CONTENTS_OPEN_INFO& open, CONTENTS_OPEN_INFO& opener);
  // Cancels the page's timers and closes it: at the end of the dispatch when one runs, else at
  // once. -1 when the window list doesn't hold the page.
  int dvc_pnl_ceh_close_contents(CONTENTS_OPEN_INFO& info);
  // A close for a page of any function, by id alone.
  int dvc_pnl_ceh_remove_contents_in_page_stack(int id, int func);
  // ms >= 0 (re)starts timer `id` of `owner`; ms < 0 stops it, or all of owner's timers for -1.
  void dvc_pnl_ceh_set_timer(int id, int ms, dvc_pnl_ceh_contents_interface* owner);
  // 1 when the page belongs in the remote panel layer, with its order in `order` and the record
  // corrected to that layer; 0 otherwise.
  int dvc_pnl_ceh_is_remote_panel_page_state(CONTENTS_OPEN_INFO& info, unsigned& order);
  // 1 when a deferred close of `id` is waiting.
  int check_delete_list(int id);
  // 1 when the page of `contents` still has its page scope; 6 for a null pointer.
  int is_survive_screen(dvc_pnl_ceh_contents_base* contents);
  // The remote-operation lock screen lives outside the page stack; until it is built these
  // answer as "no lock screen": open refuses with -1, close has nothing to close.
  int dvc_pnl_ceh_open_rop_lock_screen(int id);
  void dvc_pnl_ceh_close_rop_lock_screen();

  // ---- called on a timer thread ----

  // Posts event 1039 with the handle and period; touches nothing of the proxy.
  static void dvc_pnl_ceh_timer_proc(OSW_Timer_Control& control, int handle, int period, int a3,
                                     int a4);

  // ---- tests and the runtime ----

  // Forgets deferred closes, stops and drops every timer, clears the statics and the 0 ms loop
  // guard. Contents that are still open must be gone first: their timers are dropped.
  void reset_for_tests();
  // Rows of the timer table that run now (id not -1), for inspection.
  int running_timer_count(const dvc_pnl_ceh_contents_interface* owner) const;
  // The period of owner's timer `id` while it runs, else -1.
  int timer_period(const dvc_pnl_ceh_contents_interface* owner, int id) const;

  // 1 while a dispatch runs.
  static int event_dispatch_;
  // 1 while output to the LCD is held back (a screen that closes to open another).
  static int redraw_pausing_;
  // The number the next timer start gets.
  static int timer_hdl_;
  // The remote-operation lock screen: its window controller and contents manager.
  static dvu_pnl_wmg_window_controller* lockscrn_win_controller_;
  static dvc_pnl_cmg_contents_manager* lockscrn_cnts_mngr_;

 private:
  dvc_pnl_ceh_event_proxy();

  static std::atomic<dvc_pnl_ceh_event_proxy*> s_instance_;

  // Carries out the deferred closes in the order they were asked for.
  void dvc_pnl_ceh_waitting_contents_op();
  // Delivers a timer expiry to its owner, or drops it when the timer was stopped or restarted.
  void dvc_pnl_ceh_timeup(const dvc_pnl_evh_panel_event& event);
  // The shared body of the two closes; `caller` names the operation in traces.
  int close_page(const char* caller, const CONTENTS_OPEN_INFO& info);
  // The first row of the table for (owner, id), or for a handle; nullptr when there is none.
  timer_info* find_timer(const dvc_pnl_ceh_contents_interface* owner, int id);
  timer_info* find_timer_by_handle(int handle, int id);
  // Input or a clock advance ends every run of 0 ms expiries.
  void note_input();
  // Counts a 0 ms expiry; true when the timer runs in a loop and is no longer delivered.
  bool zero_timer_loop(const timer_info& timer);

  std::vector<CONTENTS_OP_INFO> contents_ops_;
  OSW_Mutex_Semaphore lock_;
  std::vector<std::unique_ptr<timer_info>> timers_;

  // 0 ms loop guard: expiries per (owner, id) since the last input, at the clock time below.
  std::map<std::pair<const dvc_pnl_ceh_contents_interface*, int>, int> zero_runs_;
  unsigned long zero_runs_time_ = 0;
};

}  // namespace orvanta
