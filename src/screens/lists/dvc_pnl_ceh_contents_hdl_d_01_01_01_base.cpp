// The engine of the option lists: the drivers of the row, the helpers, load, the hard key words,
// transactions and the deferred writes.
#include <algorithm>
#include <cstring>

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01.h"
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01_tables.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "services/dvc_pnl_ceh_contents_hdl_transaction.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_notices.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

using D = dvc_pnl_ceh_contents_hdl_d_01_01_01;
using namespace option_list_tables;

namespace {

constexpr int kPartTitle = 123;
constexpr int kPartIconUpper = 19;
constexpr int kPartIconLower = 78;

constexpr unsigned long kDetailSetting[] = {0, 821, 822};

const dvc_pnl_ceh_contents_hdl_gui* view_of(dvc_pnl_ceh_contents_base& screen) {
  return dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
      screen.dvc_pnl_ceh_get_gui_components());
}

}  // namespace

D::dvc_pnl_ceh_contents_hdl_d_01_01_01(int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui), view_func_(get_view_function_id()) {
  current_contents_ = s_map_.row_of(contents_id, &D::build_row);
}

D::~dvc_pnl_ceh_contents_hdl_d_01_01_01() = default;

// ---------------------------------------------------------------- drivers of the row

long D::lock_word_of_contents() const {
  if (in(contents_id_, kLockD00Contents))
    return kLockD00;
  if (in(contents_id_, kLock800Contents))
    return kLock800;
  return 0;
}

void D::dvc_pnl_ceh_on_load() {
  if (current_contents_ == nullptr) {
    CEH_ERR("no row for contents id %d", contents_id_);
    close_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(contents_id_));
    return;
  }
  if (contents_id_ == CID_02_43_N1) {
    DVC_PNL_CEH_POLLING_LED_RECORD record{};
    const auto page = static_cast<DVC_PNL_CEH_CONTENTS_ID>(3);
    if (dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(
            DVC_PNL_PDM_DVC_CEH_SEND_BINARY, &record, sizeof record, view_func_, page) ==
        DVC_PNL_CEH_RET_OK) {
      if (record.flag_1 != 0)
        dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(kLedOff,
                                                                                 view_func_);
      record.flag_1 = 0;
      dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope(
          DVC_PNL_PDM_DVC_CEH_SEND_BINARY, &record, sizeof record, view_func_, page);
    }
  } else if (contents_id_ == CID_08_07_01_N5) {
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(kLedOn, view_func_);
  }
  if (const long word = lock_word_of_contents(); word != 0)
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(word);
  if (in(contents_id_, kCounterWindowContents))
    set_application_scope_pdm(DVC_PNL_PDM_COUNTER_WINDOW, 0);
  if (current_contents_->on_load_ != nullptr) {
    active_ = 1;
    waiting_prohibition_ = 0;
    dvc_pnl_ceh_call_slot(this, current_contents_->on_load_);
    if (on_activate_for_focus(contents_id_) == 1)
      draw();
  }
}

void D::dvc_pnl_ceh_on_close() {
  if (current_contents_ == nullptr)
    return;
  const long word = lock_word_of_contents();
  if (word == kLockD00 && active_ == 1)
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kUnlockD00);
  else if (word == kLock800)
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kUnlock800);
  if (in(contents_id_, kCounterWindowContents))
    set_application_scope_pdm(DVC_PNL_PDM_COUNTER_WINDOW, 1);
  if (contents_id_ == CID_02_24_N1 || contents_id_ == CID_02_29_N1)
    dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_DVC_CEH_INTEGER, view_func_);
  if (in(contents_id_, kDestinationEditContents)) {
    dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS, view_func_);
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kUnlock800);
  }
  if (contents_id_ == CID_04_11_N4) {
    dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_DVC_CEH_SYS_COUNT_BINARY, view_func_);
    dvc_pnl_ceh_contents_hdl_dm_remove_by_application(DVC_PNL_PDM_COUNTER_WINDOW);
  }
  dvc_pnl_ceh_call_slot(this, current_contents_->on_close_);
}

void D::dvc_pnl_ceh_on_timer(int timer_id) {
  if (current_contents_ != nullptr)
    dvc_pnl_ceh_call_slot(this, current_contents_->on_timer_, timer_id);
}

void D::dvc_pnl_ceh_on_activate() {
  if (current_contents_ == nullptr)
    return;
  active_ = 1;
  if (const long word = lock_word_of_contents(); word != 0)
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(word);
  dvc_pnl_ceh_call_slot(this, current_contents_->on_activate_);
}

void D::dvc_pnl_ceh_on_deactivate() {
  if (current_contents_ == nullptr)
    return;
  active_ = 0;
  const long word = lock_word_of_contents();
  if (word == kLockD00)
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kUnlockD00);
  else if (word == kLock800)
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(kUnlock800);
  dvc_pnl_ceh_call_slot(this, current_contents_->on_deactivate_);
}

int D::dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) {
  if (current_contents_ == nullptr)
    return 0;
  if (current_contents_->on_key_ != nullptr)
    return dvc_pnl_ceh_call_slot(this, current_contents_->on_key_, event);
  return dvc_pnl_ceh_call_key(this, current_contents_->on_key_map_, event);
}

int D::dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& event) {
  if (current_contents_ == nullptr)
    return 0;
  if (in(contents_id_, kVerdictHandlers))
    return on_prohibition_event(event);
  return 0;
}

int D::dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* notify) {
  return current_contents_ == nullptr
             ? 0
             : dvc_pnl_ceh_call_slot(this, current_contents_->on_gui_button_notify_, notify);
}

int D::dvc_pnl_ceh_on_gui_list_notify(DVU_PNL_GCP_NOTIFY* notify) {
  return current_contents_ == nullptr
             ? 0
             : dvc_pnl_ceh_call_slot(this, current_contents_->on_gui_list_notify_, notify);
}

// ---------------------------------------------------------------- helpers

long D::index_to_value(int index) const {
  const std::vector<LIST_ELEMENT>& list = current_contents_->list;
  if (index < 0 || index >= static_cast<int>(list.size()))
    return -1;
  return list[index].value == -1 ? 0 : list[index].value;
}

int D::value_to_index(int value) const {
  const std::vector<LIST_ELEMENT>& list = current_contents_->list;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (list[i].value == value)
      return static_cast<int>(i);
  }
  return 0;
}

int D::index_to_childwindow(int index) const {
  const std::vector<LIST_ELEMENT>& list = current_contents_->list;
  if (index < 0 || index >= static_cast<int>(list.size()))
    return CID_NONE;
  return list[index].child;
}

int D::open_window(int index) {
  const int child = index_to_childwindow(index);
  if (child == CID_NONE)
    return 0;
  if (child == CID_PARENT)
    back_to_parent();
  else
    open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(child));
  return 1;
}

void D::open_window_by_destination(DVC_PNL_CEH_CONTENTS_ID japan,
                                   DVC_PNL_CEH_CONTENTS_ID europe_or_asia,
                                   DVC_PNL_CEH_CONTENTS_ID other) {
  if (dvc_pnl_ceh_contents_hdl_destination_is_japan() == 1)
    open_child_contents(japan);
  else if (dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia() == 1)
    open_child_contents(europe_or_asia);
  else
    open_child_contents(other);
}

void D::add_row(int index, const LIST_ELEMENT& row) {
  const int icon = index >= 0 && index < 99 ? s_index_[index] : 0;
  view_of(*this)->dvc_pnl_ceh_add_view_list_index_text(icon, row.text_rid, 0);
}

void D::add_list() {
  const std::vector<LIST_ELEMENT>& list = current_contents_->list;
  for (std::size_t i = 0; i < list.size(); ++i)
    add_row(static_cast<int>(i), list[i]);
}

void D::set_select_row(int index) {
  if (index < 0)
    index = 0;
  const bool star = !current_contents_->key.empty() || contents_id_ == CID_02_22_N8 ||
                    contents_id_ == CID_02_22_N9 || contents_id_ == CID_02_22_N10;
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  if (star)
    view->dvc_pnl_ceh_set_star_to_select_row(index);
  else
    view->dvc_pnl_ceh_set_list_select_row(index);
}

void D::get_index_from_cmm(const std::vector<unsigned long>& key, int& index) {
  long value = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(
      key.data(), dvc_pnl_ceh_option_list_get_position(key), static_cast<unsigned>(key.size()),
      value);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("get_index_from_cmm ret_code = %d", ret);
    index = 0;
    return;
  }
  index = value_to_index(static_cast<int>(value));
}

int D::set_index_to_cmm(const std::vector<unsigned long>& key, int index) {
  const long value = index_to_value(index);
  if (value == -1)
    return 0;
  const int ret = dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(
      key.data(), dvc_pnl_ceh_option_list_get_position(key), static_cast<unsigned>(key.size()),
      value);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("set_index_to_cmm ret_code = %d", ret);
    return 0;
  }
  return 1;
}

void D::change_keyid_value_by_functionid(unsigned long& node) {
  switch (view_func_) {
    case 1:
      node = 2;
      break;
    case 3:
      node = 161;
      break;
    case 4:
      node = 206;
      break;
    case 6:
      node = 207;
      break;
    case 7:
      node = 214;
      break;
    default:
      CEH_TRC("change_keyid_value_by_functionid::get_function_id::unknown function id.");
      break;
  }
}

void D::update_form_common() {
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  view->dvc_pnl_ceh_update_view_text_res(kPartTitle, current_contents_->title_rid, 0);
  view->dvc_pnl_ceh_update_view_icon(kPartIconUpper, current_contents_->icon_upper_rid);
  view->dvc_pnl_ceh_update_view_icon(kPartIconLower, current_contents_->icon_lower_rid);
  view->dvc_pnl_ceh_update_view_flexiblekey(current_contents_->flexible_left,
                                            current_contents_->flexible_right);
  if (on_activate_for_focus(contents_id_) != 1)
    draw();
}

int D::on_activate_for_focus(int cid) {
  return in(cid, kFocusContents) ? 1 : 0;
}

int D::is_startkey(const dvc_pnl_evh_panel_event& event) {
  return event.dvc_pnl_evh_get_id() == kKeyStart ? 1 : 0;
}

void D::buzzer_by_key(const dvc_pnl_evh_panel_event& event) {
  if (is_startkey(event) == 1)
    buzzer(2);
}

// ---------------------------------------------------------------- transactions

namespace {

// Sends one detail setting command for `function`; `result` is RESULT, -1 when unread. Answers
// the invoke's code.
int detail_setting(unsigned long leaf, int view_function, long& result) {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_build_key(key, kDetailSetting, 3);
  dvc_pnl_ceh_contents_hdl_build_key(key, &leaf, 1);
  dvc_pnl_cmm_valueset request;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
  dvc_pnl_ceh_contents_hdl_transaction transaction;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(
      request, key, DVC_PNL_CEH_NODE_COMMON_FUNCTION,
      transaction.get_cmn_function_id_from_view_function_id(view_function));
  dvc_pnl_cmm_valueset response;
  const int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(key, request, response);
  result = -1;
  if (ret == DVC_PNL_CEH_RET_OK)
    dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, key, DVC_PNL_CEH_NODE_RESULT,
                                                        result);
  return ret;
}

int read_times(int function, int& count) {
  return dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_CEH_TRANSACTION_TIMES, count,
                                                  function);
}

void write_times(int function, int count) {
  if (int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_CEH_TRANSACTION_TIMES, count,
                                                       function);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set DVC_PNL_PDM_CEH_TRANSACTION_TIMES ret_code = %d", ret);
}

}  // namespace

void D::start_up() {
  long result = -1;
  if (int ret = detail_setting(DVC_PNL_CEH_DETAIL_SETTING_STARTUP, view_func_, result);
      ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("start_up:dvc_pnl_cmm_invoke ret_code = %d", ret);
    return;
  }
  if (result != DVC_PNL_CEH_DETAIL_SETTING_STARTUP_DONE) {
    CEH_ERR("STARTUP ERROR:%ld", result);
    return;
  }
  int count = 0;
  read_times(view_func_, count);
  write_times(view_func_, count + 1);
}

void D::commit() {
  // Every open level is confirmed; then the panel stays on a fresh one.
  for (;;) {
    int count = 0;
    if (read_times(view_func_, count) != DVC_PNL_CEH_RET_OK || count == 0)
      return;
    long result = -1;
    if (int ret = detail_setting(DVC_PNL_CEH_DETAIL_SETTING_OK, view_func_, result);
        ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("commit:dvc_pnl_cmm_invoke ret_code = %d", ret);
      return;
    }
    if (result != DVC_PNL_CEH_DETAIL_SETTING_OK_DONE) {
      CEH_ERR("commit ERROR:%ld", result);
      return;
    }
    write_times(view_func_, count - 1);
    if (count - 1 < 1) {
      start_up();
      return;
    }
  }
}

void D::cancel() {
  int count = 0;
  if (read_times(view_func_, count) != DVC_PNL_CEH_RET_OK || count == 0)
    return;
  long result = -1;
  if (int ret = detail_setting(DVC_PNL_CEH_DETAIL_SETTING_CANCEL, view_func_, result);
      ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("cancel:dvc_pnl_cmm_invoke ret_code = %d", ret);
    return;
  }
  if (result != DVC_PNL_CEH_DETAIL_SETTING_CANCEL_DONE) {
    CEH_ERR("CANCEL ERROR:%ld", result);
    return;
  }
  write_times(view_func_, count - 1);
}

// ---------------------------------------------------------------- deferred writes

int D::store_pdm_transaction_int_data_common(int index) {
  const std::vector<unsigned long>& key = current_contents_->key;
  if (key.empty() || key.size() > DVC_PNL_CEH_TRANSACTION_KEY_SIZE)
    return DVC_PNL_CEH_RET_PLATFORM;
  T_TRANSACTION_STRUCT_INNER_ entry{};
  std::copy(key.begin(), key.end(), entry.key);
  entry.value = static_cast<std::int32_t>(index_to_value(index));
  entry.kind = 0;
  entry.start_position = dvc_pnl_ceh_option_list_get_position(key);
  entry.count = static_cast<std::int32_t>(key.size());
  return dvc_pnl_ceh_store_pdm_transaction_data(entry, view_func_);
}

int D::commit_pdm_transaction_data() {
  return dvc_pnl_ceh_commit_pdm_transaction_data(view_func_);
}

}  // namespace orvanta
