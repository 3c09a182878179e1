// Event proxy: dispatch of panel and GUI events, deferred closes, page placing and the timer table.
#include "contents/dvc_pnl_ceh_event_proxy.h"

#include <initializer_list>
#include <iterator>

#include "contents/dvc_pnl_ceh_contents_base.h"
#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// The panel events the screens answer, in the order of subscription.
constexpr int kEventTable[] = {
    690, 880, 123, 222, 117, 124, 126,  224,  118,  149,  148, 1039, 584,  687,  132,  120, 247,
    219, 113, 264, 263, 262, 688, 122,  249,  221,  115,  190, 886,  1044, 843,  844,  213, 16,
    90,  92,  730, 184, 186, 187, 183,  185,  988,  271,  152, 110,  854,  626,  1029, 121, 248,
    220, 114, 159, 158, 583, 19,  1213, 1214, 1071, 1068, 268, 1318, 1319, 1501, 1496,
};
static_assert(std::size(kEventTable) == 66, "the proxy answers 66 panel events");

// The remote panel's own information page is placed at a fixed height of its layer.
constexpr unsigned kRemotePanelInformationOrder = 120050;

// Cells of the page stack that the placing rules name.
constexpr int kStateAlert = 1;
constexpr int kGroupRemote = 6;
constexpr int kGroupRemoteFixed = 7;
constexpr int kStateRemote = 12;
constexpr int kStateRemoteFixed = 13;

dvc_pnl_psm_page_stack_matrix* psm() {
  return dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
}

dvu_pnl_wmg_list_controller* windows() {
  return dvu_pnl_wmg_list_controller::get_instance();
}

dvc_pnl_ceh_contents_interface* contents_of(const DVU_PNL_WMG_WINDOW_TRAITS& window) {
  return window.manager == nullptr ? nullptr : window.manager->dvc_pnl_cmg_get_contents();
}

int class_group(int contents_id) {
  return dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance()
      ->dvc_pnl_ceh_get_contents_class_group(contents_id);
}

// The windows that still live, bottom first; empty when the list can't be had.
std::vector<DVU_PNL_WMG_WINDOW_TRAITS> survive_list() {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list;
  dvu_pnl_wmg_list_controller* wmg = windows();
  if (wmg == nullptr) {
    CEH_ERR("dvu_pnl_wmg_list_controller is NULL");
    return list;
  }
  int ret = wmg->dvu_pnl_lst_create_survive_list(list);
  if (ret != 0) {
    CEH_ERR("dvu_pnl_lst_create_survive_list ret_code = %d", ret);
    list.clear();
  }
  return list;
}

// Every window shown now, bottom first; empty when the list can't be had.
std::vector<DVU_PNL_WMG_WINDOW_TRAITS> all_windows() {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list;
  dvu_pnl_wmg_list_controller* wmg = windows();
  if (wmg == nullptr) {
    CEH_ERR("dvu_pnl_wmg_list_controller is NULL");
    return list;
  }
  int ret = wmg->dvu_pnl_lst_get_list(list);
  if (ret != 0) {
    CEH_ERR("dvu_pnl_lst_get_list ret_code = %d", ret);
    list.clear();
  }
  return list;
}

// An integer of the application scope; a failed read counts as 0.
int application_flag(const std::string& key) {
  int value = 0;
  (void)dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(key, value);
  return value;
}

// Moves a record into the remote panel layer: group 6 and state 12 unless it is there already.
void force_remote_layer(CONTENTS_OPEN_INFO& info) {
  if (info.group != kGroupRemote && info.group != kGroupRemoteFixed)
    info.group = kGroupRemote;
  if (info.state != kStateRemote && info.state != kStateRemoteFixed)
    info.state = kStateRemote;
}

// Opens the page through the page stack and traces the answer; a failure is not passed on.
void psm_open(const char* caller, const CONTENTS_OPEN_INFO& info, unsigned order) {
  dvc_pnl_psm_page_stack_matrix* stack = psm();
  if (stack == nullptr) {
    CEH_ERR("dvc_pnl_psm_page_stack_matrix is NULL");
    return;
  }
  int ret = stack->dvc_pnl_psm_open(info.group, info.function, info.state, info.contents_id, order);
  if (ret != 0) {
    CEH_ERR("dvc_pnl_ceh_event_proxy::%s dvc_pnl_psm_open(%d,%d,%d,%d,%u) :%d", caller, info.group,
            info.function, info.state, info.contents_id, order, ret);
  } else {
    CEH_TRC("dvc_pnl_ceh_event_proxy::%s dvc_pnl_psm_open(%d,%d,%d,%d,%u) :%d", caller, info.group,
            info.function, info.state, info.contents_id, order, ret);
  }
}

void psm_close(const char* caller, int group, int function, int state, int contents_id) {
  dvc_pnl_psm_page_stack_matrix* stack = psm();
  if (stack == nullptr) {
    CEH_ERR("dvc_pnl_psm_page_stack_matrix is NULL");
    return;
  }
  int ret = stack->dvc_pnl_psm_close(group, function, state, contents_id);
  if (ret != 0) {
    CEH_ERR("dvc_pnl_ceh_event_proxy::%s dvc_pnl_psm_close(%d,%d,%d,%d) :%d", caller, group,
            function, state, contents_id, ret);
  } else {
    CEH_TRC("dvc_pnl_ceh_event_proxy::%s dvc_pnl_psm_close(%d,%d,%d,%d) :%d", caller, group,
            function, state, contents_id, ret);
  }
}

// The full key (0, 2878) and the keys below it.
dvc_pnl_cmm_key timer_key(std::initializer_list<unsigned long> tail) {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_add_key(key, 0);
  for (unsigned long node : tail)
    dvc_pnl_ceh_contents_hdl_add_key(key, node);
  return key;
}

}  // namespace

std::atomic<dvc_pnl_ceh_event_proxy*> dvc_pnl_ceh_event_proxy::s_instance_{nullptr};
int dvc_pnl_ceh_event_proxy::event_dispatch_ = 0;
int dvc_pnl_ceh_event_proxy::redraw_pausing_ = 0;
int dvc_pnl_ceh_event_proxy::timer_hdl_ = 0;
dvu_pnl_wmg_window_controller* dvc_pnl_ceh_event_proxy::lockscrn_win_controller_ = nullptr;
dvc_pnl_cmg_contents_manager* dvc_pnl_ceh_event_proxy::lockscrn_cnts_mngr_ = nullptr;

dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_event_proxy() : lock_(1) {}

// Frees the tables only: the proxy lives to the end of the process and timers are not touched.
dvc_pnl_ceh_event_proxy::~dvc_pnl_ceh_event_proxy() = default;

dvc_pnl_ceh_event_proxy* dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance() {
  dvc_pnl_ceh_event_proxy* instance = s_instance_.load(std::memory_order_acquire);
  if (instance == nullptr) {
    OSW_Thread_Guard guard;
    // A second test inside the guard: another thread may have created it meanwhile.
    instance = s_instance_.load(std::memory_order_relaxed);
    if (instance == nullptr) {
      instance = new dvc_pnl_ceh_event_proxy();
      s_instance_.store(instance, std::memory_order_release);
    }
  }
  return instance;
}

void dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_event_initialize() {
  dvu_pnl_evd_event_dispatcher* dispatcher =
      dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance();
  if (dispatcher == nullptr) {
    CEH_ERR("dvu_pnl_evd_event_dispatcher is NULL");
    return;
  }
  for (int id : kEventTable) {
    int ret = dispatcher->dvu_pnl_evd_add_handler(dvc_pnl_evh_event_id(id), this);
    if (ret != 0)
      CEH_ERR("dvu_pnl_evd_add_handler id:%d ret_code = %d", id, ret);
  }
}

// ---------------------------------------------------------------- the two entries

int dvc_pnl_ceh_event_proxy::dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) {
  const int id = event.dvc_pnl_evh_get_id();
  if (lock_.request(-1) != 0) {
    CEH_ERR("dvu_pnl_evd_notify lock_ request error id:%d", id);
    return 1;
  }
  event_dispatch_ = 1;
  if (id != DVC_PNL_CEH_EVENT_TIMER)
    note_input();
  dvc_pnl_ceh_waitting_contents_op();

  int result = 0;
  if (id == DVC_PNL_CEH_EVENT_TIMER) {
    dvc_pnl_ceh_timeup(event);
  } else if (id == DVC_PNL_CEH_EVENT_USB_KEYBOARD) {
    std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list = all_windows();
    dvc_pnl_ceh_contents_interface* top = list.empty() ? nullptr : contents_of(list.back());
    if (top != nullptr) {
      dvc_pnl_evh_panel_event copy(event);
      top->dvc_pnl_ceh_lock();
      result = top->dvc_pnl_ceh_on_usb_keyboard_base(copy);
      top->dvc_pnl_ceh_unlock();
    }
  } else {
    // A private copy of the list: closes are queued and opens land above the walk.
    std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list = survive_list();
    bool first = true;
    for (auto it = list.rbegin(); it != list.rend(); ++it) {
      dvc_pnl_ceh_contents_interface* contents = contents_of(*it);
      if (contents == nullptr)
        continue;
      contents->dvc_pnl_ceh_lock();
      dvc_pnl_evh_panel_event copy(event);
      if (first && (id == DVC_PNL_CEH_EVENT_REMOTE_PANEL_CONNECTION ||
                    id == DVC_PNL_CEH_EVENT_REMOTE_PANEL_CONNECTION_2)) {
        // The remote panel icons of the top page follow the connection before anyone answers.
        if (auto* hdl = dynamic_cast<dvc_pnl_ceh_contents_hdl_base*>(contents))
          hdl->draw();
      }
      first = false;
      int answer = contents->dvc_pnl_ceh_on_panel_event(copy);
      contents->dvc_pnl_ceh_unlock();
      if (answer != 0) {
        result = answer;
        break;
      }
    }
  }

  dvc_pnl_ceh_waitting_contents_op();
  lock_.release();
  event_dispatch_ = 0;
  return result == 1 ? 0 : 1;
}

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_gui_event_proc(const dvc_pnl_evh_panel_event& event) {
  if (lock_.request(-1) != 0) {
    CEH_ERR("dvc_pnl_ceh_gui_event_proc lock_ request error id:%d", event.dvc_pnl_evh_get_id());
    return 1;
  }
  event_dispatch_ = 1;
  note_input();
  dvc_pnl_ceh_waitting_contents_op();
  dvc_pnl_evh_panel_event copy(event);

  int result = 0;
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list = all_windows();
  dvc_pnl_ceh_contents_interface* top = list.empty() ? nullptr : contents_of(list.back());
  if (top != nullptr) {
    top->dvc_pnl_ceh_lock();
    bool to_lock_screen = false;
    const int exist = application_flag(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST);
    const int display = application_flag(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY);
    if (exist != 0 && display == 1) {
      // The source is recorded for the top page even when the key goes to the lock screen.
      if (auto* base = dynamic_cast<dvc_pnl_ceh_contents_base*>(top)) {
        base->dvc_pnl_ceh_set_operation_source(event);
        const int source = base->dvc_pnl_ceh_get_operation_source();
        to_lock_screen = (exist == 2 && source == DVC_PNL_CEH_OPERATION_SOURCE_REMOTE) ||
                         (exist == 1 && source == DVC_PNL_CEH_OPERATION_SOURCE_LOCAL);
      }
    }
    if (to_lock_screen) {
      // The locked-out side never reaches the real screen. The lock screen's contents runs
      // without its own lock, on the strength of the dispatch lock; without one the key is
      // dropped.
      dvc_pnl_ceh_contents_interface* lock_screen =
          lockscrn_cnts_mngr_ == nullptr ? nullptr
                                         : lockscrn_cnts_mngr_->dvc_pnl_cmg_get_contents();
      if (lock_screen != nullptr) {
        result = lock_screen->dvc_pnl_ceh_on_key_base(copy);
      } else {
        CEH_ERR("lock screen contents is NULL: key %d dropped", event.dvc_pnl_evh_get_id());
      }
    } else {
      result = top->dvc_pnl_ceh_on_key_base(copy);
    }
    top->dvc_pnl_ceh_unlock();
  }

  dvc_pnl_ceh_waitting_contents_op();
  lock_.release();
  event_dispatch_ = 0;
  return result == 1 ? 0 : 1;
}

dvc_pnl_cmg_contents_manager* dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_lock_screen_instance() {
  return lockscrn_cnts_mngr_;
}

// ---------------------------------------------------------------- deferred closes

void dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_waitting_contents_op() {
  // By index: a close handler may queue further closes, which are carried out in this run too.
  // The records stay in the list until all are done, so a page being closed still reads as dying.
  for (std::size_t i = 0; i < contents_ops_.size(); ++i) {
    const CONTENTS_OP_INFO op = contents_ops_[i];
    psm_close("dvc_pnl_ceh_waitting_contents_op", op.group, op.function, op.state, op.contents_id);
  }
  contents_ops_.clear();
}

int dvc_pnl_ceh_event_proxy::check_delete_list(int id) {
  for (const CONTENTS_OP_INFO& op : contents_ops_) {
    if (op.contents_id == id)
      return 1;
  }
  return 0;
}

int dvc_pnl_ceh_event_proxy::close_page(const char* caller, const CONTENTS_OPEN_INFO& info) {
  dvu_pnl_wmg_list_controller* wmg = windows();
  if (wmg == nullptr) {
    CEH_ERR("dvu_pnl_wmg_list_controller is NULL");
    return -1;
  }
  int id = info.contents_id;
  const int position = wmg->dvu_pnl_lst_check(id, info.function);
  if (position == -1) {
    CEH_ERR("dvc_pnl_ceh_event_proxy::%s dvu_pnl_lst_check error id:%d func:%d", caller,
            info.contents_id, info.function);
    return -1;
  }
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list = all_windows();
  dvc_pnl_ceh_contents_interface* contents =
      position >= 0 && static_cast<std::size_t>(position) < list.size()
          ? contents_of(list[position])
          : nullptr;
  if (contents == nullptr) {
    CEH_ERR("dvc_pnl_ceh_event_proxy::%s dvc_pnl_cmg_get_contents error id:%d func:%d", caller,
            info.contents_id, info.function);
    return -1;
  }
  // A dying page gets no more expiries, even while it lives on to the end of the dispatch.
  dvc_pnl_ceh_set_timer(-1, -1, contents);

  if (event_dispatch_ != 0) {
    contents_ops_.push_back({info.group, info.function, info.state, info.contents_id, 0});
  } else if (lock_.request(0) == 0) {
    psm_close(caller, info.group, info.function, info.state, info.contents_id);
    lock_.release();
  }
  // Otherwise another thread dispatches right now; the close is dropped.
  return 0;
}

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_close_contents(CONTENTS_OPEN_INFO& info) {
  unsigned order = 0;
  // Only for the correction of the record: a page of the remote layer closes in that layer.
  (void)dvc_pnl_ceh_is_remote_panel_page_state(info, order);
  return close_page("dvc_pnl_ceh_close_contents", info);
}

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_remove_contents_in_page_stack(int id, int func) {
  dvc_pnl_psm_page_stack_matrix* stack = psm();
  if (stack == nullptr) {
    CEH_ERR("dvc_pnl_psm_page_stack_matrix is NULL");
    return -1;
  }
  CONTENTS_OPEN_INFO info{0, func, 0, id};
  int ret = stack->dvc_pnl_psm_get_ext_page_traits(id, func, info.group, info.state);
  if (ret != 0) {
    CEH_ERR(
        "dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_remove_contents_in_page_stack "
        "dvc_pnl_psm_get_ext_page_traits error id:%d func:%d ret_code = %d",
        id, func, ret);
    return -1;
  }
  return close_page("dvc_pnl_ceh_remove_contents_in_page_stack", info);
}

// ---------------------------------------------------------------- placing pages

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_active_func() {
  dvc_pnl_psm_page_stack_matrix* stack = psm();
  if (stack == nullptr) {
    CEH_ERR("dvc_pnl_psm_page_stack_matrix is NULL");
    return 0;
  }
  return stack->dvc_pnl_psm_get_function();
}

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_is_remote_panel_page_state(CONTENTS_OPEN_INFO& info,
                                                                    unsigned& order) {
  if (info.state == kStateAlert)
    return 0;
  if (info.contents_id == CID_08_24_N1) {
    order = kRemotePanelInformationOrder;
    return 1;
  }
  dvc_pnl_psm_page_stack_matrix* stack = psm();
  if (stack == nullptr) {
    CEH_ERR("dvc_pnl_psm_page_stack_matrix is NULL");
    return 0;
  }
  std::vector<DVC_PNL_PSM_PAGE_DESCRIPTOR> pages;
  int ret = stack->dvc_pnl_psm_get_open_page_list(info.function, pages);
  if (ret != 0) {
    CEH_ERR("dvc_pnl_psm_get_open_page_list func:%d ret_code = %d", info.function, ret);
    return 0;
  }
  for (auto it = pages.rbegin(); it != pages.rend(); ++it) {
    if (it->state == kStateRemote || it->state == kStateRemoteFixed) {
      force_remote_layer(info);
      order = it->order;
      return 1;
    }
  }
  return 0;
}

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_open_contents(CONTENTS_OPEN_INFO& open,
                                                       CONTENTS_OPEN_INFO& /*opener*/) {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list = survive_list();
  unsigned order = 0;
  unsigned remote_order = 0;
  if (dvc_pnl_ceh_is_remote_panel_page_state(open, remote_order) == 1) {
    order = remote_order;
  } else {
    // A page goes directly above the highest window of its own group.
    for (auto it = list.rbegin(); it != list.rend(); ++it) {
      if (class_group(it->contents_id) == open.group) {
        order = it->order;
        break;
      }
    }
  }
  psm_open("dvc_pnl_ceh_open_contents", open, order + 1);
  return 0;
}

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_open_contents_remote(CONTENTS_OPEN_INFO& open,
                                                              CONTENTS_OPEN_INFO& opener) {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list = survive_list();
  unsigned order = 0;
  for (auto it = list.rbegin(); it != list.rend(); ++it) {
    const int group = class_group(it->contents_id);
    if (group == kGroupRemoteFixed || group == kGroupRemote) {
      order = it->order;
      break;
    }
  }
  if (order == 0)
    return dvc_pnl_ceh_open_contents(open, opener);
  force_remote_layer(open);
  psm_open("dvc_pnl_ceh_open_contents_remote", open, order + 1);
  return 0;
}

dvc_pnl_ceh_contents_interface* dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_contents(
    DVC_PNL_CEH_GET_CONTENTS mode, int id, int func) {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list = survive_list();
  std::size_t i = list.size();  // list.size() stands for "no such window"
  for (std::size_t k = 0; k < list.size(); ++k) {
    if (list[k].contents_id == id && list[k].function == func) {
      i = k;
      break;
    }
  }
  const bool found = i < list.size();
  switch (mode) {
    case DVC_PNL_CEH_GET_CONTENTS_PARENT:
      if (found)
        return i == 0 ? nullptr : contents_of(list[i - 1]);
      return list.empty() ? nullptr : contents_of(list.back());
    case DVC_PNL_CEH_GET_CONTENTS_CHILD:
      return found && i + 1 < list.size() ? contents_of(list[i + 1]) : nullptr;
    case DVC_PNL_CEH_GET_CONTENTS_ACTIVE:
      return list.empty() ? nullptr : contents_of(list.back());
    case DVC_PNL_CEH_GET_CONTENTS_SEARCH:
      return found ? contents_of(list[i]) : nullptr;
  }
  return nullptr;
}

int dvc_pnl_ceh_event_proxy::is_survive_screen(dvc_pnl_ceh_contents_base* contents) {
  if (contents == nullptr) {
    CEH_ERR("contents is NULL");
    return 6;
  }
  long label = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(
      PAGE_SCOPE_DATA_LABEL, contents->dvc_pnl_ceh_get_func_id(),
      static_cast<DVC_PNL_CEH_CONTENTS_ID>(contents->dvc_pnl_ceh_get_contents_id()), label);
  return ret == 0 ? 1 : 0;
}

// ---------------------------------------------------------------- lock screen

int dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_open_rop_lock_screen(int id) {
  // The lock screen's own window controller is not built yet: there is no lock screen to open.
  CEH_ERR("lock screen is not available id:%d", id);
  return -1;
}

void dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_close_rop_lock_screen() {
  // Nothing can have been opened (see dvc_pnl_ceh_open_rop_lock_screen).
  CEH_TRC("no lock screen to close");
}

// ---------------------------------------------------------------- timers

timer_info* dvc_pnl_ceh_event_proxy::find_timer(const dvc_pnl_ceh_contents_interface* owner,
                                                int id) {
  for (auto& t : timers_) {
    if (t->id != -1 && t->owner == owner && t->id == id)
      return t.get();
  }
  return nullptr;
}

timer_info* dvc_pnl_ceh_event_proxy::find_timer_by_handle(int handle, int id) {
  for (auto& t : timers_) {
    if (t->id != -1 && t->handle == handle && (id == -1 || t->id == id))
      return t.get();
  }
  return nullptr;
}

void dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_set_timer(int id, int ms,
                                                    dvc_pnl_ceh_contents_interface* owner) {
  if (owner == nullptr) {
    CEH_ERR("owner is NULL");
    return;
  }
  if (ms < 0) {
    for (auto& t : timers_) {
      if (t->owner == owner && t->id != -1 && (id == -1 || t->id == id)) {
        t->id = -1;
        t->control.stop();
      }
    }
    return;
  }
  if (id == -1) {
    // -1 marks a free row; a timer can't have it.
    CEH_ERR("timer id -1 can't be started");
    return;
  }
  timer_info* timer = find_timer(owner, id);
  if (timer != nullptr) {
    timer->control.stop();
  } else {
    for (auto& t : timers_) {
      if (t->id == -1) {
        timer = t.get();
        break;
      }
    }
    if (timer != nullptr) {
      timer->control.stop();
    } else {
      timers_.push_back(std::make_unique<timer_info>());
      timer = timers_.back().get();
    }
    timer->id = id;
    timer->owner = owner;
  }
  timer->handle = timer_hdl_++;
  timer->period = ms;
  int ret = timer->control.start(ms, dvc_pnl_ceh_timer_proc, timer->handle, ms, 0, 0);
  if (ret != 0)
    CEH_ERR("OSW_Timer_Control::start id:%d ms:%d ret_code = %d", id, ms, ret);
}

void dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_timer_proc(OSW_Timer_Control& control, int handle,
                                                     int period, int /*a3*/, int /*a4*/) {
  control.stop();
  dvc_pnl_cmm_valueset info;
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(
      info, timer_key({DVC_PNL_CEH_NODE_TIMER_INFO, DVC_PNL_CEH_NODE_TIMER_HANDLE}), handle);
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(
      info, timer_key({DVC_PNL_CEH_NODE_TIMER_INFO, DVC_PNL_CEH_NODE_TIMER_PERIOD}), period);
  dvc_pnl_cmm_valueset source;
  dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(source,
                                                    timer_key({DVC_PNL_CEH_NODE_TIMER_INFO}), info);
  dvc_pnl_evh_panel_event event(DVC_PNL_CEH_EVENT_TIMER);
  event.dvc_pnl_evh_set_event_source_valueset(source);

  dvc_pnl_evh_event_handler* handler = dvc_pnl_evh_event_handler::dvc_pnl_evh_instance();
  if (handler == nullptr) {
    CEH_ERR("dvc_pnl_evh_event_handler is NULL");
    return;
  }
  int ret = handler->dvc_pnl_evm_notify_panel_event(event);
  if (ret != 0)
    CEH_ERR("dvc_pnl_evm_notify_panel_event handle:%d ret_code = %d", handle, ret);
}

void dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_timeup(const dvc_pnl_evh_panel_event& event) {
  dvc_pnl_cmm_valueset source;
  event.dvc_pnl_evh_get_event_source_valueset(source);
  const unsigned long handle_path[] = {0, DVC_PNL_CEH_NODE_TIMER_INFO,
                                       DVC_PNL_CEH_NODE_TIMER_HANDLE};
  const unsigned long period_path[] = {0, DVC_PNL_CEH_NODE_TIMER_INFO,
                                       DVC_PNL_CEH_NODE_TIMER_PERIOD};
  long handle = 0;
  long period = 0;
  if (dvc_pnl_ceh_contents_hdl_get_int_from_valueset(handle_path, 2, 3, source, handle) != 0 ||
      dvc_pnl_ceh_contents_hdl_get_int_from_valueset(period_path, 2, 3, source, period) != 0) {
    CEH_ERR("timer event without handle or period");
    return;
  }
  timer_info* timer = find_timer_by_handle(static_cast<int>(handle), -1);
  if (timer == nullptr) {
    // Stopped or restarted after it fired: the expiry belongs to an earlier start.
    CEH_TRC("stale timer event handle:%ld", handle);
    return;
  }
  if (period == 0 && zero_timer_loop(*timer)) {
    CEH_ERR("timer loop stopped owner:%p id:%d", static_cast<const void*>(timer->owner), timer->id);
    timer->id = -1;
    timer->control.stop();
    return;
  }
  const int id = timer->id;
  dvc_pnl_ceh_contents_interface* owner = timer->owner;
  owner->dvc_pnl_ceh_lock();
  owner->dvc_pnl_ceh_on_timer_base(id, static_cast<int>(period));
  // The row may have moved on; look it up again. Still the same start: run it once more.
  timer = find_timer_by_handle(static_cast<int>(handle), id);
  if (timer != nullptr) {
    timer->handle = timer_hdl_++;
    int ret = timer->control.start(static_cast<int>(period), dvc_pnl_ceh_timer_proc, timer->handle,
                                   static_cast<int>(period), 0, 0);
    if (ret != 0)
      CEH_ERR("OSW_Timer_Control::start id:%d ms:%ld ret_code = %d", id, period, ret);
  }
  owner->dvc_pnl_ceh_unlock();
}

void dvc_pnl_ceh_event_proxy::note_input() {
  zero_runs_.clear();
}

bool dvc_pnl_ceh_event_proxy::zero_timer_loop(const timer_info& timer) {
  const unsigned long now = emwOSWGetSysTimer();
  if (now != zero_runs_time_) {
    zero_runs_.clear();
    zero_runs_time_ = now;
  }
  int& runs = zero_runs_[{timer.owner, timer.id}];
  ++runs;
  return runs >= DVC_PNL_CEH_ZERO_TIMER_LOOP_LIMIT;
}

int dvc_pnl_ceh_event_proxy::running_timer_count(
    const dvc_pnl_ceh_contents_interface* owner) const {
  int n = 0;
  for (const auto& t : timers_) {
    if (t->id != -1 && t->owner == owner)
      ++n;
  }
  return n;
}

int dvc_pnl_ceh_event_proxy::timer_period(const dvc_pnl_ceh_contents_interface* owner,
                                          int id) const {
  for (const auto& t : timers_) {
    if (t->id != -1 && t->id == id && t->owner == owner)
      return t->period;
  }
  return -1;
}

void dvc_pnl_ceh_event_proxy::reset_for_tests() {
  contents_ops_.clear();
  for (auto& t : timers_)
    t->control.stop();
  timers_.clear();
  zero_runs_.clear();
  zero_runs_time_ = 0;
  event_dispatch_ = 0;
  redraw_pausing_ = 0;
  timer_hdl_ = 0;
  lockscrn_win_controller_ = nullptr;
  lockscrn_cnts_mngr_ = nullptr;
}

}  // namespace orvanta
