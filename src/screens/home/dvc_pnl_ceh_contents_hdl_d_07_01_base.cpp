// Copy home screen and box print home screen: the drivers of the row, load, the copy count and its
// entry, activation, deactivation, close, timers and the panel events.
#include <algorithm>

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_01.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_actions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

// Parts of the home screen.
constexpr int kPartCount = 12;
constexpr int kPartBlank = 14;
constexpr int kPartFixedLower = 18;
constexpr int kPartFixedUpper = 116;
constexpr int kPartFunctionIcon = 21;
constexpr int kPartDpIcon = 43;
constexpr int kIconFunction = 125;
constexpr int kIconPaperOnDp = 334;
constexpr int kNoIcon = 0;
// The document box function, whose scope holds the kind of box a print started from.
constexpr int kBoxFunction = 5;

// Timers: 0 the message rotation, 1 the program key's long press, 10 the delayed subscription.
constexpr int kTimerSubscribe = 10;
constexpr unsigned long kEventOriginalStatus = 192;

// Panel events.
constexpr int kEventSettingsReset = 247;
constexpr int kEventCopyMessages = 113;
constexpr int kEventBoxPrintMessages = 117;
constexpr int kEventRemoteConnected = 1496;
constexpr int kEventRemoteDisconnected = 1501;
constexpr int kEventCopyVerdict = 219;
constexpr int kEventBoxPrintVerdict = 222;
constexpr int kEventReloadCopy = 1318;
constexpr int kEventReloadBoxPrint = 1319;

// The count entry's lowest value and the attribute that the settings reset clears.
constexpr int kCountLowest = 1;
constexpr int kAttrCountCleared = 34;

constexpr unsigned long kCopyLimit[] = {0, 230, 303, 304};

// A function login that a colour key started: none stored.
constexpr int kNoLoginPending = -1;

// PLACEHOLDER texts of the two fixed parts of each home page: the contents table's data for them
// is not known. Replace them here, and only here.
struct fixed_texts {
  int contents_id;
  int upper;  // part 116
  int lower;  // part 18
};
constexpr fixed_texts kFixedTexts[] = {
    {CID_01_01_N1, 1001, 1002},
    {CID_01_02_03_N1, 1003, 1004},
};

const fixed_texts* fixed_texts_of(int contents_id) {
  for (const fixed_texts& t : kFixedTexts) {
    if (t.contents_id == contents_id)
      return &t;
  }
  return nullptr;
}

const dvc_pnl_ceh_contents_hdl_gui* view_of(dvc_pnl_ceh_contents_base& screen) {
  return dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
      screen.dvc_pnl_ceh_get_gui_components());
}

// The pages whose reload the copy home page passes on: the base pages and their function menus.
bool reloads_on(int event, int active) {
  if (event == kEventReloadCopy)
    return active == CID_01_01_N1 || active == CID_02_07_01_N1;
  return active == CID_01_02_03_N1 || active == CID_02_07_04_N1 || active == CID_02_07_04_N2;
}

}  // namespace

dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_contents_hdl_d_07_01(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui),
      messages_(*this),
      program_(*this),
      flexible_(*this),
      view_func_(get_view_function_id()),
      original_func_(get_original_function_id()),
      func_op_(view_func_) {
  current_contents_ = s_map_.row_of(contents_id, &self::Init_T_07_01);
}

dvc_pnl_ceh_contents_hdl_d_07_01::~dvc_pnl_ceh_contents_hdl_d_07_01() = default;

// ---- the drivers of the row ----

void dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_load() {
  if (current_contents_ == nullptr) {
    CEH_ERR("no row for contents id %d", contents_id_);
    close_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(contents_id_));
    return;
  }
  dvc_pnl_ceh_call_slot(this, current_contents_->on_load_);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_close() {
  if (current_contents_ != nullptr)
    dvc_pnl_ceh_call_slot(this, current_contents_->on_close_);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_timer(int timer_id) {
  if (current_contents_ != nullptr)
    dvc_pnl_ceh_call_slot(this, current_contents_->on_timer_, timer_id);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_deactivate() {
  if (current_contents_ != nullptr)
    dvc_pnl_ceh_call_slot(this, current_contents_->on_deactive_);
}

int dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& event) {
  return current_contents_ == nullptr
             ? 0
             : dvc_pnl_ceh_call_slot(this, current_contents_->on_panel_event_, event);
}

int dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) {
  return current_contents_ == nullptr
             ? 0
             : dvc_pnl_ceh_call_slot(this, current_contents_->on_key_, event);
}

int dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* notify) {
  return current_contents_ == nullptr
             ? 0
             : dvc_pnl_ceh_call_slot(this, current_contents_->on_gui_button_notify_, notify);
}

int dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_on_gui_edit_notify(DVU_PNL_GCP_NOTIFY* notify) {
  return current_contents_ == nullptr
             ? 0
             : dvc_pnl_ceh_call_slot(this, current_contents_->on_gui_edit_notify_, notify);
}

// ---- load ----

void dvc_pnl_ceh_contents_hdl_d_07_01::load_fixed_parts() {
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  if (const fixed_texts* texts = fixed_texts_of(contents_id_)) {
    view->dvc_pnl_ceh_update_view_text_res(kPartFixedUpper, texts->upper, 0);
    view->dvc_pnl_ceh_update_view_text_res(kPartFixedLower, texts->lower, 0);
  }
  view->dvc_pnl_ceh_update_view_text(kPartBlank, std::string(), 0);
  update_dp_icon();
}

void dvc_pnl_ceh_contents_hdl_d_07_01::update_dp_icon() {
  view_of(*this)->dvc_pnl_ceh_update_view_icon(
      kPartDpIcon,
      dvc_pnl_ceh_contents_hdl_is_paper_set_on_dp(nullptr) == 1 ? kIconPaperOnDp : kNoIcon);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::on_load_01_01_n1() {
  CEH_TRC("on_load_01_01_n1() function:%d.", view_func_);
  load_home();
}

void dvc_pnl_ceh_contents_hdl_d_07_01::on_load_01_02_03_n1() {
  CEH_TRC("on_load_01_02_03_n1() function:%d.", view_func_);
  load_home();
}

void dvc_pnl_ceh_contents_hdl_d_07_01::load_home() {
  if (dvc_pnl_ceh_get_gui_components() == nullptr) {
    CEH_ERR("gui_component is NULL");
    return;
  }
  const bool copy = contents_id_ != CID_01_02_03_N1;
  load_fixed_parts();
  update_function_icon();
  messages_.load(view_func_);
  get_copy_limit_from_cmm();
  get_copy_count();
  if (copy)
    get_origin_size_from_cmm_copy();
  else
    get_origin_size_from_cmm_box_print();
  show_current_paper();
  get_flexible_key_info_from_cmm();
  dvc_pnl_ceh_contents_hdl_init_transaction_times(view_func_);
  // Box print leaves the maintenance mode login as it is.
  if (copy)
    dvc_pnl_ceh_contents_hdl_set_maintenance_mode_login_flag(1);
  set_timer(kTimerSubscribe, 0);
  dp_update_pending_ = 0;
  draw();
}

int dvc_pnl_ceh_contents_hdl_d_07_01::read_box_kind(int& kind) const {
  const int ret =
      dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_START_BOX_KIND, kind, kBoxFunction);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("get box type from pdm failed: ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_d_07_01::read_change_set(int& value) const {
  return dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_PRINT_CHANGESET, value,
                                                  view_func_);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::update_function_icon() {
  if (contents_id_ != CID_01_02_03_N1) {
    view_of(*this)->dvc_pnl_ceh_update_view_icon(kPartFunctionIcon, kIconFunction);
    return;
  }
  // Printing from a box kind 2 or 3, or from kind 1 without a change set, shows no function icon.
  int kind = 0;
  bool icon = true;
  if (read_box_kind(kind) != DVC_PNL_CEH_RET_OK) {
    icon = true;
  } else if (kind == 2 || kind == 3) {
    icon = false;
  } else if (kind == 1) {
    int change_set = 0;
    icon = read_change_set(change_set) != DVC_PNL_CEH_RET_OK || change_set != 0;
  }
  view_of(*this)->dvc_pnl_ceh_update_view_icon(kPartFunctionIcon, icon ? kIconFunction : kNoIcon);
}

// ---- the copy count ----

void dvc_pnl_ceh_contents_hdl_d_07_01::get_copy_limit_from_cmm() {
  long limit = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kCopyLimit, 0, 4, limit);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("can not get copy limit ret_code = %d", ret);
  else
    copy_limit_ = static_cast<int>(std::max(limit, 1L));
  dvu_pnl_gcp_parts* count = dvu_pnl_gcp_get_gui_parts_by_id(gui_, kPartCount);
  if (count == nullptr) {
    CEH_ERR("copy count part is NULL");
    return;
  }
  count->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_INT_MAX, copy_limit_);
  count->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_INT_MIN, kCountLowest);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::get_copy_count() {
  int stored = 0;
  if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_COPY_PRESET, stored, original_func_) ==
      DVC_PNL_CEH_RET_OK)
    get_copy_count_from_dm(stored);
  else
    get_copy_count_from_cmm();
}

int dvc_pnl_ceh_contents_hdl_d_07_01::limited_count(long count) const {
  return static_cast<int>(
      std::clamp(count, static_cast<long>(kCountLowest), static_cast<long>(copy_limit_)));
}

void dvc_pnl_ceh_contents_hdl_d_07_01::get_copy_count_from_dm(int stored) {
  show_copy_count(limited_count(stored));
}

void dvc_pnl_ceh_contents_hdl_d_07_01::get_copy_count_from_cmm() {
  const unsigned long tree = view_func_ == 6 ? 207 : 2;
  const unsigned long node[] = {0, 1, tree, 160, 46, 47};
  long count = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node, 0, 6, count);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get copy count ret_code = %d", ret);
    return;
  }
  const int shown = limited_count(count);
  if (int set =
          dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_COPY_PRESET, shown, original_func_);
      set != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set copy preset ret_code = %d", set);
  show_copy_count(shown);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::show_copy_count(int count) {
  view_of(*this)->dvc_pnl_ceh_update_view_input_number(kPartCount, count);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::store_copy_count() {
  int count = 0;
  if (view_of(*this)->dvc_pnl_ceh_get_view_input_number(kPartCount, count) != 0)
    return;
  if (int ret =
          dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_COPY_PRESET, count, original_func_);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set copy preset ret_code = %d", ret);
}

int dvc_pnl_ceh_contents_hdl_d_07_01::on_gui_edit_notify_common(DVU_PNL_GCP_NOTIFY* notify) {
  int consumed = 0;
  if (notify != nullptr && notify->type == DVU_PNL_GCP_NOTIFY_NUMBER) {
    if (notify->repeat_count == 0)
      buzzer(1);
    store_copy_count();
    consumed = 1;
  } else if (notify != nullptr && notify->type == DVU_PNL_GCP_NOTIFY_CLEAR) {
    store_copy_count();
  }
  draw();
  return consumed;
}

// ---- timers ----

void dvc_pnl_ceh_contents_hdl_d_07_01::on_timer_common(int timer_id) {
  if (timer_id == DVC_PNL_CEH_HOME_TIMER_MESSAGES) {
    messages_.tick();
    draw();
  } else if (timer_id == DVC_PNL_CEH_HOME_TIMER_PROGRAM) {
    on_timer_program_key();
  } else if (timer_id == kTimerSubscribe) {
    kill_timer(kTimerSubscribe);
    dvc_pnl_ceh_contents_hdl_register_event(kEventOriginalStatus);
  }
}

// ---- activation, deactivation, close ----

void dvc_pnl_ceh_contents_hdl_d_07_01::replay_function_login() {
  const auto self_id = static_cast<DVC_PNL_CEH_CONTENTS_ID>(contents_id_);
  long page = kNoLoginPending;
  const int read_page = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(
      DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO, view_func_, self_id, page);
  int key = kNoLoginPending;
  const int read_key =
      dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_CEH_COPY_COLOR_MODE, key, view_func_);
  if (read_page == DVC_PNL_CEH_RET_OK && read_key == DVC_PNL_CEH_RET_OK && page == contents_id_ &&
      key != kNoLoginPending && dvc_pnl_ceh_contents_hdl_is_guest_user() != 1) {
    // The login succeeded: the colour key that asked for it takes effect now, without a sound.
    dvc_pnl_evh_panel_event replay;
    replay.dvc_pnl_evh_set_id(key);
    silent_repeat_ = 1;
    on_key_common(replay);
    silent_repeat_ = 0;
    if (int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_CEH_COPY_COLOR_MODE,
                                                         kNoLoginPending, view_func_);
        ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("set DVC_PNL_PDM_CEH_COPY_COLOR_MODE ret_code = %d", ret);
  }
  if (int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(
          DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO, view_func_, self_id, kNoLoginPending);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO ret_code = %d", ret);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::on_active_common() {
  if (int ret =
          dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_JOB_SETTING, view_func_, view_func_);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set job setting ret_code = %d", ret);
  active_ = 1;
  if (current_contents_ == nullptr)
    return;
  replay_function_login();
  messages_.remote_changed();
  get_copy_limit_from_cmm();
  if (original_func_ == 24)
    get_copy_count_from_cmm();
  else
    get_copy_count();
  show_current_paper();
  update_function_icon();
  get_flexible_key_info_from_cmm();
  store_copy_count();
  dvc_pnl_ceh_contents_hdl_register_event(kEventOriginalStatus);
  dvc_pnl_ceh_contents_hdl_init_transaction_times(view_func_);
  dp_update_pending_ = 0;
  update_dp_icon();
  draw();
}

void dvc_pnl_ceh_contents_hdl_d_07_01::on_deactive_common() {
  active_ = 0;
  messages_.stop();
  if (dvu_pnl_gcp_parts* count = dvu_pnl_gcp_get_gui_parts_by_id(gui_, kPartCount))
    count->dvu_pnl_gcp_set_int_val(kAttrCountCleared, 0);
  if (contents_id_ == CID_01_01_N1)
    dvc_pnl_ceh_contents_hdl_set_maintenance_mode_login_flag(0);
  dvc_pnl_ceh_contents_hdl_remove_event(kEventOriginalStatus);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::on_close_common() {
  messages_.stop();
  if (program_.pressed() == 1) {
    if (int ret = dvc_pnl_ceh_contents_hdl_remove_program_pressed(view_func_);
        ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("remove DVC_PNL_PDM_CEH_PROGRAM_PRESSED ret_code = %d", ret);
  }
  dvc_pnl_ceh_contents_hdl_remove_event(kEventOriginalStatus);
}

// ---- panel events ----

int dvc_pnl_ceh_contents_hdl_d_07_01::on_panel_event_common(dvc_pnl_evh_panel_event& event) {
  const int id = event.dvc_pnl_evh_get_id();
  switch (id) {
    case kEventOriginalStatus:
      if (view_func_ == 1) {
        dp_update_pending_ = 1;
        return 0;
      }
      if (view_func_ == 6) {
        update_dp_icon();
        draw();
        return 1;
      }
      return 0;
    case kEventCopyVerdict:
      if (view_func_ != 1)
        return 0;
      if (waiting_refusal_ == 1)
        return on_refusal_event(event);
      if (dp_update_pending_ == 1) {
        update_dp_icon();
        int auto_detect = 0;
        if (dvc_pnl_ceh_contents_hdl_is_dp_auto_detect(auto_detect) == DVC_PNL_CEH_RET_OK &&
            auto_detect == 1)
          show_origin_size();
        dp_update_pending_ = 0;
        draw();
        return 1;
      }
      return 0;
    case kEventBoxPrintVerdict:
      return view_func_ == 6 && waiting_refusal_ == 1 ? on_refusal_event(event) : 0;
    case kEventSettingsReset:
      if (contents_id_ != CID_01_01_N1)
        return 0;
      if (dvu_pnl_gcp_parts* count = dvu_pnl_gcp_get_gui_parts_by_id(gui_, kPartCount))
        count->dvu_pnl_gcp_set_int_val(kAttrCountCleared, 0);
      messages_.stop();
      dvc_pnl_ceh_on_load();
      return 1;
    case kEventCopyMessages:
    case kEventBoxPrintMessages: {
      if ((id == kEventCopyMessages) != (contents_id_ == CID_01_01_N1))
        return 0;
      dvc_pnl_cmm_valueset source;
      event.dvc_pnl_evh_get_event_source_valueset(source);
      messages_.refresh(view_func_, source);
      draw();
      return 1;
    }
    case kEventReloadCopy:
    case kEventReloadBoxPrint: {
      if (contents_id_ != CID_01_01_N1)
        return 0;
      dvc_pnl_ceh_contents_base* active = dvc_pnl_ceh_get_active_contents();
      if (active == nullptr || !reloads_on(id, active->dvc_pnl_ceh_get_contents_id()))
        return 0;
      active->dvc_pnl_ceh_on_load();
      return 1;
    }
    case kEventRemoteConnected:
    case kEventRemoteDisconnected:
      messages_.remote_changed();
      if (active_ == 1)
        draw();
      return 1;
    default:
      return on_paper_event(event);
  }
}

int dvc_pnl_ceh_contents_hdl_d_07_01::on_refusal_event(dvc_pnl_evh_panel_event& event) {
  long cid = CID_NONE;
  if (int ret = dvc_pnl_ceh_contents_hdl_get_prohibit_cid(event, cid, view_func_);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_prohibit_cid ret_code = %d", ret);
  dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(
      DVC_PNL_CEH_HOME_KEYS_RELEASED);
  // A verdict that names no notice leaves the screen as it is.
  if (cid != CID_NONE)
    open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(cid));
  waiting_refusal_ = 0;
  return 1;
}

}  // namespace orvanta
