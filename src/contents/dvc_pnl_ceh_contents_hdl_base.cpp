// Handler base: function ids, child opening with its opener record, redraw with the remote panel
// icons, timers, buzzer and the simple ways back.
#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// Icons of the redraw: the remote panel icon on the function icon's part, and the two states of
// the remote panel part.
constexpr int kIconRemotePanel = 335;
constexpr int kIconRemoteConnected = 336;
constexpr int kIconRemoteDisconnected = 102;

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
  // Releasing a hold on sleep and automatic reset comes with the event helpers that throw the
  // auto reset timer events; until then no screen can take that hold.
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
  switch (func_id_) {
    case 3:
      return 3;
    case 4:
      return 4;
    case 5:
      return 1;
    case 6:
      return 5;
    case 7:
      return 6;
    case 8:
      return 1;
    case 9:
      return 9;
    default:
      return 1;
  }
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

// ---------------------------------------------------------------- activation

void dvc_pnl_ceh_contents_hdl_base::dvc_pnl_ceh_on_activate_pre() {
  // The refresh after a function login (reload or redraw by the layout's attribute word) comes
  // with the contents layouts; until they exist every page comes back through its activation.
  dvc_pnl_ceh_on_activate();
}

// ---------------------------------------------------------------- drawing and devices

void dvc_pnl_ceh_contents_hdl_base::draw() {
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
  dvc_pnl_ceh_draw(nullptr);
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
