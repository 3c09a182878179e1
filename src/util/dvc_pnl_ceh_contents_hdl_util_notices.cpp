// Colour keys and the colour LED of polling reception, and the notices the panel sends the
// machine: use of a function, an administrator's logout, the USB keyboard status.
#include "util/dvc_pnl_ceh_contents_hdl_util_notices.h"

#include <cstdint>
#include <iterator>

#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// ---- colour LED of polling reception ----

constexpr int kPollingFunction = 3;
constexpr DVC_PNL_CEH_CONTENTS_ID kPollingRecordPage = static_cast<DVC_PNL_CEH_CONTENTS_ID>(3);
constexpr unsigned long kPollingSetting[] = {0, 1, 161, 160, 203, 204};
constexpr long kLedOn = 0x80000001L;
constexpr long kLedOff = 0x40000001L;

// ---- colour keys ----

// Setting item of the colour mode in the prohibition tables.
constexpr unsigned kColorModeItem = 42;

struct color_key_row {
  int function;
  unsigned long key[7];  // the colour setting of the job
  unsigned size;
  long auto_value;  // -1: the key has no value in this function
  long full_value;
  long mono_value;
  long auto_mask;  // the bits of the prohibit mask that bar each key
  long full_mask;
  long mono_mask;
};

constexpr color_key_row kColorKeys[] = {
    {1, {0, 1, 2, 160, 99, 100}, 6, 6, 1, 2, 32, 8, 4},
    {3, {0, 1, 161, 160, 12, 104, 165}, 7, 7, 1, 3, 512, 8, 128},
    {7, {0, 1, 214, 160, 12, 104, 165}, 7, 7, 1, 3, 512, 8, 128},
    {6, {0, 1, 207, 160, 99, 100, 100}, 7, -1, 1, 3, 0, 8, 128},
};

// Box (function 6) keeps its colour setting in a group that is written whole.
constexpr int kGroupWrittenFunction = 6;

const color_key_row* color_row(int function) {
  for (const color_key_row& row : kColorKeys) {
    if (row.function == function)
      return &row;
  }
  return nullptr;
}

// ---- commands ----

constexpr unsigned long kUseFunction[] = {0, 503, 3473};
constexpr unsigned long kLogout[] = {0, 874, 875};
constexpr unsigned long kUsbKeyboardStatus[] = {0, 684, 685, 2920};

dvc_pnl_cmm_key key_of(const unsigned long* nodes, unsigned size) {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_build_key(key, nodes, size);
  return key;
}

}  // namespace

void dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(int function) {
  if (function != kPollingFunction)
    return;
  long polling = -1;
  long read = 0;
  if (dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kPollingSetting, 0, std::size(kPollingSetting),
                                                    read) == DVC_PNL_CEH_RET_OK) {
    polling = read;
  }
  DVC_PNL_CEH_POLLING_LED_RECORD record{};
  const int got = dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(
      DVC_PNL_PDM_DVC_CEH_SEND_BINARY, &record, sizeof(record), kPollingFunction,
      kPollingRecordPage);
  if (got != DVC_PNL_CEH_RET_OK) {
    record = {static_cast<std::int32_t>(polling), 0, 0};
    if (polling == 1)
      dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(kLedOn,
                                                                               kPollingFunction);
  } else {
    if (polling != record.polling) {
      record.polling = static_cast<std::int32_t>(polling);
      dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(
          polling == 1 ? kLedOn : kLedOff, kPollingFunction);
    }
    if (record.flag_2 != 0) {
      if (record.flag_1 != 0)
        dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(kLedOff,
                                                                                 kPollingFunction);
      record.flag_1 = 0;
      record.flag_2 = 0;
    }
  }
  const int ret = dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope(
      DVC_PNL_PDM_DVC_CEH_SEND_BINARY, &record, sizeof(record), kPollingFunction,
      kPollingRecordPage);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set_binary_to_dm_by_page_scope DVC_PNL_PDM_DVC_CEH_SEND_BINARY ret_code = %d", ret);
}

void dvc_pnl_ceh_contents_hdl_update_color_led_on_off(int /*function*/) {}

int dvc_pnl_ceh_contents_hdl_color_key_press(unsigned long key, int function, int& prohibited) {
  prohibited = 0;
  const color_key_row* row = color_row(function);
  if (row == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_color_key_press f_id error.");
    return 1;
  }
  // A function without a prohibition table bars nothing.
  long allowed = -1;
  dvc_pnl_ceh_contents_hdl_get_prohibit_value(function, kColorModeItem, allowed);

  long value = -1;
  long mask = 0;
  const char* barred = nullptr;
  switch (key) {
    case DVC_PNL_CEH_KEY_AUTO_COLOR:
      value = row->auto_value;
      mask = row->auto_mask;
      barred = "dvc_pnl_ceh_contents_hdl_color_key_press pro_value auto return.";
      break;
    case DVC_PNL_CEH_KEY_FULL_COLOR:
      value = row->full_value;
      mask = row->full_mask;
      barred = "dvc_pnl_ceh_contents_hdl_color_key_press pro_value full return.";
      break;
    case DVC_PNL_CEH_KEY_MONO_COLOR:
      value = row->mono_value;
      mask = row->mono_mask;
      barred = "dvc_pnl_ceh_contents_hdl_color_key_press pro_value mono return.";
      break;
    default:
      CEH_ERR("dvc_pnl_ceh_contents_hdl_color_key_press event_id error.");
      return 1;
  }
  if ((mask & ~allowed) != 0) {
    prohibited = 1;
    CEH_TRC("%s", barred);
    return 0;
  }
  if (value == -1) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_color_key_press select_val error.");
    return 1;
  }
  if (function != kGroupWrittenFunction) {
    const int ret = dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(row->key, 0, row->size, value);
    if (ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm ret_code = %d", ret);
    return ret;
  }
  dvc_pnl_cmm_valueset group;
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(group, key_of(row->key, row->size), value);
  const int ret =
      dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm(row->key, 0, row->size - 1, group);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_use_function_notify(long function) {
  const dvc_pnl_cmm_key command = key_of(kUseFunction, std::size(kUseFunction));
  dvc_pnl_cmm_valueset request;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command, DVC_PNL_CEH_NODE_REQUEST_KIND,
                                                   1);
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command, 3477, function);
  dvc_pnl_cmm_valueset response;
  const int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(command, request, response);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_invoke_cmm ret_code = %d", ret);
    return 1;
  }
  long result = -1;
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, command, DVC_PNL_CEH_NODE_RESULT,
                                                      result);
  if (result != 0) {
    CEH_ERR("result = %ld", result);
    return 1;
  }
  return 0;
}

void dvc_pnl_ceh_contents_hdl_login_out() {
  const int management = dvc_pnl_ceh_contents_hdl_get_management();
  if (management == 1 || management == 3)
    return;
  if (dvc_pnl_ceh_contents_hdl_is_admin_user() != 1)
    return;
  int id = 0;
  const int read =
      dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_ID, id);
  if (read != DVC_PNL_CEH_RET_OK) {
    // Nobody to log out that the machine would know.
    CEH_ERR("get_int_from_dm_by_application DVC_PNL_PDM_AUTHENTICATION_ID ret_code = %d", read);
    return;
  }
  const dvc_pnl_cmm_key command = key_of(kLogout, std::size(kLogout));
  dvc_pnl_cmm_valueset request;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command, DVC_PNL_CEH_NODE_REQUEST_KIND,
                                                   1);
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command, 1012, id);
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command, 1334, 1);
  dvc_pnl_cmm_valueset response;
  const int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(command, request, response);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_login_out:dvc_pnl_cmm_invoke ret_code = %d", ret);
}

int usb_keyboard_check(int& connected, long& status) {
  status = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(
      kUsbKeyboardStatus, 0, std::size(kUsbKeyboardStatus), status);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm ret_code = %d", ret);
    return ret;
  }
  connected = status != 0 ? 1 : 0;
  return DVC_PNL_CEH_RET_OK;
}

}  // namespace orvanta
