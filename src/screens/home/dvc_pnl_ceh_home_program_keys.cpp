// The program keys of the home screens.
#include "screens/home/dvc_pnl_ceh_home_program_keys.h"

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_transaction.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

// The id that 2058 has among the contents.
constexpr auto kProgramNotReady = static_cast<DVC_PNL_CEH_CONTENTS_ID>(2058);

// What confirm_program's status makes of a press.
enum class reaction { call, not_ready, not_permitted, not_available, refuse };

reaction reaction_of(long status) {
  switch (status) {
    case 1:
    case 7:
      return reaction::call;
    case 3:
      return reaction::not_ready;
    case 13:
    case 14:
      return reaction::not_permitted;
    case 2:
    case 4:
    case 5:
    case 6:
    case 8:
    case 9:
    case 10:
    case 11:
    case 12:
      return reaction::not_available;
    default:
      return reaction::refuse;
  }
}

// The function whose job settings a program of `kind` holds.
int function_of_kind(long kind) {
  switch (kind) {
    case DVC_PNL_CEH_PROGRAM_KIND_SEND:
      return 3;
    case DVC_PNL_CEH_PROGRAM_KIND_FAX:
      return 4;
    default:
      return 1;
  }
}

// The kind a program registered from `function` gets.
long kind_of_function(int function) {
  if (function == 3)
    return DVC_PNL_CEH_PROGRAM_KIND_SEND;
  if (function == 4)
    return DVC_PNL_CEH_PROGRAM_KIND_FAX;
  return DVC_PNL_CEH_PROGRAM_KIND_COPY;
}

void send_lock_word(long word) {
  dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(word);
}

}  // namespace

int dvc_pnl_ceh_home_program_keys::press(int key) {
  send_lock_word(DVC_PNL_CEH_HOME_KEYS_LOCKED);
  program_key_ = key;
  screen_.set_timer(DVC_PNL_CEH_HOME_TIMER_PROGRAM, DVC_PNL_CEH_HOME_PROGRAM_HOLD_MS);
  program_key_down_ = 1;
  return 1;
}

bool dvc_pnl_ceh_home_program_keys::release() {
  if (program_key_down_ == 0)
    return false;
  stop_hold();
  return true;
}

void dvc_pnl_ceh_home_program_keys::stop_hold() {
  program_key_down_ = 0;
  screen_.kill_timer(DVC_PNL_CEH_HOME_TIMER_PROGRAM);
}

void dvc_pnl_ceh_home_program_keys::refuse(DVC_PNL_CEH_CONTENTS_ID id, int pattern) {
  send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
  screen_.open_child_contents(id);
  screen_.buzzer(pattern);
}

void dvc_pnl_ceh_home_program_keys::keep_pressed(const PROGRAM_ELEMENT& element,
                                                 int view_function) {
  if (int ret = dvc_pnl_ceh_contents_hdl_store_program_pressed(element, view_function);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set DVC_PNL_PDM_CEH_PROGRAM_PRESSED ret_code = %d", ret);
  program_pressed_ = 1;
}

int dvc_pnl_ceh_home_program_keys::short_press(int view_function, int count_function) {
  PROGRAM_ELEMENT element{};
  element.number = program_key_ - (DVC_PNL_CEH_KEY_PROGRAM_FIRST - 1);
  long kind = 0;
  long state = DVC_PNL_CEH_PROGRAM_FREE;
  if (int ret = pg_.aquire_program(element.number, kind, state); ret != DVC_PNL_CEH_RET_OK) {
    // The keys locked at the press must not stay locked when the machine cannot answer.
    CEH_ERR("aquire_program ret_code = %d", ret);
    send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
    return 0;
  }
  if (state != DVC_PNL_CEH_PROGRAM_IN_USE) {
    refuse(CID_10_01_N26, 2);
    return 1;
  }
  element.kind = static_cast<std::int32_t>(kind);
  long status = 0;
  if (int ret = pg_.confirm_program(element, status); ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("confirm_program ret_code = %d", ret);
    send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
    return 0;
  }
  // Each refusal sounds the slot's state, which is "in use" here.
  const int slot_pattern = static_cast<int>(state);
  switch (reaction_of(status)) {
    case reaction::not_ready:
      refuse(kProgramNotReady, slot_pattern);
      return 1;
    case reaction::not_permitted:
      refuse(CID_10_11_N18, slot_pattern);
      return 1;
    case reaction::not_available:
      refuse(CID_10_11_N19, slot_pattern);
      return 1;
    case reaction::refuse:
      send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
      screen_.buzzer(2);
      return 1;
    case reaction::call:
      break;
  }
  dvc_pnl_ceh_contents_hdl_reset_transaction_times(function_of_kind(element.kind));
  if (int ret = pg_.call_program(element); ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("call_program ret_code = %d", ret);
    send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
    return 0;
  }
  // A copy program that says so starts its count over.
  if (element.kind == DVC_PNL_CEH_PROGRAM_KIND_COPY && element.preset == 1) {
    if (int ret =
            dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_COPY_PRESET, 1, count_function);
        ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("set copy preset ret_code = %d", ret);
  }
  keep_pressed(element, view_function);
  send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
  screen_.open_child_contents(CID_06_01_N5);
  screen_.buzzer(1);
  return 1;
}

void dvc_pnl_ceh_home_program_keys::long_press(int view_function, int count_function) {
  PROGRAM_ELEMENT element{};
  element.number = program_key_ - (DVC_PNL_CEH_KEY_PROGRAM_FIRST - 1);
  long kind = 0;
  long state = DVC_PNL_CEH_PROGRAM_FREE;
  if (int ret = pg_.aquire_program(element.number, kind, state); ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("aquire_program ret_code = %d", ret);
    send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
    return;
  }
  const bool free = state != DVC_PNL_CEH_PROGRAM_IN_USE;
  element.kind = static_cast<std::int32_t>(free ? kind_of_function(view_function) : kind);
  if (free && element.kind == DVC_PNL_CEH_PROGRAM_KIND_COPY) {
    int count = 0;
    if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_COPY_PRESET, count, count_function) ==
        DVC_PNL_CEH_RET_OK)
      element.preset = count;
  }
  keep_pressed(element, view_function);
  if (free) {
    if (int ret = pg_.register_program(element); ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("register_program ret_code = %d", ret);
    screen_.open_child_contents(CID_07_01_50_N8);
  } else {
    screen_.open_child_contents(CID_07_01_50_N1);
  }
  send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
}

}  // namespace orvanta
