// The option lists' loads, keys, notifies, reactivation and the machine's verdict, with the zoom
// lists and their others rows.
#include <algorithm>

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "screens/common/dvc_pnl_ceh_function_login.h"
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01.h"
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01_tables.h"
#include "services/dvc_pnl_ceh_contents_hdl_func.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

using D = dvc_pnl_ceh_contents_hdl_d_01_01_01;
using namespace option_list_tables;

namespace {

constexpr int kDetailKey = 23;
constexpr int kBlankSkipKey = 3424;
constexpr long kDefaultZoom = 1000;
// The zoom mode that a ratio needs: the manual one.
constexpr long kZoomManual = 1;
// The colour-mode login restriction of the function login, by view function.
constexpr long kLoginCopy = 256;
constexpr long kLoginBoxPrint = 32;
// The panel commands that give the Back key to the machine, local and remote.
constexpr int kThrowBack = 79;
constexpr int kThrowBackRemote = 163;
// The user language of the input method list.
constexpr long kInputMethodLanguage = 81;

const dvc_pnl_ceh_contents_hdl_gui* view_of(dvc_pnl_ceh_contents_base& screen) {
  return dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
      screen.dvc_pnl_ceh_get_gui_components());
}

// Writes an integer at a full key from its start position.
int write_int(const std::vector<unsigned long>& key, long value) {
  return dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(key.data(),
                                                     dvc_pnl_ceh_option_list_get_position(key),
                                                     static_cast<unsigned>(key.size()), value);
}
int read_int(const std::vector<unsigned long>& key, long& value) {
  return dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(key.data(),
                                                       dvc_pnl_ceh_option_list_get_position(key),
                                                       static_cast<unsigned>(key.size()), value);
}

// The zoom mode and ratio keys of the branch `branch`.
std::vector<unsigned long> zoom_mode_key(unsigned long branch) {
  return {0, 1, branch, 160, 12, 13, 14};
}
std::vector<unsigned long> zoom_ratio_key(unsigned long branch) {
  return {0, 1, branch, 160, 12, 13, 15, 16};
}

}  // namespace

// ---------------------------------------------------------------- loads

void D::adjust_key_branch(std::vector<unsigned long>& key) {
  // Only the job settings (0.1.<branch>...) follow the view function.
  if (key.size() > 2 && key[1] == 1)
    change_keyid_value_by_functionid(key[2]);
}

bool D::read_prohibition() {
  prohibit_value_ = -1;
  for (const prohibition_item& p : kProhibitionItems) {
    if (p.contents != contents_id_)
      continue;
    if (int ret = dvc_pnl_ceh_contents_hdl_get_prohibit_value(view_func_, p.item, prohibit_value_);
        ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("dvc_pnl_ceh_contents_hdl_get_prohibit_value ret_code = %d", ret);
      return false;
    }
  }
  return true;
}

bool D::current_row_of_scan_quality(int& index) {
  // The image quality lists show the pair of the quality and the scan quality as one row.
  std::vector<unsigned long> second = current_contents_->key;
  second.back() = 3790;
  long first_value = 0;
  long second_value = 0;
  if (read_int(current_contents_->key, first_value) != DVC_PNL_CEH_RET_OK ||
      read_int(second, second_value) != DVC_PNL_CEH_RET_OK)
    return false;
  const bool n1 = contents_id_ == CID_02_02_N1;
  if (first_value == 0 && (!n1 || second_value == 1))
    index = 0;
  else if (first_value == 2 && (!n1 || second_value == 1))
    index = 1;
  else if (first_value == 3)
    index = 3;
  else if (first_value == 1 && second_value == 0)
    index = 2;
  else if (first_value == 1 && second_value == 4)
    index = n1 ? 3 : 4;
  else
    return false;
  return true;
}

void D::load_plain() {
  add_list();
  std::vector<unsigned long>& key = current_contents_->key;
  const bool copy = view_func_ == 1;
  switch (contents_id_) {
    case CID_02_53_N1:
      key = copy ? std::vector<unsigned long>{0, 1, 161, 160, 99, 147}
                 : std::vector<unsigned long>{0, 1, 161, 160, 12, 104, 147};
      break;
    case CID_02_54_N1:
      key = copy ? std::vector<unsigned long>{0, 1, 161, 160, 99, 145, 145}
                 : std::vector<unsigned long>{0, 1, 161, 160, 12, 104, 145, 145};
      break;
    case CID_02_54_N3:
      key = copy ? std::vector<unsigned long>{0, 1, 161, 160, 99, 145, 146}
                 : std::vector<unsigned long>{0, 1, 161, 160, 12, 104, 145, 146};
      break;
    case CID_02_25_N1:
      key = copy ? std::vector<unsigned long>{0, 1, 2, 160, 46, 48}
                 : std::vector<unsigned long>{0, 1, 2, 160, 46, 48, 48};
      break;
    case CID_02_17_N1:
      // Copy keeps the setting inside a group; the other functions as a plain node.
      key = copy ? std::vector<unsigned long>{0, 1, 2, 160, 12, 35, 35}
                 : std::vector<unsigned long>{0, 1, 2, 160, 12, 35};
      break;
    default:
      break;
  }
  adjust_key_branch(key);
  int index = 0;
  if (!key.empty()) {
    if ((contents_id_ != CID_02_02_N1 && contents_id_ != CID_02_02_N3) ||
        !current_row_of_scan_quality(index))
      get_index_from_cmm(key, index);
  }
  loaded_row_ = index;
  set_select_row(index);
  if (!read_prohibition())
    return;
  if (in(contents_id_, kOwnTransactionContents) && current_contents_->start_transaction == 1)
    start_up();
  update_form_common();
}

void D::on_load_02_01_N1() {
  load_plain();
}

void D::on_load_common() {
  load_plain();
}

void D::on_load_02_03_01_N1() {
  add_list();
  std::vector<unsigned long>& key = current_contents_->key;
  adjust_key_branch(key);
  long mode = 0;
  long ratio = 0;
  int row = 0;
  if (read_int(key, mode) != DVC_PNL_CEH_RET_OK ||
      read_int(zoom_ratio_key(key[2]), ratio) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get zoom setting");
  } else if (ratio == default_zoom_ && (mode == 0 || mode == 1)) {
    row = static_cast<int>(1 - mode);
  } else {
    // A ratio of the destination's fixed list is the standard zoom; any other is entered.
    const int fixed_list = dvc_pnl_ceh_contents_hdl_destination_is_japan() == 1 ? CID_02_03_01_N3
                           : dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia() == 1
                               ? CID_02_03_01_N6
                               : CID_02_03_01_N8;
    const CONTENTS_ELEMENT* fixed = s_map_.row_of(fixed_list, &D::build_row);
    const bool in_list = fixed != nullptr &&
                         std::any_of(fixed->list.begin(), fixed->list.end(),
                                     [ratio](const LIST_ELEMENT& e) { return e.value == ratio; });
    row = mode == kZoomManual && in_list ? 2 : 3;
  }
  star_row_ = row;
  loaded_row_ = row;
  set_select_row(row);
  prohibit_value_ = -1;
  update_form_common();
}

void D::set_select_row_ex(long value) {
  const std::vector<LIST_ELEMENT>& list = current_contents_->list;
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  for (std::size_t i = 0; i + 1 < list.size(); ++i) {
    if (list[i].value == value) {
      set_select_row(static_cast<int>(i));
      return;
    }
  }
  auto others = s_others_value_list_.find(contents_id_);
  if (others != s_others_value_list_.end() && !list.empty() &&
      std::any_of(others->second.begin(), others->second.end(),
                  [value](const LIST_ELEMENT& e) { return e.value == value; })) {
    set_select_row(static_cast<int>(list.size()) - 1);
    return;
  }
  // A ratio that no row and no others value holds: the cursor at the top, no star.
  view->dvc_pnl_ceh_set_list_select_row(0);
}

void D::on_load_02_03_01_N3() {
  add_list();
  std::vector<unsigned long>& key = current_contents_->key;
  adjust_key_branch(key);
  long ratio = 0;
  if (read_int(key, ratio) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get zoom ratio");
    view_of(*this)->dvc_pnl_ceh_set_list_select_row(0);
  } else {
    set_select_row_ex(ratio);
  }
  prohibit_value_ = -1;
  update_form_common();
}

void D::on_load_02_03_01_N5() {
  add_list();
  std::vector<unsigned long>& key = current_contents_->key;
  adjust_key_branch(key);
  long ratio = 0;
  const std::vector<LIST_ELEMENT>& list = current_contents_->list;
  const bool found = read_int(key, ratio) == DVC_PNL_CEH_RET_OK &&
                     std::any_of(list.begin(), list.end(),
                                 [ratio](const LIST_ELEMENT& e) { return e.value == ratio; });
  if (found)
    set_select_row(value_to_index(static_cast<int>(ratio)));
  else
    view_of(*this)->dvc_pnl_ceh_set_list_select_row(0);
  prohibit_value_ = -1;
  update_form_common();
}

// ---------------------------------------------------------------- Enter and Start

bool D::selected_row(int& index) {
  if (view_of(*this)->dvc_pnl_ceh_get_list_select_row(index) == 0)
    return true;
  CEH_ERR("get_list_select_row failed");
  return false;
}

int D::wait_for_verdict() {
  waiting_prohibition_ = 1;
  buzzer(1);
  dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kLockAll);
  return 1;
}

bool D::row_permitted(int index, dvc_pnl_evh_panel_event& event) {
  if (contents_id_ == CID_02_37_N1 && view_func_ != 3 && view_func_ != 4 && view_func_ != 7)
    return true;
  const long bit = bit_of_row(contents_id_, index);
  if (bit == 0 || (prohibit_value_ & bit) != 0)
    return true;
  open_child_contents(CID_10_01_N1);
  dvc_pnl_ceh_set_pdm_key_fail_buzzer_flag_value_to_on(event);
  return false;
}

bool D::function_login_opened() {
  if (!in(contents_id_, kLoginContents))
    return false;
  if (view_func_ == 6) {
    int kind = 0;
    if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_START_BOX_KIND, kind, 5) ==
            DVC_PNL_CEH_RET_OK &&
        kind == 1)
      return false;
  }
  if (open_function_login_contents(*this, view_func_ == 6 ? kLoginBoxPrint : kLoginCopy) != 1)
    return false;
  buzzer(1);
  return true;
}

bool D::expects_verdict() const {
  if (contents_id_ == CID_02_37_N1 && view_func_ == 7)
    return false;
  return in(contents_id_, kVerdictContents);
}

void D::companion_writes(int index) {
  const std::vector<unsigned long>& key = current_contents_->key;
  const unsigned long branch = key.size() > 2 ? key[2] : 2;
  switch (contents_id_) {
    case CID_02_02_N1:
    case CID_02_02_N3: {
      std::vector<unsigned long> second = {0, 1, branch, 160, 12, 29, 3790};
      long scan = 0;
      const long value = index_to_value(index);
      if (contents_id_ == CID_02_02_N1)
        scan = value == 1 ? 0 : 1;
      else
        scan = index == 4 ? 4 : 0;
      if (int ret = write_int(second, scan); ret != DVC_PNL_CEH_RET_OK)
        CEH_ERR("set scan quality ret_code = %d", ret);
      ENV_MODE_10_VAL prevent = 0;
      dvc_pnl_ceh_contents_hdl_func func(view_func_);
      if (func.get_current_prevent_bleed_through_setting(prevent) == DVC_PNL_CEH_RET_OK &&
          prevent == 1 && scan == 4)
        CEH_TRC("display_prohibition_scn_quality");
      break;
    }
    case CID_02_37_N1:
      if (index == 0) {
        if (int ret = write_int({0, 1, branch, 160, 12, 1898}, 0); ret != DVC_PNL_CEH_RET_OK)
          CEH_ERR("set 1898 ret_code = %d", ret);
      }
      break;
    case CID_02_54_N1:
      if (index == 0 || index == 1) {
        const std::vector<unsigned long> dens =
            view_func_ == 1 ? std::vector<unsigned long>{0, 1, 2, 160, 99, 145, 146}
                            : std::vector<unsigned long>{0, 1, branch, 160, 12, 104, 145, 146};
        if (int ret = write_int(dens, 5); ret != DVC_PNL_CEH_RET_OK)
          CEH_ERR("set background density ret_code = %d", ret);
      }
      star_row_ = index;
      break;
    default:
      break;
  }
}

int D::start_key(int index, bool reactivate) {
  commit();
  if (!current_contents_->key.empty()) {
    view_of(*this)->dvc_pnl_ceh_reset_star_to_select_row(index);
    draw();
  }
  if (reactivate)
    on_activate_common();
  return 0;
}

int D::apply_selection(dvc_pnl_evh_panel_event& event, bool full) {
  int index = 0;
  if (!selected_row(index))
    return 0;
  std::vector<unsigned long>& key = current_contents_->key;
  adjust_key_branch(key);
  if (!row_permitted(index, event))
    return 0;
  if (function_login_opened())
    return 1;
  const bool start = is_startkey(event) == 1;
  if (!start && expects_verdict())
    waiting_prohibition_ = 1;
  if (!key.empty() && set_index_to_cmm(key, index) == 0 && full) {
    waiting_prohibition_ = 0;
    return 0;
  }
  companion_writes(index);
  if (start)
    return start_key(index, !full);
  buzzer(1);
  if (contents_id_ == CID_02_29_N3 && index == 0) {
    open_address_book();
    return 1;
  }
  if (expects_verdict()) {
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kLockAll);
    return 1;
  }
  open_window(index);
  return 1;
}

int D::on_key_enter_02_01_N1(dvc_pnl_evh_panel_event& event) {
  return apply_selection(event, true);
}

int D::on_key_enter_common(dvc_pnl_evh_panel_event& event) {
  return apply_selection(event, false);
}

int D::write_zoom_ratio(long ratio) {
  const unsigned long branch = current_contents_->key[2];
  int ret = write_int(zoom_mode_key(branch), kZoomManual);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = write_int(zoom_ratio_key(branch), ratio);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set zoom ratio ret_code = %d", ret);
  return ret;
}

int D::on_key_enter_02_03_01_N1(dvc_pnl_evh_panel_event& event) {
  int index = 0;
  if (!selected_row(index))
    return 0;
  std::vector<unsigned long>& key = current_contents_->key;
  adjust_key_branch(key);
  const bool start = is_startkey(event) == 1;
  switch (index) {
    case 0:
      // Full size: the manual mode at 100 %.
      if (set_index_to_cmm(key, 2) == 0 || write_zoom_ratio(kDefaultZoom) != DVC_PNL_CEH_RET_OK)
        return 0;
      break;
    case 1: {
      long allowed = -1;
      dvc_pnl_ceh_contents_hdl_get_prohibit_value(view_func_, 3, allowed);
      prohibit_value_ = allowed;
      if ((allowed & 4) == 0) {
        open_child_contents(CID_10_01_N1);
        dvc_pnl_ceh_set_pdm_key_fail_buzzer_flag_value_to_on(event);
        return 0;
      }
      if (set_index_to_cmm(key, 1) == 0)
        return 0;
      break;
    }
    case 2:
    case 3:
      if (start)
        return start_key(index, false);
      star_row_ = index;
      buzzer(1);
      if (index == 2)
        open_window_by_destination(CID_02_03_01_N3, CID_02_03_01_N6, CID_02_03_01_N8);
      else
        open_child_contents(CID_02_03_01_N4);
      return 1;
    default:
      return 0;
  }
  if (start)
    return start_key(index, false);
  return wait_for_verdict();
}

int D::on_key_enter_02_03_01_N3(dvc_pnl_evh_panel_event& event) {
  int index = 0;
  if (!selected_row(index))
    return 0;
  adjust_key_branch(current_contents_->key);
  const bool start = is_startkey(event) == 1;
  const std::vector<LIST_ELEMENT>& list = current_contents_->list;
  if (index == static_cast<int>(list.size()) - 1) {
    // The others row leads on to the list of the other ratios.
    if (start)
      return start_key(index, false);
    buzzer(1);
    open_window(index);
    return 1;
  }
  if (write_zoom_ratio(index_to_value(index)) != DVC_PNL_CEH_RET_OK)
    return 0;
  if (start)
    return start_key(index, false);
  return wait_for_verdict();
}

int D::on_key_enter_02_03_01_N5(dvc_pnl_evh_panel_event& event) {
  int index = 0;
  if (!selected_row(index))
    return 0;
  adjust_key_branch(current_contents_->key);
  if (write_zoom_ratio(index_to_value(index)) != DVC_PNL_CEH_RET_OK)
    return 0;
  if (is_startkey(event) == 1)
    return start_key(index, false);
  return wait_for_verdict();
}

int D::on_key_enter_02_08_01_N13(dvc_pnl_evh_panel_event& event) {
  int index = 0;
  if (!selected_row(index))
    return 0;
  if (is_startkey(event) == 1)
    return start_key(index, false);
  buzzer(1);
  if (index == 0)
    open_window_by_destination(CID_02_08_01_N6, CID_02_08_01_N7, CID_02_08_01_N8);
  else
    open_child_contents(dvc_pnl_ceh_contents_check_unit_is_cent_or_not() != 0 ? CID_02_08_01_N9
                                                                              : CID_02_08_01_N11);
  return 1;
}

int D::on_key_back_common(dvc_pnl_evh_panel_event& /*event*/) {
  if (current_contents_->start_transaction == 1 ||
      (contents_id_ == CID_02_26_N1 && view_func_ != 10))
    cancel();
  if (contents_id_ == CID_08_07_01_N5) {
    // The job status list gives the key back to the machine: the screen does not leave itself.
    const bool remote = dvc_pnl_ceh_get_operation_source() == DVC_PNL_CEH_OPERATION_SOURCE_REMOTE;
    dvc_pnl_ceh_contents_hdl_throw_key_event(
        static_cast<DVU_PNL_DEC_PANEL_COMMAND>(remote ? kThrowBackRemote : kThrowBack));
    return 1;
  }
  if (contents_id_ == CID_02_29_N3)
    restore_address_book();
  if (contents_id_ == CID_02_08_01_N13)
    back_to_contents(CID_02_08_01_N1);
  else
    back_to_parent();
  buzzer(1);
  return 1;
}

void D::open_address_book() {
  set_int_or_trace(DVC_PNL_PDM_CEH_DISP_ADDR_BOOK_CID, CID_02_29_N4);
  dvc_pnl_ceh_contents_hdl_set_valid_address_book_setting_to_dm(view_func_);
  int book = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM, book, view_func_);
  if (book >= 1 && book <= 4) {
    // An external book: its list is kept aside for the return.
    dvc_pnl_cmm_valueset list;
    if (dvc_pnl_ceh_contents_hdl_get_valueset_from_dm(DVC_PNL_PDM_EXT_ADDR_BOOK_FULL_LIST, list,
                                                      view_func_) == DVC_PNL_CEH_RET_OK)
      dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_page_scope(
          DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP, view_func_,
          static_cast<DVC_PNL_CEH_CONTENTS_ID>(contents_id_), list);
    open_child_contents(CID_03_02_06_N2);
  } else {
    open_child_contents(CID_02_29_N4);
  }
}

void D::restore_address_book() {
  const auto self_id = static_cast<DVC_PNL_CEH_CONTENTS_ID>(contents_id_);
  dvc_pnl_cmm_valueset list;
  if (dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_page_scope(
          DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP, view_func_, self_id, list) != DVC_PNL_CEH_RET_OK)
    return;
  dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_EXT_ADDR_BOOK_FULL_LIST, view_func_);
  dvc_pnl_ceh_contents_hdl_set_valueset_to_dm(DVC_PNL_PDM_EXT_ADDR_BOOK_FULL_LIST, view_func_,
                                              list);
  // An empty set in the backup's place: page scope entries go with their page.
  dvc_pnl_cmm_valueset empty;
  dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_page_scope(DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP,
                                                            view_func_, self_id, empty);
}

void D::set_int_or_trace(const std::string& key, int value) {
  if (int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm(key, value, view_func_);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set %s ret_code = %d", key.c_str(), ret);
}

int D::on_key_stop_common(dvc_pnl_evh_panel_event& /*event*/) {
  back_to_top();
  return 1;
}

// ---------------------------------------------------------------- notifies

bool D::take_list_notify(const DVU_PNL_GCP_NOTIFY* notify, int& index) {
  if (notify == nullptr || notify->type != DVU_PNL_GCP_NOTIFY_LIST)
    return false;
  if (notify->repeat_count < 1)
    buzzer(1);
  view_of(*this)->dvc_pnl_ceh_get_list_select_row(index);
  return true;
}

int D::on_gui_list_notify_common(DVU_PNL_GCP_NOTIFY* notify) {
  int index = 0;
  if (!take_list_notify(notify, index))
    return 0;
  if (contents_id_ == CID_02_63_N1) {
    current_contents_->flexible_right = index_to_value(index) != 0 ? kBlankSkipKey : -1;
    view_of(*this)->dvc_pnl_ceh_update_view_flexiblekey(current_contents_->flexible_left,
                                                        current_contents_->flexible_right);
  }
  draw();
  return 1;
}

int D::on_gui_list_notify_02_36_01_N1(DVU_PNL_GCP_NOTIFY* notify) {
  int index = 0;
  if (!take_list_notify(notify, index))
    return 0;
  if (contents_id_ == CID_02_37_N1)
    current_contents_->flexible_right = index != 0 ? kDetailKey : -1;
  else
    current_contents_->flexible_right = index == 0 || view_func_ == 4 ? -1 : kDetailKey;
  view_of(*this)->dvc_pnl_ceh_update_view_flexiblekey(current_contents_->flexible_left,
                                                      current_contents_->flexible_right);
  draw();
  return 1;
}

int D::on_gui_button_notify_02_10_N1(DVU_PNL_GCP_NOTIFY* notify) {
  if (notify == nullptr || notify->type != DVU_PNL_GCP_NOTIFY_FLEX_RIGHT)
    return 0;
  int index = 0;
  if (view_of(*this)->dvc_pnl_ceh_get_list_select_row(index) != 0)
    return 0;
  if (index == 0) {
    buzzer(2);
    return 1;
  }
  const int detail = index_to_childwindow(index);
  if (int ret =
          dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, detail, view_func_);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set DVC_PNL_PDM_DVC_CEH_INTEGER ret_code = %d", ret);
  if ((prohibit_value_ & 2) == 0) {
    open_child_contents(CID_10_01_N1);
    return 1;
  }
  std::vector<unsigned long>& key = current_contents_->key;
  adjust_key_branch(key);
  if (key.empty() || set_index_to_cmm(key, index) == 0) {
    // Without the machine's verdict the detail opens at once.
    waiting_prohibition_ = 0;
    open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(detail));
  } else {
    waiting_prohibition_ = 1;
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kLockAll);
  }
  buzzer(1);
  return 1;
}

// ---------------------------------------------------------------- reactivation

void D::on_activate_for_star() {
  if ((contents_id_ == CID_02_58_N1 && dvc_pnl_ceh_contents_hdl_fax_tx_report_is_set() != 1) ||
      (contents_id_ == CID_02_61_N1 && dvc_pnl_ceh_contents_hdl_quiet_mode_is_permit() != 1)) {
    // The setting this list belongs to is no longer in force: leave it.
    current_contents_->start_transaction = 1;
    dvc_pnl_evh_panel_event empty;
    on_key_back_common(empty);
    return;
  }
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  int scroll = 0;
  int row = 0;
  if (view->dvc_pnl_ceh_get_list_scroll_pos(scroll) != 0)
    scroll = 0;
  if (view->dvc_pnl_ceh_get_list_select_row(row) != 0)
    row = 0;
  current_contents_->start_transaction = 0;
  view->dvc_pnl_ceh_clear_list();
  dvc_pnl_ceh_call_slot(this, current_contents_->on_load_);
  current_contents_->start_transaction = 1;
  if (on_activate_for_focus(contents_id_) != 1)
    return;
  view->dvc_pnl_ceh_set_list_select_row(row);
  view->dvc_pnl_ceh_set_list_scroll_pos(scroll);
  if (contents_id_ == CID_02_36_01_N1 || contents_id_ == CID_02_37_N1 ||
      contents_id_ == CID_02_10_N1)
    current_contents_->flexible_right = row > 0 ? kDetailKey : -1;
  view->dvc_pnl_ceh_update_view_flexiblekey(current_contents_->flexible_left,
                                            current_contents_->flexible_right);
  draw();
}

void D::on_activate_common() {
  const int saved = current_contents_->start_transaction;
  current_contents_->start_transaction = 0;
  // The counter and information pages follow a remote session with a fresh load too.
  const bool remote_reload =
      in(contents_id_, kReloadedInRemoteSession) && is_remote_connected() == 1;
  if (in(contents_id_, kReloadedOnActivate) || remote_reload) {
    view_of(*this)->dvc_pnl_ceh_clear_list();
    dvc_pnl_ceh_call_slot(this, current_contents_->on_load_);
  }
  if (contents_id_ == CID_02_22_N8) {
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kLock800);
    // The input method list serves one language only.
    if (dvc_pnl_ceh_contents_hdl_get_user_language() != kInputMethodLanguage) {
      current_contents_->start_transaction = saved;
      close_contents(CID_02_22_N8);
      return;
    }
  }
  current_contents_->start_transaction = saved;
  if (in(contents_id_, kDestinationEditContents))
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kLock800);
  draw();
}

void D::on_deactivate_02_03_01() {
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  if (view->dvc_pnl_ceh_get_list_select_row(select_row_) != 0)
    select_row_ = 0;
  if (view->dvc_pnl_ceh_get_list_scroll_pos(scroll_pos_) != 0)
    scroll_pos_ = 0;
}

void D::on_activate_02_03_01_children() {
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  view->dvc_pnl_ceh_set_list_select_row(select_row_);
  view->dvc_pnl_ceh_set_list_scroll_pos(scroll_pos_);
  draw();
}

// ---------------------------------------------------------------- the verdict

namespace {

int read_queue(DVC_PNL_CEH_PROHIBITION_WINDOWS& queue, int function) {
  return dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS, &queue,
                                                     sizeof queue, function);
}
int write_queue(const DVC_PNL_CEH_PROHIBITION_WINDOWS& queue, int function) {
  return dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS, &queue,
                                                   sizeof queue, function);
}

}  // namespace

void D::merge_prohibition_queue(dvc_pnl_evh_panel_event& event) {
  // The notices queued so far stay ahead of those this verdict adds; eight places in all.
  DVC_PNL_CEH_PROHIBITION_WINDOWS before{};
  const bool had = read_queue(before, view_func_) == DVC_PNL_CEH_RET_OK;
  long cid = CID_NONE;
  dvc_pnl_ceh_contents_hdl_get_prohibit_cid(event, cid, view_func_);
  DVC_PNL_CEH_PROHIBITION_WINDOWS after{};
  if (!had || read_queue(after, view_func_) != DVC_PNL_CEH_RET_OK)
    return;
  DVC_PNL_CEH_PROHIBITION_WINDOWS merged = after;
  int n = 0;
  auto take = [&merged, &n](const DVC_PNL_CEH_PROHIBITION_WINDOWS& from) {
    for (int i = 0; i < DVC_PNL_CEH_PROHIBITION_PLACES && n < DVC_PNL_CEH_PROHIBITION_PLACES; ++i) {
      if (from.cid[i] == CID_NONE)
        continue;
      merged.cid[n] = from.cid[i];
      merged.value[n] = from.value[i];
      std::copy(std::begin(from.items[i]), std::end(from.items[i]), merged.items[n]);
      ++n;
    }
  };
  take(before);
  take(after);
  for (int i = n; i < DVC_PNL_CEH_PROHIBITION_PLACES; ++i)
    merged.cid[i] = CID_NONE;
  merged.index = n > 0 ? 0 : -1;
  merged.next_cid = before.next_cid;
  if (int ret = write_queue(merged, view_func_); ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_binary_to_dm ret_code = %d", ret);
}

void D::queue_polling_notice() {
  // Polling reception switched on puts its notice in front of the others.
  long value = 0;
  if (read_int(current_contents_->key, value) != DVC_PNL_CEH_RET_OK || value != 1)
    return;
  DVC_PNL_CEH_PROHIBITION_WINDOWS queue{};
  if (read_queue(queue, view_func_) != DVC_PNL_CEH_RET_OK) {
    for (std::int32_t& place : queue.cid)
      place = CID_NONE;
  }
  for (int i = DVC_PNL_CEH_PROHIBITION_PLACES - 1; i > 0; --i) {
    queue.cid[i] = queue.cid[i - 1];
    queue.value[i] = queue.value[i - 1];
  }
  queue.cid[0] = CID_10_03_N17;
  queue.value[0] = 0;
  queue.index = 0;
  if (int ret = write_queue(queue, view_func_); ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_binary_to_dm ret_code = %d", ret);
}

int D::verdict_event_of(int view_function) {
  switch (view_function) {
    case 1:
      return 219;
    case 3:
      return 220;
    case 4:
      return 221;
    case 6:
      return 222;
    case 7:
      return 224;
    default:
      return -1;
  }
}

int D::on_prohibition_event(dvc_pnl_evh_panel_event& event) {
  if (event.dvc_pnl_evh_get_id() != verdict_event_of(view_func_) || waiting_prohibition_ != 1)
    return 0;
  if (active_ == 0) {
    // A child lies on top: only the duplex list adds the notices of this verdict to the queue.
    if (contents_id_ == CID_02_36_01_N1) {
      if (verdicts_left_ < 1)
        waiting_prohibition_ = 0;
      else
        --verdicts_left_;
      merge_prohibition_queue(event);
    }
    return 1;
  }
  dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kReleaseAll);
  int index = 0;
  view_of(*this)->dvc_pnl_ceh_get_list_select_row(index);
  // An accepted value opens the row's child (the setting-done message); a refused one the
  // notices that the verdict names.
  long cid = index_to_childwindow(index);
  if (contents_id_ == CID_02_37_N1) {
    int stored = 0;
    if (int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, stored,
                                                           view_func_);
        ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("get DVC_PNL_PDM_DVC_CEH_INTEGER ret_code = %d", ret);
      return 0;
    }
    cid = stored;
  }
  dvc_pnl_ceh_contents_hdl_get_prohibit_cid(event, cid, view_func_);
  if (contents_id_ == CID_02_39_N1)
    queue_polling_notice();
  if (contents_id_ == CID_02_10_N1) {
    int stored = CID_NONE;
    if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, stored, view_func_) ==
            DVC_PNL_CEH_RET_OK &&
        (stored == CID_02_10_N3 || stored == CID_02_10_N6))
      cid = stored;
  }
  if (skip_verdict_open_ == 1)
    skip_verdict_open_ = 0;
  else if (cid != CID_NONE)
    open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(cid));
  if (verdicts_left_ < 1)
    waiting_prohibition_ = 0;
  else
    --verdicts_left_;
  return 1;
}

}  // namespace orvanta
