// Handler base: function ids, child opening with its opener record, redraw with the remote panel
// icons, timers, buzzer and the simple ways back.
#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

#include <algorithm>
#include <vector>

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/platform/dvc_pnl_cly_contents_layout.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// Icons of the redraw: the remote panel icon on the function icon's part, and the two states of
// the remote panel part.
constexpr int kIconRemotePanel = 335;
constexpr int kIconRemoteConnected = 336;
constexpr int kIconRemoteDisconnected = 102;

// Panel commands that take the panel back to its default screen, local and remote.
constexpr DVU_PNL_DEC_PANEL_COMMAND kCommandDefaultScreen = 62;
constexpr DVU_PNL_DEC_PANEL_COMMAND kCommandDefaultScreenRemote = 146;

// Events of this class: the function changed, and the automatic reset timer started and stopped.
constexpr unsigned long kEventFunctionChanged = 886;
constexpr unsigned long kEventAutoResetTimerStart = 996;
constexpr unsigned long kEventAutoResetTimerStop = 997;
constexpr int kEventKindPlain = 1;

// Key events this class looks at.
constexpr int kEventKeyFailBuzzer = 41;
constexpr int kEventResetKey = 43;

// The record of the user being entered on the login screens.
constexpr unsigned kUserAuthenticInfoSize = 898;

// Buzzer patterns.
constexpr BUZZER_PATTERN_ID kBuzzerRefuse = 2;
constexpr BUZZER_PATTERN_ID kBuzzerReset = 3;

// The guest's authentication id: a guest has not logged in to a function.
constexpr int kGuestUserId = 9001;

// The list part that a reload after a function login keeps in place.
constexpr int kPartList = 64;

// Maintenance mode: its start and reset keys sound.
constexpr int kFuncMaintenance = 11;

}  // namespace

std::map<int, int> dvc_pnl_ceh_contents_hdl_base::child_opener_;
std::vector<dvc_pnl_ceh_contents_hdl_base*>
    dvc_pnl_ceh_contents_hdl_base::disable_sleep_and_reset_instance_;

void dvc_pnl_ceh_contents_hdl_base::reset_statics() {
  child_opener_.clear();
  disable_sleep_and_reset_instance_.clear();
}

dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_contents_hdl_base(int contents_id,
                                                             dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_base(contents_id, gui) {
  if (gui_ == nullptr)
    CEH_ERR("gui is NULL");
}

dvc_pnl_ceh_contents_hdl_base::~dvc_pnl_ceh_contents_hdl_base() {
  child_opener_.erase(contents_id_);
  if (open_after_close_ != CID_NONE) {
    // The page below never shows: output was held since the close was asked for, and the next
    // page opens while this one still exists.
    dvc_pnl_ceh_event_proxy::redraw_pausing_ = 0;
    open_child_contents(open_after_close_);
  }
  // A page can't leave the automatic reset timer stopped behind it.
  dvc_pnl_ceh_disable_sleep_and_reset(0);
}

// ---------------------------------------------------------------- function ids

int dvc_pnl_ceh_contents_hdl_base::get_original_function_id() const {
  return func_id_;
}

int dvc_pnl_ceh_contents_hdl_base::get_view_function_id() const {
  // Maintenance mode and the copy variant without program keys show as copy.
  return func_id_ == 11 || func_id_ == 24 ? 1 : func_id_;
}

int dvc_pnl_ceh_contents_hdl_base::get_function_id() const {
  // The number under which job settings of the function are addressed.
  return dvc_pnl_ceh_contents_hdl_common_function_of(func_id_);
}

// ---------------------------------------------------------------- opening

int dvc_pnl_ceh_contents_hdl_base::open_child_contents(DVC_PNL_CEH_CONTENTS_ID id) {
  if (id == CID_NONE)
    return DVC_PNL_CEH_ERR_NONE;
  // A child opens under the function shown now, not the one this page was opened under.
  int ret = dvc_pnl_ceh_open_child_contents(id, dvc_pnl_ceh_get_active_func());
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_open_child_contents");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  child_opener_[id] = contents_id_;
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::open_child_forced_remote(DVC_PNL_CEH_CONTENTS_ID id) {
  if (id == CID_NONE)
    return DVC_PNL_CEH_ERR_NONE;
  int ret = dvc_pnl_ceh_open_remote_contents(id, dvc_pnl_ceh_get_active_func());
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_open_remote_contents");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  child_opener_[id] = contents_id_;
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::open_rop_lock_screen(DVC_PNL_CEH_CONTENTS_ID id) {
  if (id == CID_NONE)
    return DVC_PNL_CEH_ERR_BAD_ARGUMENT;
  int ret = dvc_pnl_ceh_open_rop_lock_screen(id);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_open_rop_lock_screen");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  child_opener_[id] = contents_id_;
  return DVC_PNL_CEH_ERR_NONE;
}

void dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_set_open_after_close(DVC_PNL_CEH_CONTENTS_ID id) {
  open_after_close_ = id;
  dvc_pnl_ceh_event_proxy::redraw_pausing_ = 1;
}

DVC_PNL_CEH_CONTENTS_ID dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_get_opener() {
  auto it = child_opener_.find(contents_id_);
  if (it == child_opener_.end())
    return CID_NONE;
  return static_cast<DVC_PNL_CEH_CONTENTS_ID>(it->second);
}

// ---------------------------------------------------------------- going back

int dvc_pnl_ceh_contents_hdl_base::back_to_parent() {
  int ret = dvc_pnl_ceh_close_contents(contents_id_);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_close_contents");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::close_contents(DVC_PNL_CEH_CONTENTS_ID id) {
  int ret = dvc_pnl_ceh_close_contents(id);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_close_contents");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::back_to_contents(DVC_PNL_CEH_CONTENTS_ID id) {
  int ret = dvc_pnl_ceh_back_to_contents(id);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_back_to_contents");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::back_to_grandfather() {
  dvc_pnl_ceh_contents_base* parent = dvc_pnl_ceh_get_parent_contents();
  if (parent == nullptr) {
    CEH_ERR("parent is NULL");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  dvc_pnl_ceh_contents_base* grandfather = parent->dvc_pnl_ceh_get_parent_contents();
  if (grandfather == nullptr) {
    CEH_ERR("grandfather is NULL");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  return back_to_contents(
      static_cast<DVC_PNL_CEH_CONTENTS_ID>(grandfather->dvc_pnl_ceh_get_contents_id()));
}

int dvc_pnl_ceh_contents_hdl_base::back_to_top() {
  const int view_function = get_view_function_id();
  DVC_PNL_CEH_CONTENTS_ID base = CID_NONE;
  int ret = get_base_content_id(base);
  if (ret != DVC_PNL_CEH_ERR_NONE) {
    CEH_PLATFORM_FAIL(ret, "get_base_content_id");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  if (back_to_contents(base) == DVC_PNL_CEH_ERR_NONE)
    return DVC_PNL_CEH_ERR_NONE;

  // The base page isn't open in this function: drop the function's ordinary pages instead. This
  // page is among them, so nothing of it is touched after the clear.
  dvc_pnl_psm_page_stack_matrix* psm = dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
  if (psm == nullptr) {
    CEH_ERR("psm is NULL");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  const int ret_code = psm->dvc_pnl_psm_clear(0, view_function, 2);
  CEH_ERR("DVC_PNL_CEH_ERR_NONE != ret_code");
  if (ret_code != 0) {
    CEH_PLATFORM_FAIL(ret_code, "dvc_pnl_psm_clear");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::back_to_panel_default_screen() {
  dvu_pnl_dec_key_controller* kc = dvu_pnl_dec_key_controller::dvu_pnl_dec_get_instance();
  if (kc == nullptr) {
    CEH_ERR("kc is NULL");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  kc->dvu_pnl_dec_throw_key_event(dvc_pnl_ceh_get_operation_source() ==
                                          DVC_PNL_CEH_OPERATION_SOURCE_REMOTE
                                      ? kCommandDefaultScreenRemote
                                      : kCommandDefaultScreen);
  return DVC_PNL_CEH_ERR_NONE;
}

namespace {

// The stored way back. While CID_08_22_01_N1 is open in the function a second trip is under way;
// it keeps its own record so that it doesn't overwrite the first.
const std::string& move_to_contents_key(dvc_pnl_ceh_contents_base& contents) {
  return contents.dvc_pnl_ceh_search_contents(CID_08_22_01_N1) != nullptr
             ? DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS_2
             : DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_base::set_back_cid_to_dm() {
  int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm(
      move_to_contents_key(*this), static_cast<long>(contents_id_), get_view_function_id());
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_contents_hdl_set_int_to_dm");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::back_to_contents_from_dm() {
  int target = CID_NONE;
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm(move_to_contents_key(*this), target,
                                                     get_view_function_id());
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_contents_hdl_get_int_from_dm");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  switch (target) {
    case CID_NONE:
      return DVC_PNL_CEH_ERR_NONE;
    case CID_TOP:
      return back_to_top();
    case CID_PARENT:
      return back_to_parent();
    default:
      return back_to_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(target));
  }
}

int dvc_pnl_ceh_contents_hdl_base::get_base_content_id(DVC_PNL_CEH_CONTENTS_ID& out) {
  switch (get_view_function_id()) {
    case 1:
    case 24:
      out = CID_01_01_N1;
      return DVC_PNL_CEH_ERR_NONE;
    case 3: {
      // Send comes back to the destination screen when the page scope of that screen says so.
      long value = 0;
      if (dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(DVC_PNL_PDM_DVC_CEH_INTEGER, 3,
                                                                 CID_02_45_N2, value) == 0 &&
          value == CID_02_45_N2)
        out = CID_02_45_N2;
      else
        out = CID_01_02_01_N6;
      return DVC_PNL_CEH_ERR_NONE;
    }
    case 4:
    case 8:
      out = CID_01_02_01_N6;
      return DVC_PNL_CEH_ERR_NONE;
    case 5:
      out = CID_05_01_N1;
      return DVC_PNL_CEH_ERR_NONE;
    case 6:
      out = CID_01_02_03_N1;
      return DVC_PNL_CEH_ERR_NONE;
    case 7:
      out = CID_01_02_03_N2;
      return DVC_PNL_CEH_ERR_NONE;
    case 9:
      out = CID_04_01_N1;
      return DVC_PNL_CEH_ERR_NONE;
    case 10:
      out = CID_07_01_01_N1;
      return DVC_PNL_CEH_ERR_NONE;
    default:
      out = CID_NONE;
      return DVC_PNL_CEH_ERR_BAD_ARGUMENT;
  }
}

int dvc_pnl_ceh_contents_hdl_base::change_function(const int& id) {
  int ret = DVC_PNL_CEH_ERR_FAILED;
  dvc_pnl_psm_page_stack_matrix* psm = dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
  if (psm == nullptr)
    CEH_ERR("psm is NULL");
  else
    ret = psm->dvc_pnl_psm_change_function(id);
  // Whoever follows the function hears of the change also when the page stack refused it.
  dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(kEventFunctionChanged,
                                                                      kEventKindPlain);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_psm_change_function");
    return DVC_PNL_CEH_ERR_FAILED;
  }
  return DVC_PNL_CEH_ERR_NONE;
}

// ---------------------------------------------------------------- queries

int dvc_pnl_ceh_contents_hdl_base::get_n_level_parent_contents_id(int n) {
  if (n < 0)
    return -1;
  dvc_pnl_ceh_contents_base* page = this;
  for (int i = 0; i < n; ++i) {
    page = page->dvc_pnl_ceh_get_parent_contents();
    if (page == nullptr)
      return 0;
  }
  return page->dvc_pnl_ceh_get_contents_id();
}

dvc_pnl_ceh_contents_base* dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_search_parent_contents(
    int id) {
  for (dvc_pnl_ceh_contents_base* page = dvc_pnl_ceh_get_parent_contents(); page != nullptr;
       page = page->dvc_pnl_ceh_get_parent_contents()) {
    if (page->dvc_pnl_ceh_get_contents_id() == id && page->dvc_pnl_ceh_get_func_id() == func_id_)
      return page;
  }
  return nullptr;
}

int dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_get_activate_on_close() {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list;
  dvu_pnl_wmg_list_controller* lst = dvu_pnl_wmg_list_controller::get_instance();
  if (lst != nullptr)
    lst->dvu_pnl_lst_get_list(list);
  if (list.empty()) {
    CEH_ERR("dvc_pnl_ceh_get_activate_on_close wmg lst null error!");
    return 1;
  }
  const DVU_PNL_WMG_WINDOW_TRAITS& top = list.back();
  if (top.manager != nullptr)
    return top.manager->dvc_pnl_cmg_get_contents() == this ? 1 : 0;
  return top.contents_id == contents_id_ && top.function == func_id_ ? 1 : 0;
}

// ---------------------------------------------------------------- keys and data

void dvc_pnl_ceh_contents_hdl_base::
    dvc_pnl_ceh_buzzer_start_key_and_reset_key_in_maintenance_mode() {
  if (get_original_function_id() == kFuncMaintenance)
    buzzer(kBuzzerRefuse);
}

int dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_set_pdm_key_fail_buzzer_flag_value_to_on(
    dvc_pnl_evh_panel_event& event) {
  if (event.dvc_pnl_evh_get_id() != kEventKeyFailBuzzer)
    return 0;
  return set_application_scope_pdm(DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG, 1);
}

int dvc_pnl_ceh_contents_hdl_base::set_application_scope_pdm(std::string key, long value) {
  int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(key, static_cast<int>(value));
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application");
    return 0;
  }
  return 1;
}

void dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_disable_sleep_and_reset(int disable) {
  auto& holders = disable_sleep_and_reset_instance_;
  auto it = std::find(holders.begin(), holders.end(), this);
  if (disable != 0) {
    if (it != holders.end())
      return;
    if (holders.empty()) {
      CEH_TRC("before throw event AUTO_RESET_TIMER_STOP");
      dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(kEventAutoResetTimerStop,
                                                                          kEventKindPlain);
    }
    holders.push_back(this);
    return;
  }
  if (it == holders.end())
    return;
  holders.erase(it);
  if (holders.empty()) {
    CEH_TRC("before throw event AUTO_RESET_TIMER_START");
    dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(kEventAutoResetTimerStart,
                                                                        kEventKindPlain);
  }
}

int dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_login_reset_key_process(
    dvc_pnl_evh_panel_event& event) {
  int display = 0;
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, display,
                                                     get_view_function_id());
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_ceh_contents_hdl_get_int_from_dm");
    return 0;
  }
  if (display == 0 || event.dvc_pnl_evh_get_id() != kEventResetKey)
    return 0;

  // The user half entered is forgotten before the login flow is left.
  const std::vector<unsigned char> zeros(kUserAuthenticInfoSize, 0);
  ret = dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application(
      DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO, zeros.data(), kUserAuthenticInfoSize);
  if (ret != 0) {
    CEH_ERR("clear USER_AUTHENTIC_INFO ret_code = %d", ret);
    return 0;
  }
  if (get_n_level_parent_contents_id(2) != -1)
    back_to_grandfather();
  else
    CEH_ERR("back_to_contents error");
  buzzer(kBuzzerReset);
  return 1;
}

// ---------------------------------------------------------------- activation

namespace {

// Reads an application-scope integer for the activation; a failed read counts as 0.
int read_login_state(const std::string& key) {
  int value = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(key, value);
  if (ret != 0) {
    CEH_ERR("%s read failed ret_code = %d", key.c_str(), ret);
    return 0;
  }
  return value;
}

}  // namespace

void dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_on_activate_pre() {
  const int authentication_id = read_login_state(DVC_PNL_PDM_AUTHENTICATION_ID);
  const int function_login = read_login_state(DVC_PNL_PDM_FUNCTION_LOGIN_SETTING);
  const int mode = read_login_state(DVC_PNL_PDM_AUTHENTICATION_MODE);
  const bool after_function_login =
      (mode == 1 || mode == 3) && function_login == 1 && authentication_id != kGuestUserId;
  if (!after_function_login) {
    dvc_pnl_ceh_on_activate();
    return;
  }

  // A user who logged in on the way may see other rows or texts: the layout says whether the
  // page reloads, only redraws, or both.
  std::string layout_name;
  unsigned long attributes = 0;
  if (dvc_pnl_cly_get_layout_name(contents_id_, layout_name, attributes) != 0)
    attributes = 0;
  if ((attributes & DVC_PNL_CLY_ATTR_RELOAD_ON_FUNCTION_LOGIN) != 0)
    reload_for_function_login();
  if ((attributes & DVC_PNL_CLY_ATTR_REDRAW_ON_FUNCTION_LOGIN) != 0) {
    draw();
    return;
  }
  dvc_pnl_ceh_on_activate();
}

void dvc_pnl_ceh_contents_hdl_base::reload_for_function_login() {
  auto* list = dynamic_cast<dvu_pnl_gcp_list*>(dvu_pnl_gcp_get_gui_parts_by_id(gui_, kPartList));
  int rows_before = 0;
  int select_row = 0;
  int scroll_pos = 0;
  if (list != nullptr) {
    rows_before = list->dvu_pnl_gcp_get_max_row() + 1;
    list->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, select_row);
    list->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, scroll_pos);
    list->dvu_pnl_gcp_clear_all_row();
  }
  // Screens that send lock words or the like while loading look at this flag.
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING,
                                                        1);
  dvc_pnl_ceh_on_load();
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING,
                                                        0);
  if (list == nullptr)
    return;
  // A list that lost rows to the new user's rights starts again from its top.
  if (list->dvu_pnl_gcp_get_max_row() + 1 < rows_before) {
    select_row = 0;
    scroll_pos = 0;
  }
  list->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, select_row);
  list->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, scroll_pos);
}

// ---------------------------------------------------------------- drawing and devices

void dvc_pnl_ceh_contents_hdl_base::draw() {
  swap_remote_icons();
  dvc_pnl_ceh_draw(nullptr);
}

void dvc_pnl_ceh_contents_hdl_base::swap_remote_icons() {
  dvu_pnl_gcp_parts* function_icon =
      dvu_pnl_gcp_get_gui_parts_by_id(gui_, DVC_PNL_CEH_PART_FUNCTION_ICON);
  if (function_icon != nullptr) {
    int icon = 0;
    // The remote panel icon stands in for the function icon; remember only the real one.
    if (function_icon->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_ICON, icon) == 0 &&
        icon != kIconRemotePanel)
      saved_icon_ = icon;
    dvu_pnl_gcp_parts* remote_icon =
        dvu_pnl_gcp_get_gui_parts_by_id(gui_, DVC_PNL_CEH_PART_REMOTE_ICON);
    if (remote_icon != nullptr) {
      if (is_remote_connected() == 1) {
        function_icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, kIconRemotePanel);
        remote_icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, kIconRemoteConnected);
      } else {
        function_icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, saved_icon_);
        remote_icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, kIconRemoteDisconnected);
      }
    }
  }
}

void dvc_pnl_ceh_contents_hdl_base::draw_lock_screen() {
  swap_remote_icons();
  dvc_pnl_ceh_draw_lock_screen(nullptr);
}

int dvc_pnl_ceh_contents_hdl_base::set_timer(int id, int ms) {
  dvc_pnl_ceh_set_timer(id, ms);
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::kill_timer(int id) {
  dvc_pnl_ceh_kill_timer(id);
  return DVC_PNL_CEH_ERR_NONE;
}

int dvc_pnl_ceh_contents_hdl_base::buzzer(BUZZER_PATTERN_ID pattern) {
  if (dvc_pnl_ceh_buzzer(pattern) != 0) {
    CEH_ERR("dvu_pnl_dec_buzzer_controller::dvu_pnl_dec_set_buzzer_control is FALSE");
    return 1;
  }
  return DVC_PNL_CEH_ERR_NONE;
}

}  // namespace orvanta
